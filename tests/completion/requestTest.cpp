#include "completion/request.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "completion/script.h"
#include "reliability/FailingAllocations.h"

namespace tarv_3_3 {
namespace {

using std::string_literals::operator""s;
using Words = std::vector<std::string>;

/// Puts a file with `contents` in the place of standard input.
class StandardInput {
public:
    explicit StandardInput(const std::string& contents) : m_saved(dup(0)), m_file(std::tmpfile()) {
        EXPECT_EQ(std::fwrite(contents.data(), 1, contents.size(), m_file), contents.size());
        std::rewind(m_file);
        EXPECT_EQ(dup2(fileno(m_file), 0), 0);
        forget();
    }
    StandardInput(const StandardInput&) = delete;
    StandardInput& operator=(const StandardInput&) = delete;
    ~StandardInput() {
        dup2(m_saved, 0);
        close(m_saved);
        std::fclose(m_file);
        forget();
    }

    void again() const {
        std::rewind(m_file);
        lseek(0, 0, SEEK_SET);
        forget();
    }

private:
    // What was buffered of the file before.
    static void forget() {
        std::clearerr(stdin);
        std::fflush(stdin);
    }

    int m_saved;
    std::FILE* m_file;
};

/// Offers one candidate, and notes down what it was asked.
class Recorder : public Answerer {
public:
    const Completion* complete(int count, const char* const* words) override {
        asked.assign(words, words + count);
        return &m_completion;
    }
    const char* describeAsJson() override { return "{\"a\": 1}\n"; }

