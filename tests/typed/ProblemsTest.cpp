#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/CapturedAssertions.h"
#include "support/EnvironmentVariable.h"
#include "support/TypedLine.h"

namespace {

namespace tarv = tarv_3_3::typed;

enum class Paper { a4, letter };
enum class Sparse { one = 1, minus = -7 };
enum class Wide : long long { zero, one };

using Texts = std::vector<std::string>;

} // namespace

template <>
struct tarv_3_3::typed::Names<Sparse> {
    static constexpr Choice<Sparse> list[] = {{"one", Sparse::one}, {"minus-seven", Sparse::minus}};
};

namespace {

template <class Declare>
std::string problemsOf(Declare declare) {
    tarv::Program program("p");
    declare(program);
    return program.problems();
}

/// Of an option whose elements are of the type N. Compilers refuse constant bounds that are none of its
/// values.
template <class N, class Low, class High>
std::string problemsOfRange(Low low, High high) {
    volatile Low least = low;
    volatile High greatest = high;
    return problemsOf([&](tarv::Program& p) {
        p.option<N>("x", "").range(static_cast<Low>(least), static_cast<High>(greatest));
    });
}

/// A switch, if it may have that name.
void declareNamed(tarv::Command& command, const std::string& name) {
    if (name.compare(0, 3, "no-") == 0) {
        command.option<int>(name.c_str(), "");
    } else {
        command.flag(name.c_str(), "");
    }
}

TEST(TypedProblems, AreNamedWithTheirOption) {
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.flag("a", "").env("A").topic("T").hidden(); }), "");
    EXPECT_EQ(problemsOf([](tarv::Program& p) {
                  p.flag("level", "");
                  p.option<int>("x,level", "");
                  p.positional<int>("level", "");
              }),
              "p: 'level': the name is taken\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) {
                  p.flag("color", "");
                  p.option<int>("no-color", "");
              }),
              "p: 'no-color': the name is taken\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) {
                  p.option<int>("no-color", "");
                  p.flag("color", "");
              }),
              "p: 'color': the name is taken\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.flag("--level", ""); }),
              "p: '--level': names are without dashes in front\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.flag("", ""); }), "p: '': a name is empty\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.flag("a b,c=d", ""); }),
              "p: 'a b': a name has no blank and no '='\np: 'c=d': a name has no blank and no '='\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option("x", "", 1).required(); }),
              "p: 'x': it is required and has a default\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option("x", "", 0).range(1, 9); }),
              "p: 'x': its default 0 must be from 1 to 9\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option("x", "", "grey").oneOf("red", "blue"); }),
              "p: 'x': its default grey must be one of red or blue\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option("x", "", static_cast<Paper>(7)); }),
              "p: 'x': its default has no name\np: 'x': its default  must be one of a4 or letter\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option("x", "", static_cast<Sparse>(7)); }),
              "p: 'x': its default has no name\np: 'x': its default  must be one of one or minus-seven\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) {
                  p.option("x", "", std::optional<Wide>(static_cast<Wide>(0x100000001)));
              }),
              "p: 'x': its default has no name\np: 'x': its default  must be one of zero or one\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option("x", "", Sparse::minus); }), "");
    for (const char* name : {"a=", "a\tb", "a\rb"}) {
        EXPECT_EQ(problemsOf([&](tarv::Program& p) { p.flag(name, ""); }),
                  "p: '" + std::string(name) + "': a name has no blank and no '='\n");
    }
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option<int>("x", "").range(9, 1); }),
              "p: 'x': the least number of the range is over the greatest one\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option<unsigned>("x", "").range(9U, 1U); }),
              "p: 'x': the least number of the range is over the greatest one\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option<double>("x", "").range(1.5, 1.0); }),
              "p: 'x': the least number of the range is over the greatest one\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) {
                  p.positional<Texts>("a", "");
                  p.positional<Texts>("b", "");
              }),
              "p: 'b': a second list of positional arguments\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) {
                  p.rest<Texts>("a", "");
                  p.positional<int>("b", "");
              }),
              "p: 'b': nothing stands behind a rest\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) {
                  p.action("list", "");
                  p.verb("log", "");
              }),
              "p: 'p': a program has verbs or actions, not both\n");
}

