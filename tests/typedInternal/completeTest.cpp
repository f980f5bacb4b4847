#include "typed/complete.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/TypedLine.h"

namespace {

namespace tarv = tarv_3_3::typed;
using tarv_3_3::Completion;

enum class Format { png, jpeg, webp };

/// A program whose record can be asked.
struct OpenProgram : tarv::Program {
    using Program::Program;
    tarv::engine::Command& record() { return *m_record; }
};

/// The candidates, each behind a blank, and what the shell adds by itself.
std::string offered(OpenProgram& program, std::vector<std::string> line) {
    line.insert(line.begin(), "program");
    tarv::engine::ProgramCompleter completer(program.record(), line);
    const Completion* const completion = completer.answer();
    if (completion == nullptr) {
        return "nothing";
    }
    std::string list = completion->files == tarv_3_3::completeFiles         ? "files"
                       : completion->files == tarv_3_3::completeDirectories ? "directories"
                                                                            : "";
    for (unsigned i = 0; i < completion->candidateCount; ++i) {
        list.append(list.empty() ? "" : " ").append(completion->candidates[i].text);
    }
    return list;
}

struct Vcs {
    OpenProgram program{"vcs", "1.0", ""};
    tarv::Handle<std::filesystem::path> directory =
        program.option<std::filesystem::path>("git-dir", "The repository.").completeAs("directory");
    tarv::Command& log = program.verb("log", "Show the history.");
    tarv::Handle<int> count = log.option<int>("max-count,n", "How many.");
    tarv::Handle<std::vector<Format>> formats = log.option<std::vector<Format>>("format", "Formats.");
    tarv::Handle<bool> graph = log.flag("graph", "Draw.");
    tarv::Handle<bool> oneline = log.flag("oneline", "Short.");
    tarv::Handle<bool> secret = log.flag("secret", "Secret.").hidden();
    tarv::Command& copy = program.verb("copy,cp", "Copy.");
    tarv::Handle<Format> from = copy.positional<Format>("from", "").required();
    tarv::Handle<std::filesystem::path> to = copy.positional<std::filesystem::path>("to", "").required();
    tarv::Command& remote = program.verb("remote", "Others.");
    tarv::Command& add = remote.verb("add", "One more.");

    Vcs() { log.atMostOne(graph, oneline); }
};

TEST(ProgramCompleter, KnowsVerbsNamesAndValues) {
    Vcs vcs;
    const struct {
        std::vector<std::string> line;
        const char* offered;
    } rows[] = {
        {{""}, "log copy remote help"},
        {{"l"}, "log"},
        {{"cp"}, "cp"},
        {{"help", ""}, "log copy remote help"},
        {{"-"}, "--git-dir= --help --version"},
        {{"--git-dir", ""}, "directories"},
        {{"--git-dir="}, "directories"},
        {{"--git-dir=x", "re"}, "remote"},
        {{"remote", ""}, "add"},
        {{"remote", "add", "--"}, "--git-dir= --help --version"},
        {{"log", "--"}, "--git-dir= --max-count= --format= --graph --oneline --help --version"},
        {{"log", "--m-c"}, "--max-count="},
        {{"log", "--graph", "--"}, "--git-dir= --max-count= --format= --help --version"},
        {{"log", "--se"}, "--secret"},
        {{"log", "--max-count", ""}, ""},
        {{"log", "--max-count", "-5", "--g"}, "--git-dir= --graph"},
        {{"log", "--format=p"}, "--format=png"},
        {{"log", "--format", "png,"}, "png,jpeg png,webp"},
        {{"log", ""}, "--git-dir= --max-count= --format= --graph --oneline --help --version"},
        {{"copy", ""}, "png jpeg webp"},
        {{"copy", "png", ""}, "files"},
        {{"copy", "--", "j"}, "jpeg"},
        {{"bogus", ""}, "log copy remote help"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line.back() + " behind " + row.line.front());
        EXPECT_EQ(offered(vcs.program, row.line), row.offered);
    }
}

TEST(ProgramCompleter, SaysWhatVerbsAre) {
    Vcs vcs;
    tarv::engine::ProgramCompleter completer(vcs.program.record(), {"vcs", "lo"});
    const Completion* const completion = completer.answer();
    ASSERT_NE(completion, nullptr);
    ASSERT_EQ(completion->candidateCount, 1U);
    EXPECT_STREQ(completion->candidates[0].description, "Show the history.");
}

TEST(ProgramCompleter, OffersOnlyWhatGoesWithAnAction) {
    OpenProgram tar("tar");
    tar.action("list,t", "");
    const auto extract = tar.action("extract,x", "");
    tar.option<std::string>("directory,C", "").goesWith(extract);
    tar.flag("verbose", "");
    EXPECT_EQ(offered(tar, {"--"}), "--list --extract --directory= --verbose --help");
    EXPECT_EQ(offered(tar, {"--list", "--"}), "--verbose --help");
    EXPECT_EQ(offered(tar, {"-x", "--"}), "--directory= --verbose --help");
}

TEST(ProgramCompleter, JoinedLettersAndRestsAreLeftAlone) {
    OpenProgram program("p");
    program.joinLetters();
    program.flag("all,a", "");
    program.rest<std::vector<std::string>>("command", "").completeAs("file");
    EXPECT_EQ(offered(program, {"-a"}), "nothing");
    EXPECT_EQ(offered(program, {"--a"}), "--all");
    EXPECT_EQ(offered(program, {"ls", "--a"}), "files");
}

} // namespace
