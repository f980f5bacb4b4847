#include <cstdio>
#include <string>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "tarv_3_3/typed.h"

namespace {

namespace tarv = tarv_3_3::typed;

/// The standard output goes to a file.
class RedirectedOutput {
public:
    explicit RedirectedOutput(const char* path) : m_kept(dup(STDOUT_FILENO)) {
        std::fflush(stdout);
        const int file = open(path, O_WRONLY);
        dup2(file, STDOUT_FILENO);
        close(file);
    }
    RedirectedOutput(const RedirectedOutput&) = delete;
    RedirectedOutput& operator=(const RedirectedOutput&) = delete;
    ~RedirectedOutput() {
        dup2(m_kept, STDOUT_FILENO);
        close(m_kept);
    }

private:
    int m_kept;
};

struct Ran {
    int exitCode;
    std::string output;
    std::string errors;
};

Ran run(std::vector<const char*> line) {
    tarv::Program program("p", "1.0");
    program.flag("old", "").deprecated("");
    line.insert(line.begin(), "p");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int exitCode = program.run(static_cast<int>(line.size()), line.data(), [] {
        std::fputs("done\n", stdout);
        return 7;
    });
    return {exitCode, testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()};
}

TEST(TypedRun, PrintsWhatThereIsToSayAndReturnsTheExitCode) {
    const struct {
        std::vector<const char*> line;
        int exitCode;
        const char* output;
        const char* errors;
    } rows[] = {{{}, 7, "done\n", ""},
                {{"--old"}, 7, "done\n", "p: option '--old' is deprecated\n"},
                {{"--version"}, 0, "p 1.0\n", ""},
                {{"x"}, 2, "", "p: unexpected argument 'x'\nTry 'p --help'.\n"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line.empty() ? "" : row.line.front());
        const Ran ran = run(row.line);
        EXPECT_EQ(ran.exitCode, row.exitCode);
        EXPECT_EQ(ran.output, row.output);
        EXPECT_EQ(ran.errors, row.errors);
    }
}

TEST(TypedRun, AProgramThatWasMovedFromHasNoMemory) {
    tarv::Program program("p");
    const tarv::Program moved(static_cast<tarv::Program&&>(program));
    const char* const argv[] = {"p"};
    testing::internal::CaptureStderr();
    EXPECT_EQ(program.run(1, argv), 2);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "out of memory\n");
}

TEST(TypedRun, SaysWhyItCannotPrintAndFails) {
    // A long text is more than the stream keeps back.
    for (const std::string& about : {std::string("Short."), std::string(100000, 'x')}) {
        for (const char* const request : {"--version", "--help"}) {
            SCOPED_TRACE(request);
            tarv::Program program("p", "1.0", about.c_str());
            const char* const line[] = {"called-otherwise", request};
            const RedirectedOutput full("/dev/full");
            testing::internal::CaptureStderr();
            EXPECT_EQ(program.run(2, line), 1);
            EXPECT_EQ(testing::internal::GetCapturedStderr(), "p: cannot write: No space left on device\n");
            EXPECT_EQ(program.run(1, line), 0);
        }
    }
}

} // namespace