TEST(TypedProblems, OfRangesAreFound) {
    const std::string isOutside = "p: 'x': a bound of the range is outside of its type\n";
    const std::string isReversed = "p: 'x': the least number of the range is over the greatest one\n";
    EXPECT_EQ((problemsOfRange<unsigned char>(-1, 9)), isOutside);
    EXPECT_EQ((problemsOfRange<unsigned char>(0, 255)), "");
    EXPECT_EQ((problemsOfRange<unsigned char>(0, 256)), isOutside);
    EXPECT_EQ((problemsOfRange<signed char>(-128, 127)), "");
    EXPECT_EQ((problemsOfRange<signed char>(-129, 127)), isOutside);
    EXPECT_EQ((problemsOfRange<signed char>(-128, 128)), isOutside);
    EXPECT_EQ((problemsOfRange<signed char>(0, 128)), isOutside);
    EXPECT_EQ((problemsOfRange<long long>(0ULL, 9223372036854775807ULL)), "");
    EXPECT_EQ((problemsOfRange<long long>(0ULL, 9223372036854775808ULL)), isOutside);
    EXPECT_EQ((problemsOfRange<int>(-1, -1)), "");
    EXPECT_EQ((problemsOfRange<int>(-1, -2)), isReversed);
    EXPECT_EQ((problemsOfRange<int>(5, -5)), isReversed);
}

TEST(TypedProblems, ASwitchIsNotNamedForWhatItTurnsOff) {
    constexpr const char* problem = ": a switch whose name begins with \"no-\" is off when it is given\n";
    for (const char* name : {"no-color", "no-", "no-no-x"}) {
        SCOPED_TRACE(name);
        const std::string quoted = "p: '" + std::string(name) + "'";
        EXPECT_EQ(problemsOf([&](tarv::Program& p) { p.flag(name, ""); }), quoted + problem);
        EXPECT_EQ(problemsOf([&](tarv::Program& p) { p.option(name, "", true); }), quoted + problem);
        EXPECT_EQ(problemsOf([&](tarv::Program& p) { p.option<int>(name, ""); }), "");
        EXPECT_EQ(problemsOf([&](tarv::Program& p) { p.option<std::vector<bool>>(name, ""); }), "");
        EXPECT_EQ(problemsOf([&](tarv::Program& p) { p.counter(name, ""); }), "");
        EXPECT_EQ(problemsOf([&](tarv::Program& p) { p.action(name, ""); }), "");
        EXPECT_EQ(problemsOf([&](tarv::Program& p) { p.positional<bool>(name, ""); }), "");
    }
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.verb("log", "").flag("plain,no-color", ""); }),
              "p log: 'no-color'" + std::string(problem));
    for (const char* name : {"no", "nocolor", "n", "color-no-", "No-color"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(problemsOf([&](tarv::Program& p) { p.flag(name, ""); }), "");
    }
}

TEST(TypedProblems, OfCountsAreFound) {
    const struct {
        unsigned least;
        unsigned most;
        const char* ofAnOption;
        const char* ofAnArgument;
    } rows[] = {{0, 0, "", ""},
                {1, 0, "p: 'x': times() is for positional arguments\n", ""},
                {0, 3, "p: 'x': times() is for positional arguments\n", ""},
                {1, 1, "p: 'x': times() is for positional arguments\n", ""},
                {3, 2,
                 "p: 'x': times() is for positional arguments\n"
                 "p: 'x': it takes fewer arguments at most than at least\n",
                 "p: 'x': it takes fewer arguments at most than at least\n"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::to_string(row.least) + " to " + std::to_string(row.most));
        EXPECT_EQ(problemsOf([&](tarv::Program& p) { p.option<Texts>("x", "").times(row.least, row.most); }),
                  row.ofAnOption);
        EXPECT_EQ(
            problemsOf([&](tarv::Program& p) { p.positional<Texts>("x", "").times(row.least, row.most); }),
            row.ofAnArgument);
    }
}

TEST(TypedProblems, OfAnEnvironmentVariableThatHoldsTooFewArgumentsAreFound) {
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.positional<Texts>("x", "").times(2, 3).env("X"); }),
              "p: 'x': it takes at least 2 arguments, and its environment variable holds one\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.positional<Texts>("x", "").env("X").times(1); }), "");
}