    Words asked;

private:
    Candidate m_candidate = {"--name=", "A name that is longer than what a text holds by itself."};
    Completion m_completion = {
        sizeof(Completion), sizeof(Candidate), completeNoFiles, 0, 1, &m_candidate, "--na"};
};

class Silent final : public Answerer {
public:
    const Completion* complete(int, const char* const*) override { return nullptr; }
    const char* describeAsJson() override { return nullptr; }
};

class Throwing final : public Answerer {
public:
    const Completion* complete(int, const char* const*) override { throw std::runtime_error("no answer"); }
    const char* describeAsJson() override { throw std::runtime_error("no description"); }
};

struct Outcome {
    bool isAnswered;
    std::string output;
    std::string errors;
};

Outcome request(const std::vector<const char*>& arguments, const std::string& input, Answerer& answerer) {
    const StandardInput standardInput(input);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const bool isAnswered = answerRequest(static_cast<int>(arguments.size()), arguments.data(), answerer);
    return {isAnswered, testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()};
}

constexpr char answerToNa[] = "tarv-complete 1 none\n"
                              "\n"
                              "\n"
                              "\n"
                              "--name=\tA name that is longer than what a text holds by itself.\n";

TEST(RecognizeRequest, KnowsThreeThatStandAlone) {
    using Kind = Request::Kind;
    const struct {
        const char* argument;
        Kind kind;
        Shell shell;
    } cases[] = {
        {"tarvoption=describe", Kind::description, Shell::unknown},
        {"tarvoption=complete=bash", Kind::answer, Shell::bash},
        {"tarvoption=complete=zsh", Kind::answer, Shell::zsh},
        {"tarvoption=complete=fish", Kind::answer, Shell::fish},
        {"tarvoption=complete=other", Kind::answer, Shell::unknown},
        {"tarvoption=complete=", Kind::answer, Shell::unknown},
        {"tarvoption=completion=bash", Kind::script, Shell::bash},
        {"tarvoption=completion=zsh", Kind::script, Shell::zsh},
        {"tarvoption=completion=fish", Kind::script, Shell::fish},
        {"tarvoption=completion=Bash", Kind::script, Shell::unknown},
        {"", Kind::none, Shell::unknown},
        {"tarvoption=describe=", Kind::none, Shell::unknown},
        {"tarvoption=describ", Kind::none, Shell::unknown},
        {"tarvoption=complete", Kind::none, Shell::unknown},
        {"tarvoption=completion", Kind::none, Shell::unknown},
        {"tarvoption=tarvlogenable=1", Kind::none, Shell::unknown},
        {"--tarvoption=complete=bash", Kind::none, Shell::unknown},
        {" tarvoption=complete=bash", Kind::none, Shell::unknown},
    };
    for (const auto& example : cases) {
        SCOPED_TRACE(example.argument);
        const char* const alone[] = {"tool", example.argument, "x"};
        EXPECT_EQ(recognizeRequest(2, alone).kind, example.kind);
        EXPECT_EQ(recognizeRequest(2, alone).shell, example.shell);
        EXPECT_EQ(recognizeRequest(3, alone).kind, Kind::none);
        EXPECT_EQ(recognizeRequest(1, alone).kind, Kind::none);
    }
    EXPECT_EQ(recognizeRequest(2, nullptr).kind, Kind::none);
    const char* const null[] = {"tool", nullptr};
    EXPECT_EQ(recognizeRequest(2, null).kind, Kind::none);
}

TEST(AnswerRequest, LeavesOtherCommandLinesAlone) {
    Recorder recorder;
    const Outcome outcome = request({"tool", "--name=x"}, "tool\0--na\0"s, recorder);
    EXPECT_FALSE(outcome.isAnswered);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(recorder.asked, Words());
}

TEST(AnswerRequest, AnswersWhatMayStandInPlaceOfTheLastWord) {
    Recorder recorder;
    const Outcome zsh = request({"tool", "tarvoption=complete=zsh"}, "tool\0a'b\0--na\0"s, recorder);
    EXPECT_TRUE(zsh.isAnswered);
    EXPECT_EQ(zsh.output, answerToNa);
    EXPECT_EQ(zsh.errors, "");
    EXPECT_EQ(recorder.asked, (Words{"tool", "a'b", "--na"}));

    const Outcome bash = request({"tool", "tarvoption=complete=bash"}, "tool\0a\\'b\0\0--na\0"s, recorder);
    EXPECT_TRUE(bash.isAnswered);
    EXPECT_EQ(bash.output, answerToNa);
    EXPECT_EQ(recorder.asked, (Words{"tool", "a'b", "--na"}));
}

TEST(AnswerRequest, PrintsNothingWithoutAnAnswer) {
    Recorder recorder;
    Silent silent;
    Throwing throwing;
    const struct {
        const char* argument;
        std::string input;
        Answerer& answerer;
    } cases[] = {
        {"tarvoption=complete=zsh", "tool\0--na"s, recorder},
        {"tarvoption=complete=zsh", "", recorder},
        {"tarvoption=complete=bash", "tool\0--na\0"s, recorder},
        {"tarvoption=complete=tcsh", "tool\0--na\0"s, recorder},
        {"tarvoption=complete=zsh", "tool\0--na\0"s, silent},
        {"tarvoption=complete=zsh", "tool\0--na\0"s, throwing},
        {"tarvoption=describe", "", silent},
        {"tarvoption=describe", "", throwing},
    };
    for (const auto& example : cases) {
        SCOPED_TRACE(std::string(example.argument) + " " + testing::PrintToString(example.input));
        const Outcome outcome = request({"tool", example.argument}, example.input, example.answerer);
        EXPECT_TRUE(outcome.isAnswered);
        EXPECT_EQ(outcome.output, "");
        EXPECT_EQ(outcome.errors, "");
    }
    EXPECT_EQ(recorder.asked, Words());
}

TEST(AnswerRequest, PrintsTheScriptOfTheProgram) {
    Recorder recorder;
    const struct {
        const char* argument;
        Shell shell;
    } cases[] = {
        {"tarvoption=completion=bash", Shell::bash},
        {"tarvoption=completion=zsh", Shell::zsh},
        {"tarvoption=completion=fish", Shell::fish},
    };
    for (const auto& example : cases) {
        SCOPED_TRACE(example.argument);
        const Outcome outcome = request({"/opt/bin/tool", example.argument}, "tool\0--na\0"s, recorder);
        EXPECT_TRUE(outcome.isAnswered);
        EXPECT_EQ(outcome.output, makeScript(example.shell, "tool"));
        EXPECT_NE(outcome.output, "");
        EXPECT_EQ(outcome.errors, "");
    }
}

TEST(AnswerRequest, SaysThatThereIsNoScript) {
    Recorder recorder;
    for (const std::vector<const char*>& arguments :
         {std::vector<const char*>{"tool", "tarvoption=completion=tcsh"},
          {"a;b", "tarvoption=completion=bash"},
          {nullptr, "tarvoption=completion=bash"}}) {
        const Outcome outcome = request(arguments, "", recorder);
        EXPECT_TRUE(outcome.isAnswered);
        EXPECT_EQ(outcome.output, "");
        EXPECT_EQ(outcome.errors,
                  "There are completion scripts for bash, zsh and fish, and for programs whose "
                  "names have only letters, digits, '_', '.', '+' and '-'.\n");
    }
}

TEST(AnswerRequest, PrintsTheDescription) {
    Recorder recorder;
    const Outcome outcome = request({"tool", "tarvoption=describe"}, "", recorder);
    EXPECT_TRUE(outcome.isAnswered);
    EXPECT_EQ(outcome.output, "{\"a\": 1}\n");
    EXPECT_EQ(outcome.errors, "");
}

/// Fails each allocation of a request in turn, and returns how many there were.
long failEachAllocation(const char* argument, const std::string& input, const std::string& expected) {
    const char* const arguments[] = {"a-program-with-a-long-name", argument};
    const StandardInput standardInput(input);
    for (long number = 1;; ++number) {
        SCOPED_TRACE(number);
        Recorder recorder;
        standardInput.again();
        testing::internal::CaptureStdout();
        failing::arm(number, failing::Mode::forGood);
        const bool isAnswered = answerRequest(2, arguments, recorder);
        const bool failed = failing::disarm().failed != 0;
        EXPECT_TRUE(isAnswered);
        const std::string output = testing::internal::GetCapturedStdout();
        EXPECT_EQ(output, failed ? "" : expected);
        if (!failed || testing::Test::HasFailure()) {
            return number - 1;
        }
    }
}

TEST(AnswerRequest, PrintsNothingWhicheverAllocationFails) {
    const std::string word = "--the-beginning-of-a-name-that-needs-memory";
    const std::string answer = "tarv-complete 1 none\n"
                               "\n"
                               "\n"
                               "--na\n"
                               "--name=\tA name that is longer than what a text holds by itself.\n";
    EXPECT_GT(failEachAllocation("tarvoption=complete=zsh", "tool\0"s + word + '\0', answer), 3);
    EXPECT_GT(failEachAllocation("tarvoption=complete=bash", "tool\0\0"s + word + '\0', answer), 3);
    EXPECT_GT(failEachAllocation("tarvoption=completion=bash", "",
                                 makeScript(Shell::bash, "a-program-with-a-long-name")),
              1);
    EXPECT_EQ(failEachAllocation("tarvoption=describe", "", "{\"a\": 1}\n"), 0);
}

} // namespace
} // namespace tarv_3_3
