#include <string>

#include <gtest/gtest.h>

#include "support/TypedLine.h"

namespace {

namespace tarv = tarv_3_3::typed;

enum class Kind { atMostOne, atLeastOne, exactlyOne, allOrNone };

std::string check(Kind kind, const std::string& line) {
    tarv::Program program("p");
    const auto a = program.flag("a-flag", "");
    const auto b = program.option<int>("b", "");
    const auto c = program.flag("c", "");
    switch (kind) {
    case Kind::atMostOne:
        program.atMostOne(a, b, c);
        break;
    case Kind::atLeastOne:
        program.atLeastOne(a, b, c);
        break;
    case Kind::exactlyOne:
        program.exactlyOne(a, b, c);
        break;
    case Kind::allOrNone:
        program.allOrNone(a, b, c);
        break;
    }
    const std::string outcome = parseLine(program, words(line));
    const std::string begin = "2 p: ";
    const std::string end = "\nTry 'p --help'.\n";
    return outcome == "ok" ? outcome
                           : outcome.substr(begin.size(), outcome.size() - begin.size() - end.size());
}

TEST(TypedRules, CountWhatIsGiven) {
    const struct {
        Kind kind;
        const char* line;
        const char* outcome;
    } rows[] = {
        {Kind::atMostOne, "", "ok"},
        {Kind::atMostOne, "--a-flag", "ok"},
        {Kind::atMostOne, "--a-flag --b=1", "options '--a-flag' and '-b' exclude each other"},
        {Kind::atMostOne, "--no-a-flag --b=1", "ok"},
        {Kind::atMostOne, "--a-flag --no-a-flag --b=1", "ok"},
        {Kind::atMostOne, "--b=1 --b=2", "ok"},
        {Kind::atLeastOne, "", "one of the options '--a-flag', '-b' or '-c' is required"},
        {Kind::atLeastOne, "--no-c", "one of the options '--a-flag', '-b' or '-c' is required"},
        {Kind::atLeastOne, "-c --b=1", "ok"},
        {Kind::exactlyOne, "", "one of the options '--a-flag', '-b' or '-c' is required"},
        {Kind::exactlyOne, "-c", "ok"},
        {Kind::exactlyOne, "-c --b=1", "options '-b' and '-c' exclude each other"},
        {Kind::allOrNone, "", "ok"},
        {Kind::allOrNone, "-c --b=1",
         "options '--a-flag', '-b' and '-c' go together, but '--a-flag' is missing"},
        {Kind::allOrNone, "-c --b=1 --a-flag", "ok"},
        {Kind::allOrNone, "--no-c", "ok"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(check(row.kind, row.line), row.outcome);
    }
}

TEST(TypedRules, CallEverythingWhatItIs) {
    tarv::Program program("p");
    const auto all = program.flag("all", "");
    const auto files = program.positional<std::vector<std::string>>("file", "");
    const auto target = program.positional<std::string>("target", "");
    program.flag("dry", "").needs(target);
    program.exactlyOne(all, files).allOrNone(files, target);
    const struct {
        const char* line;
        const char* message;
    } rows[] = {{"", "one of '--all' or FILE is required"},
                {"--all a", "'--all' and FILE exclude each other"},
                {"--all --dry", "option '--dry' needs argument TARGET"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(parseLine(program, words(row.line)),
                  "2 p: " + std::string(row.message) + "\nTry 'p --help'.\n");
    }
    tarv::Program arguments("p");
    const auto one = arguments.positional<std::string>("one", "");
    const auto two = arguments.positional<std::string>("two", "");
    arguments.allOrNone(one, two);
    EXPECT_EQ(parseLine(arguments, {"a"}),
              "2 p: arguments ONE and TWO go together, but TWO is missing\nTry 'p --help'.\n");
}

TEST(TypedRules, ARuleOfAVerbHoldsForThatVerb) {
    tarv::Program program("p");
    const auto color = program.flag("color", "");
    tarv::Command& log = program.verb("log", "").does([] {});
    const auto plain = log.flag("plain", "");
    log.exactlyOne(color, plain);
    program.verb("init", "").does([] {});
    EXPECT_EQ(parseLine(program, {"init"}), "ok");
    EXPECT_EQ(parseLine(program, {"log", "--color"}), "ok");
    EXPECT_EQ(parseLine(program, {"log"}),
              "2 p: one of the options '--color' or '--plain' is required\nTry 'p log --help'.\n");
}

TEST(TypedRules, ARuleOfAProgramHoldsForItsVerbs) {
    tarv::Program program("p");
    const auto color = program.flag("color", "");
    const auto plain = program.flag("plain", "");
    program.atMostOne(color, plain);
    program.verb("log", "").does([] {});
    EXPECT_EQ(parseLine(program, {"log", "--color"}), "ok");
    EXPECT_EQ(parseLine(program, {"log", "--color", "--plain"}),
              "2 p: options '--color' and '--plain' exclude each other\nTry 'p log --help'.\n");
}

} // namespace