TEST(TypedProblems, OfWhatRefersToOthersAreFound) {
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option<int>("x", "").completeAs("files"); }),
              "p: 'x': shells complete \"file\", \"directory\" or \"none\"\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) {
                  p.option<int>("x", "").completeAs("file");
                  p.option<int>("y", "").completeAs("directory");
                  p.option<int>("z", "").completeAs("none");
              }),
              "");
    EXPECT_EQ(problemsOf([](tarv::Program& p) {
                  const auto flag = p.flag("y", "");
                  p.option<int>("x", "").goesWith(flag);
              }),
              "p: 'x': goesWith() takes actions\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option<int>("x", "").goesWith(tarv::Handle<bool>()); }),
              "p: 'x': goesWith() takes actions\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option<int>("x", "").needs(tarv::Handle<bool>()); }),
              "p: 'x': it needs an option that does not go with it\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.atMostOne(p.flag("x", "")); }),
              "p: 'p': a rule is over two options or more\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.atLeastOne(p.flag("x", ""), tarv::Handle<bool>()); }),
              "p: '': a rule is over options of another command\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) {
                  const auto x = p.flag("x", "");
                  p.atMostOne(x, p.flag("y", ""), x);
              }),
              "p: 'x': it stands twice in a rule\n");
}

TEST(TypedProblems, NamesThatNoEnvironmentVariableHasAreFound) {
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option("x", "", 1).env("X=1"); }),
              "p: 'x': the name of an environment variable holds no '='\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option("x", "", 1).env("X"); }), "");
}

TEST(TypedProblems, OfATextThatIsNoDefaultAreFound) {
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option("x", "", std::string()); }), "");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option("x", "", std::string()).oneOf("a", "b"); }),
              "p: 'x': its default  must be one of a or b\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) {
                  p.option("x", "", Texts{"a", "c"}).oneOf("a", "b");
              }),
              "p: 'x': its default c must be one of a or b\n");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.option("x", "", std::vector<bool>{true, false}); }), "");
}

TEST(TypedProblems, WhatABoundVariableHoldsIsNoDefault) {
    int level = 12;
    std::string title = "none";
    std::vector<std::string> files = {"old"};
    EXPECT_EQ(problemsOf([&](tarv::Program& p) {
                  p.bind("level", level, "").range(0, 9).required();
                  p.bind("title", title, "").oneOf("some").required();
                  p.bindPositional("file", files, "").required();
              }),
              "");
}

TEST(TypedProblems, AVerbTakesNoNameFromAbove) {
    const struct {
        const char* above;
        const char* below;
        const char* problem;
    } rows[] = {
        {"level", "level", "p log add: 'level': the name is taken by an option of the command above\n"},
        {"no-level", "level", "p log add: 'level': the name is taken\n"},
        {"level", "no-level", "p log add: 'no-level': the name is taken by an option of the command above\n"},
        {"level", "levels", ""},
        {"no-levels", "level", ""}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.above) + " " + row.below);
        tarv::Program program("p");
        declareNamed(program, row.above);
        tarv::Command& log = program.verb("log", "");
        log.option<int>("other", "");
        declareNamed(log.verb("add", ""), row.below);
        EXPECT_STREQ(program.problems(), row.problem);
    }
}

TEST(TypedProblems, ANameIsTakenByTheVerbAbove) {
    tarv::Program program("p");
    program.flag("quiet", "");
    tarv::Command& log = program.verb("log", "");
    log.flag("level", "");
    log.verb("add", "").flag("level", "");
    log.verb("show", "").flag("levels", "");
    EXPECT_STREQ(program.problems(),
                 "p log add: 'level': the name is taken by an option of the command above\n");
}

TEST(TypedProblems, AVerbHasABodyWhereAnotherCommandHasOne) {
    const auto isWithout = [](const char* where, const char* verb) {
        return std::string(where) + ": '" + verb +
               "': the verb has no body, although another command has one\n";
    };
    const auto declare = [](tarv::Program& p) {
        p.flag("verbose", "");
        p.verb("log,l", "");
        tarv::Command& remote = p.verb("remote", "");
        remote.verb("add", "");
        remote.verb("remove", "");
    };
    EXPECT_EQ(problemsOf(declare), "");
    EXPECT_EQ(problemsOf([&](tarv::Program& p) {
                  declare(p);
                  p.does([] {});
              }),
              isWithout("p", "log") + isWithout("p remote", "add") + isWithout("p remote", "remove"));
    EXPECT_EQ(problemsOf([&](tarv::Program& p) {
                  declare(p);
                  p.verb("init", "").does([] {});
              }),
              isWithout("p", "log") + isWithout("p remote", "add") + isWithout("p remote", "remove"));
    EXPECT_EQ(problemsOf([](tarv::Program& p) {
                  p.verb("log", "").does([] {});
                  p.verb("remote", "").verb("add", "").does([] {});
              }),
              "");
    EXPECT_EQ(problemsOf([](tarv::Program& p) {
                  p.verb("log", "");
                  p.verb("remote", "").verb("deep", "").verb("add", "").does([] {});
              }),
              isWithout("p", "log"));
    EXPECT_EQ(problemsOf([](tarv::Program& p) {
                  tarv::Command& remote = p.verb("remote", "").does([] {});
                  remote.verb("add", "");
              }),
              isWithout("p remote", "add"));
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.does([] {}); }), "");
    EXPECT_EQ(problemsOf([](tarv::Program& p) { p.action("list", ""); }), "");
}

