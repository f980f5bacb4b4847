#include "typed/complete.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/OpenProgram.h"
#include "support/TypedLine.h"

namespace {

namespace tarv = tarv_3_3::typed;
using tarv_3_3::Completion;

enum class Format { png, jpeg, webp };

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
        {{"help", "remote", ""}, "add"},
        {{"help", "copy", ""}, "--git-dir= --help --version"},
        {{"help", "copy", "p"}, ""},
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

TEST(ProgramCompleter, OffersAHiddenActionWhereItIsBegun) {
    OpenProgram tar("tar");
    tar.action("list,t", "");
    tar.action("repair", "").hidden();
    EXPECT_EQ(offered(tar, {"--"}), "--list --help");
    EXPECT_EQ(offered(tar, {"--re"}), "--repair");
}

TEST(ProgramCompleter, OffersTheNumbersThatAnOptionTakes) {
    OpenProgram program("p");
    program.joinLetters();
    program.option<int>("bits,b", "").oneOf(1, 2, 16);
    program.option<double>("real", "").oneOf(0.5, 1, -2.5e-7);
    program.option<float>("scale", "").oneOf(0.1F, 2.0F);
    program.option<std::vector<int>>("list", "").oneOf(1, 2, 10);
    program.option<int>("near", "").oneOf(1, 5, 30).range(2, 20);
    program.option<unsigned char>("byte", "").oneOf(-1, 7, 300);
    program.option<short>("file", "").oneOf(3).completeAs("file");
    program.option<int>("any", "").range(1, 3);
    program.option<int>("own", "").oneOf(1, 2).completeWith([](const char*, tarv::Candidates&) {});
    program.positional<long long>("width", "").oneOf(8, 80, 9000000000);
    program.positional<std::vector<unsigned>>("rest", "").oneOf(4, 5);
    const struct {
        std::vector<std::string> line;
        const char* offered;
    } rows[] = {
        {{"--bits="}, "--bits=1 --bits=2 --bits=16"},
        {{"--bits", ""}, "1 2 16"},
        {{"--bits", "1"}, "1 16"},
        {{"--bits=3"}, ""},
        {{"-b"}, "-b1 -b2 -b16"},
        {{"-b=1"}, "-b=1 -b=16"},
        {{"--real="}, "--real=0.5 --real=1 --real=-2.5e-07"},
        {{"--real=0"}, "--real=0.5"},
        {{"--scale", ""}, "0.1 2"},
        {{"--list="}, "--list=1 --list=2 --list=10"},
        {{"--list=1,"}, "--list=1,2 --list=1,10"},
        {{"--list", "2,1"}, "2,1 2,10"},
        {{"--near="}, "--near=5"},
        {{"--byte="}, "--byte=7"},
        {{"--file="}, "--file=3"},
        {{"--any="}, ""},
        {{"--own="}, "--own=1 --own=2"},
        {{""}, "8 80 9000000000"},
        {{"8"}, "8 80"},
        {{"8", ""}, "4 5"},
        {{"8", "4", ""}, "4 5"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line.back() + " behind " + row.line.front());
        EXPECT_EQ(offered(program, row.line), row.offered);
    }
}

TEST(ProgramCompleter, OffersNoNumberThatIsRefused) {
    OpenProgram program("p");
    program.option<signed char>("small", "").oneOf(-129, -128, 0, 127, 128).range(-128, 126);
    program.option<double>("real", "").oneOf(0.1, 1e300, 1.0 / 3).range(0, 10);
    program.option<float>("scale", "").oneOf(0.1, 1e300);
    int offers = 0;
    for (const char* const word : {"--small=", "--real=", "--scale="}) {
        tarv::engine::ProgramCompleter completer(program.record(), {"p", word});
        const Completion* const completion = completer.answer();
        ASSERT_NE(completion, nullptr);
        for (unsigned i = 0; i < completion->candidateCount; ++i) {
            const std::string offer = completion->candidates[i].text;
            EXPECT_EQ(parseLine(program, {offer}), "ok") << offer;
            ++offers;
        }
    }
    EXPECT_EQ(offers, 5);
}

struct Letters {
    OpenProgram program{"p"};
    tarv::Handle<bool> all = program.flag("all,a", "");
    tarv::Handle<bool> almost = program.flag("all-but-one,b", "");
    tarv::Handle<int> verbose = program.counter("verbose,v", "");
    tarv::Handle<std::string> level = program.option<std::string>("l", "").oneOf("3", "30", "5");
    tarv::Handle<std::vector<Format>> formats = program.option<std::vector<Format>>("format,f", "");
    tarv::Handle<std::string> output = program.option<std::string>("output,o", "");
    tarv::Handle<std::string> sign = program.option<std::string>("sign,s", "").oneOf("=x", "y");
    tarv::Handle<bool> umlaut = program.flag("\u00fc", "");
    tarv::Handle<bool> secret = program.flag("secret,z", "").hidden();

