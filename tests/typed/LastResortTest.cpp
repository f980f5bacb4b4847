#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/TypedLine.h"

namespace {

namespace tarv = tarv_3_3::typed;

/// "help of PATH", "version", or what else was said.
std::string answer(tarv::Program& program, const std::string& line) {
    const std::string outcome = parseLine(program, words(line));
    const std::string usage = "0 Usage: ";
    if (outcome.compare(0, usage.size(), usage) == 0) {
        return "help of " + outcome.substr(usage.size(), outcome.find(" [") - usage.size());
    }
    return outcome == "0 p 1.0\n" ? "version" : outcome;
}

struct Row {
    const char* line;
    const char* answer;
};

TEST(TypedLastResort, HelpAndVersionAreTakenWhereNothingElseFits) {
    tarv::Program program("p", "1.0", "");
    const auto level = program.option<std::string>("level", "");
    program.flag("verbose", "");
    program.positional<std::vector<std::string>>("file", "");
    const Row rows[] = {{"--help", "help of p"},
                        {"-help", "help of p"},
                        {"--he", "help of p"},
                        {"-h", "help of p"},
                        {"--h", "help of p"},
                        {"--version", "version"},
                        {"--vers", "version"},
                        {"--v", "ok"},
                        {"--bogus --help", "help of p"},
                        {"--help --bogus", "help of p"},
                        {"--level --help", "help of p"},
                        {"--level=--help", "ok"},
                        {"-- --help", "ok"},
                        {"--version --help", "version"},
                        {"--help --version", "help of p"},
                        {"a b --help", "help of p"},
                        {"--help=3", "2 p: --help=3: option '--help' takes no value\nTry 'p --help'.\n"},
                        {"--hel=", "2 p: --hel=: option '--help' takes no value\nTry 'p --help'.\n"},
                        {"--vers=3", "2 p: --vers=3: option '--version' takes no value\nTry 'p --help'.\n"},
                        {"--help=3 --help", "help of p"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(answer(program, row.line), row.answer);
    }
    EXPECT_EQ(level.count(), 0);
}

TEST(TypedLastResort, NoNameIsTakenFromTheHost) {
    tarv::Program program("p", "1.0", "");
    const auto host = program.option<std::string>("host,h", "");
    const auto helper = program.flag("helper", "");
    const Row rows[] = {{"-h=x", "ok"},   {"-h x", "ok"},  {"--he", "ok"},
                        {"--help", "ok"}, {"--hel", "ok"}, {"--version", "version"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(answer(program, row.line), row.answer);
    }
    EXPECT_FALSE(host.given() || helper.given());
}

TEST(TypedLastResort, AProgramWithoutVersionHasNone) {
    tarv::Program program("p");
    EXPECT_EQ(answer(program, "--version"), "2 p: unknown option '--version'\nTry 'p --help'.\n");
}

TEST(TypedLastResort, ARestHasItsOwnHelp) {
    tarv::Program program("p", "1.0", "");
    program.rest<std::vector<std::string>>("command", "");
    EXPECT_EQ(answer(program, "ls --help"), "ok");
    EXPECT_EQ(answer(program, "--help ls"), "help of p");
}

TEST(TypedLastResort, JoinedLettersKnowHelp) {
    tarv::Program program("p", "1.0", "");
    program.joinLetters();
    program.flag("x", "");
    EXPECT_EQ(answer(program, "-xh"), "help of p");
    EXPECT_EQ(answer(program, "-h"), "help of p");
    EXPECT_EQ(answer(program, "--version -h"), "version");
    EXPECT_EQ(answer(program, "--help -h"), "help of p");
    EXPECT_EQ(answer(program, "-v"), "2 p: unknown option '-v'\nTry 'p --help'.\n");
}

TEST(TypedLastResort, HelpIsThatOfTheVerb) {
    tarv::Program program("p", "1.0", "");
    tarv::Command& log = program.verb("log", "").does([] {});
    log.option<int>("count", "").required();
    tarv::Command& remote = program.verb("remote", "");
    remote.verb("add", "").does([] {});
    const Row rows[] = {{"--help", "help of p"},
                        {"help", "help of p"},
                        {"hel", "help of p"},
                        {"log --help", "help of p log"},
                        {"--help log", "help of p log"},
                        {"help log", "help of p log"},
                        {"help lo", "help of p log"},
                        {"remote --help", "help of p remote"},
                        {"remote add -h", "help of p remote add"},
                        {"help remote add", "help of p remote add"},
                        {"bogus --help", "help of p"},
                        {"help help", "help of p"},
                        {"help help log", "help of p log"},
                        {"help log --bogus", "help of p log"},
                        {"help log --bogus x", "help of p log"},
                        {"--bogus help x", "help of p"},
                        {"help log --count=x --bogus=", "help of p log"},
                        {"help --count log", "help of p log"},
                        {"help -- log", "help of p log"},
                        {"help --version log", "help of p log"},
                        {"help log --help", "help of p log"},
                        {"help bogus --help", "help of p"},
                        {"help --help bogus", "help of p"},
                        {"--help help bogus", "help of p"},
                        {"--help bogus", "help of p"},
                        {"--help log bogus", "help of p log"},
                        {"log bogus --help", "help of p log"},
                        {"help bogus --version", "version"},
                        {"--version help bogus", "version"},
                        {"log --version", "version"},
                        {"--version help", "version"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(answer(program, row.line), row.answer);
    }
}

TEST(TypedLastResort, HelpOfWhatIsNoVerbIsRefused) {
    tarv::Program program("p", "1.0", "");
    tarv::Command& list = program.verb("list", "").does([] {});
    list.positional<std::string>("file", "");
    program.verb("listen", "").does([] {});
    tarv::Command& remote = program.verb("remote", "");
    remote.verb("add", "").does([] {});
    const Row rows[] = {
        {"help bogus", "2 p: unknown verb 'bogus'\nTry 'p --help'.\n"},
        {"hel bogus", "2 p: unknown verb 'bogus'\nTry 'p --help'.\n"},
        {"help help bogus", "2 p: unknown verb 'bogus'\nTry 'p --help'.\n"},
        {"help bogus list", "2 p: unknown verb 'bogus'\nTry 'p --help'.\n"},
        {"help bogus --nonsense", "2 p: unknown verb 'bogus'\nTry 'p --help'.\n"},
        {"help -- --help", "2 p: unknown verb '--help'\nTry 'p --help'.\n"},
        {"help lsit", "2 p: unknown verb 'lsit'\nDid you mean 'list' or 'listen'?\nTry 'p --help'.\n"},
        {"help lis", "2 p: ambiguous verb 'lis', could be 'list' or 'listen'\nTry 'p --help'.\n"},
        {"help remote bogus", "2 p: unknown verb 'bogus'\nTry 'p remote --help'.\n"},
        {"help remote ad", "help of p remote add"},
        {"help remote adn", "2 p: unknown verb 'adn'\nDid you mean 'add'?\nTry 'p remote --help'.\n"},
        {"help remote help", "2 p: unknown verb 'help'\nTry 'p remote --help'.\n"},
        {"help remote add x", "2 p: unknown verb 'x'\nTry 'p remote add --help'.\n"},
        {"help list file", "2 p: unknown verb 'file'\nTry 'p list --help'.\n"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(answer(program, row.line), row.answer);
    }
}

TEST(TypedLastResort, AProgramWithoutVerbsHasNoVerbHelp) {
    tarv::Program program("p");
    const auto file = program.positional<std::string>("file", "");
    EXPECT_EQ(answer(program, "help"), "ok");
    EXPECT_EQ(*file, "help");
}

TEST(TypedLastResort, AVerbOfTheHostIsStrongerThanHelp) {
    tarv::Program program("p", "1.0", "");
    program.verb("helper", "").does([] {});
    EXPECT_EQ(answer(program, "help"), "ok");
}

} // namespace