TEST(TypedProblems, ABodyGivenToRunCountsAsOne) {
    const CapturedAssertions assertions;
    tarv::Program program("p");
    program.verb("log", "");
    EXPECT_STREQ(program.problems(), "");
    const char* const argv[] = {"p"};
    EXPECT_EQ(program.run(1, argv, [] { return 7; }), 7);
    EXPECT_EQ(assertions.expressions(), "p: 'log': the verb has no body, although another command has one");
}

TEST(TypedProblems, OfTwoOptionsOfOneNameTheFirstIsTaken) {
    const CapturedAssertions assertions;
    tarv::Program program("p");
    const auto level = program.flag("level", "");
    const auto other = program.option<int>("level,other", "");
    EXPECT_EQ(parseLine(program, {"--level"}), "ok");
    EXPECT_TRUE(*level && !other.given());
    EXPECT_EQ(parseLine(program, {"--other=3"}), "2 p: unknown option '--other'\nTry 'p --help'.\n");
    EXPECT_EQ(assertions.expressions(), "p: 'level': the name is taken");
}

TEST(TypedProblems, AnEnvironmentVariableThatHoldsTooFewArgumentsIsRefused) {
    const CapturedAssertions assertions;
    const EnvironmentVariable points("TARV_TEST_POINTS", "a");
    tarv::Program program("p");
    const auto point = program.positional<Texts>("point", "").times(2).env("TARV_TEST_POINTS");
    EXPECT_EQ(parseLine(program, {}), "2 p: argument POINT is needed at least 2 times\nTry 'p --help'.\n");
    EXPECT_EQ(parseLine(program, {"b", "c"}), "ok");
    EXPECT_EQ(*point, (Texts{"b", "c"}));
    EXPECT_EQ(assertions.expressions(),
              "p: 'point': it takes at least 2 arguments, and its environment variable holds one");
}

TEST(TypedProblems, AVerbBelowActionsIsShownWithThem) {
    const CapturedAssertions assertions;
    tarv::Program program("p");
    program.action("list", "");
    program.verb("log", "");
    EXPECT_EQ(parseLine(program, {"log", "--help"}), "0 Usage: p log ACTION [OPTION]...\n\nOptions:\n"
                                                     "  -h, --help  Show this help.\n\nActions:\n"
                                                     "      --list\n");
    EXPECT_EQ(assertions.expressions(), "p: 'p': a program has verbs or actions, not both");
}

TEST(TypedProblems, OfVerbsAreFoundWhateverTheCommandLine) {
    tarv::Program program("p");
    const auto level = program.option<int>("level", "");
    tarv::Command& log = program.verb("log", "");
    log.option<int>("level", "");
    const auto graph = log.flag("graph", "");
    tarv::Command& init = program.verb("init,log", "");
    init.flag("x", "").needs(graph);
    init.atMostOne(level, graph);
    program.positional<int>("file", "");
    EXPECT_STREQ(program.problems(), "p: 'file': a command with verbs takes no positional arguments\n"
                                     "p: 'log': the name of the verb is taken\n"
                                     "p log: 'level': the name is taken by an option of the command above\n"
                                     "p init: 'x': it needs an option that does not go with it\n"
                                     "p init: 'graph': a rule is over options of another command\n");
}

TEST(TypedProblems, HelpOfAMistakenProgramIsShown) {
    const CapturedAssertions assertions;
    tarv::Program program("p");
    program.flag("x", "Needs nothing.").needs(tarv::Handle<bool>());
    EXPECT_EQ(parseLine(program, {"--help"}), "0 Usage: p [OPTION]...\n\nOptions:\n"
                                              "  -x          Needs nothing.\n"
                                              "  -h, --help  Show this help.\n");
    EXPECT_EQ(assertions.expressions(), "p: 'x': it needs an option that does not go with it");
}

TEST(TypedProblems, AreToldTheAssertionHandlerOnce) {
    const CapturedAssertions assertions;
    tarv::Program program("p");
    program.flag("--x", "");
    parseLine(program, {});
    EXPECT_EQ(assertions.expressions(), "p: '--x': names are without dashes in front");
    parseLine(program, {});
    EXPECT_EQ(assertions.expressions(), "p: '--x': names are without dashes in front");
}

} // namespace