    Letters() {
        program.joinLetters();
        program.atMostOne(all, almost);
        output.completeWith([](const char*, tarv::Candidates&) {});
    }
};

TEST(ProgramCompleter, ContinuesJoinedLetters) {
    Letters letters;
    const struct {
        std::vector<std::string> line;
        const char* offered;
    } rows[] = {
        {{"-a"}, "-a"},
        {{"-va"}, "-va"},
        {{"-vv"}, "-vv"},
        {{"-z"}, "-z"},
        {{"-v\u00fc"}, "-v\u00fc"},
        {{"\u2013av"}, "\u2013av"},
        {{"-ab"}, ""},
        {{"-a", "-b"}, ""},
        {{"--all", "-vb"}, ""},
        {{"-l"}, "-l3 -l30 -l5"},
        {{"-vl"}, "-vl3 -vl30 -vl5"},
        {{"-vl3"}, "-vl3 -vl30"},
        {{"-vl="}, "-vl=3 -vl=30 -vl=5"},
        {{"-vl=5"}, "-vl=5"},
        {{"-vl=="}, ""},
        {{"-vl", "3"}, "3 30"},
        {{"-f"}, "-fpng -fjpeg -fwebp"},
        {{"-afj"}, "-afjpeg"},
        {{"-fpng,"}, "-fpng,jpeg -fpng,webp"},
        {{"-s"}, "-sy"},
        {{"-s="}, "-s==x -s=y"},
        {{"-x"}, ""},
        {{"-ax"}, ""},
        {{"-xa"}, ""},
        {{"-h"}, ""},
        {{"-vh"}, ""},
        {{"-"}, "--all --all-but-one --verbose --l= --format= --output= --sign= --\u00fc --help"},
        {{"--", "-a"}, "files"},
        {{"--al"}, "--all --all-but-one"},
        {{"l"}, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line.back() + " behind " + row.line.front());
        EXPECT_EQ(offered(letters.program, row.line), row.offered);
    }
}

TEST(ProgramCompleter, AddsFilesToJoinedLetters) {
    OpenProgram program("p");
    program.joinLetters().flag("all,a", "");
    program.option<std::filesystem::path>("output,o", "");
    const struct {
        const char* word;
        unsigned offset;
        const char* common;
    } rows[] = {{"-o", 2, "-o"}, {"-aodi", 3, "-aodi"}, {"-o=di", 3, "-o=di"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.word);
        tarv::engine::ProgramCompleter completer(program.record(), {"p", row.word});
        const Completion* const completion = completer.answer();
        ASSERT_NE(completion, nullptr);
        EXPECT_EQ(completion->files, tarv_3_3::completeFiles);
        EXPECT_EQ(completion->fileOffset, row.offset);
        EXPECT_STREQ(completion->common, row.common);
    }
    Letters letters;
    tarv::engine::ProgramCompleter completer(letters.program.record(), {"p", "-vfj"});
    EXPECT_STREQ(completer.answer()->common, "-vfjpeg");
    tarv::engine::ProgramCompleter asking(letters.program.record(), {"p", "-voab"});
    asking.answer();
    ASSERT_NE(asking.asked(), nullptr);
    EXPECT_EQ(asking.asked()->name(), "output");
    EXPECT_EQ(asking.askedWord(), "ab");
}

TEST(ProgramCompleter, OffersOnlyLettersThatAreAccepted) {
    Letters letters;
    const std::vector<std::string> pieces = {"",  "a", "b", "v", "l", "f", "o",   "s", "z",
                                             "h", "x", "3", "j", "=", ",", "png", "y", "\u00fc"};
    int offers = 0;
    for (const std::string& first : pieces) {
        for (const std::string& second : pieces) {
            for (const std::string& third : pieces) {
                const std::string word = "-" + first + second + third;
                if (word == "-") {
                    continue;
                }
                tarv::engine::ProgramCompleter completer(letters.program.record(), {"p", word});
                const Completion* const completion = completer.answer();
                ASSERT_NE(completion, nullptr);
                for (unsigned i = 0; i < completion->candidateCount; ++i) {
                    const std::string offer = completion->candidates[i].text;
                    EXPECT_EQ(offer.substr(0, word.size()), word);
                    EXPECT_EQ(parseLine(letters.program, {offer}), "ok") << offer << " for " << word;
                    ++offers;
                }
            }
        }
    }
    EXPECT_GT(offers, 500);
}

TEST(ProgramCompleter, LeavesRestsAlone) {
    OpenProgram program("p");
    program.joinLetters();
    program.flag("all,a", "");
    program.rest<std::vector<std::string>>("command", "").completeAs("file");
    EXPECT_EQ(offered(program, {"--a"}), "--all");
    EXPECT_EQ(offered(program, {"ls", "-a"}), "files");
    EXPECT_EQ(offered(program, {"ls", "--a"}), "files");
}

} // namespace
