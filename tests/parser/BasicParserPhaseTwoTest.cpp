#include <gtest/gtest.h>

#include "parser/Parsing.h"

namespace tarv_3_3 {
namespace {

/// Actions `build` (`b`, `make`) and `clean`; modifiers `jobs` of build, `force` of both, `deep` of
/// clean; `extra` shares the tag "fast" with build only; `global` goes with every action.
class PhaseTwo : public ::testing::Test {
protected:
    PhaseTwo() {
        BasicParser& parser = parsing.parser;
        parser.action("build,make,b", "", vtNull, "").tag("fast");
        parser.action("clean", "", vtString, "");
        parser.modifier("jobs,parallel,j", "build", "", vtInt32, "");
        parser.modifier("force", "clean,build", "", vtNull, "");
        parser.modifier("deep", "clean", "", vtBool, "");
        parser.modifier("extra", "fast", "", vtNull, "");
        parser.option("global", "", vtNull, "");
    }

    Parsing parsing;
};

TEST_F(PhaseTwo, AcceptsWhatFitsTogether) {
    const std::vector<const char*> lines[] = {
        {},
        {"unknown"},
        {"--", "plain"},
        {"--build"},
        {"--build", "--make", "-b", "--build"},
        {"--build", "--jobs=1"},
        {"--jobs=1", "-b"},
        {"--build", "--force", "--extra", "--global", "--parallel=2"},
        {"--clean=all", "--clean=more", "--force", "--no-deep"},
        {"--clean=all", "--global"},
    };
    for (const auto& line : lines) {
        SCOPED_TRACE(line.empty() ? "" : line.back());
        ParseResult result;
        std::vector<const char*> argv = line;
        argv.insert(argv.begin(), "program");
        EXPECT_EQ(parsing.parser.parseArgsVector(static_cast<int>(argv.size()), argv.data(), &result), 0);
        EXPECT_EQ(parsing.error(), "");
    }
}

TEST_F(PhaseTwo, RefusesTwoActionsAndNamesTheLaterOfTheirNamesFirst) {
    EXPECT_EQ(parsing.parse({"--clean=all", "--build"}), 2);
    EXPECT_EQ(parsing.error(),
              "Action '-clean' and action '-build' were defined, but only one action possible.");
}

TEST_F(PhaseTwo, RefusesTwoActionsInWhateverOrderTheyWereGiven) {
    EXPECT_EQ(parsing.parse({"--build", "--clean=all"}), 2);
    EXPECT_EQ(parsing.error(),
              "Action '-clean' and action '-build' were defined, but only one action possible.");
}

// The entries are walked by all names, the message has the first ones: "d" is met before "m".
TEST(PhaseTwoNames, OrderActionsByTheFirstOfAllTheirNames) {
    Parsing parsing;
    parsing.parser.action("zip,d", "", vtNull, "");
    parsing.parser.action("move", "", vtNull, "");
    EXPECT_EQ(parsing.parse({"--zip", "--move"}), 2);
    EXPECT_EQ(parsing.error(),
              "Action '-move' and action '-zip' were defined, but only one action possible.");
}

TEST_F(PhaseTwo, ChecksTheActionsBeforeTheModifiers) {
    EXPECT_EQ(parsing.parse({"--build", "--deep", "--clean=all"}), 2);
    EXPECT_EQ(parsing.error(),
              "Action '-clean' and action '-build' were defined, but only one action possible.");
}

TEST_F(PhaseTwo, RefusesAModifierOfAnotherAction) {
    const struct {
        std::vector<const char*> line;
        const char* error;
    } rows[] = {
        {{"--clean=all", "--jobs=1"}, "Action '-clean' doesn't accept option '-jobs'"},
        {{"-j", "1", "--clean=all"}, "Action '-clean' doesn't accept option '-jobs'"},
        {{"-b", "--deep"}, "Action '-build' doesn't accept option '-deep'"},
        {{"--clean=all", "--extra"}, "Action '-clean' doesn't accept option '-extra'"},
        {{"--clean=all", "--jobs=1", "--extra"}, "Action '-clean' doesn't accept option '-extra'"},
        {{"--make", "--global", "--no-deep"}, "Action '-build' doesn't accept option '-deep'"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.error);
        ParseResult result;
        std::vector<const char*> argv = row.line;
        argv.insert(argv.begin(), "program");
        EXPECT_EQ(parsing.parser.parseArgsVector(static_cast<int>(argv.size()), argv.data(), &result), 2);
        EXPECT_EQ(parsing.error(), row.error);
    }
}

TEST_F(PhaseTwo, RefusesOptionsWithoutAnAction) {
    for (const char* const option : {"--jobs=1", "--global", "--force"}) {
        SCOPED_TRACE(option);
        ParseResult result;
        const char* const argv[] = {"program", option};
        parsing.parser.setLastError("");
        EXPECT_EQ(parsing.parser.parseArgsVector(2, argv, &result), 2);
        EXPECT_EQ(parsing.error(), "No action defined.");
    }
}

TEST_F(PhaseTwo, CountsADefaultedOptionAsAnOptionWithoutAnAction) {
    parsing.parser.option("level", "", vtInt32, "").defaultValue(7);
    EXPECT_EQ(parsing.parse({"unknown"}), 2);
    EXPECT_EQ(parsing.error(), "No action defined.");
}

TEST_F(PhaseTwo, AcceptsADefaultedModifierOfAnotherAction) {
    parsing.parser.modifier("depth", "build", "", vtInt32, "").defaultValue(7);
    EXPECT_EQ(parsing.parse({"--clean=all"}), 0);
    EXPECT_EQ(parsing.parse({"--depth=1"}), 2);
    EXPECT_EQ(parsing.error(), "Action '-clean' doesn't accept option '-depth'");
}

// Defaults of an action make an entry, and entries are what counts.
TEST(PhaseTwoDefaults, TakeADefaultedActionForAGivenOne) {
    Parsing parsing;
    parsing.parser.action("build", "", vtString, "").defaultValue("all");
    parsing.parser.action("clean", "", vtNull, "");
    EXPECT_EQ(parsing.parse({"unknown"}), 0);
    EXPECT_EQ(parsing.parse({"--clean"}), 2);
    EXPECT_EQ(parsing.error(),
              "Action '-clean' and action '-build' were defined, but only one action possible.");
}

TEST(PhaseTwoDefaults, AcceptOptionsWhereNoActionIsDeclared) {
    Parsing parsing;
    parsing.parser.option("level", "", vtInt32, "").defaultValue(7);
    parsing.parser.modifier("jobs", "build", "", vtInt32, "");
    EXPECT_EQ(parsing.parse({"--jobs=1", "unknown"}), 0);
}

TEST_F(PhaseTwo, ChecksWhatEarlierParsesStored) {
    EXPECT_EQ(parsing.parse({"--build"}), 0);
    EXPECT_EQ(parsing.parse({"--jobs=1"}), 0);
    EXPECT_EQ(parsing.parse({"--clean=all"}), 2);
    EXPECT_EQ(parsing.error(),
              "Action '-clean' and action '-build' were defined, but only one action possible.");
    EXPECT_EQ(parsing.parse({"unknown"}), 2);
    EXPECT_EQ(parsing.parse({}), 0);
}

TEST_F(PhaseTwo, LeavesEverythingStoredWhenARuleIsBroken) {
    EXPECT_EQ(parsing.parse({"--build", "--deep", "--", "a"}), 2);
    EXPECT_EQ(parsing.stored(), "b@1 build@1 deep@2=\"1\"@3 make@1");
    EXPECT_EQ(parsing.plainArguments(), "[a]");
}

TEST_F(PhaseTwo, EndsAtAnEntryThatThisParserDoesNotKnow) {
    BasicParser stranger(0);
    stranger.option("strange", "", vtNull, "");
    const char* const argv[] = {"program", "--strange"};
    EXPECT_EQ(stranger.parseArgsVector(2, argv, &parsing.result), 0);
    parsing.parser.setLastError("earlier");
    EXPECT_EQ(parsing.parse({"--build"}), 1);
    EXPECT_EQ(parsing.error(), "earlier");
}

TEST(PhaseTwoNames, MustBeKnownWhereNoActionIsDeclaredEither) {
    BasicParser stranger(0);
    stranger.option("strange", "", vtNull, "");
    Parsing parsing;
    parsing.parser.option("level", "", vtNull, "");
    const char* const argv[] = {"program", "--strange"};
    EXPECT_EQ(stranger.parseArgsVector(2, argv, &parsing.result), 0);
    parsing.parser.setLastError("earlier");
    EXPECT_EQ(parsing.parse({"--level"}), 1);
    EXPECT_EQ(parsing.error(), "earlier");
    EXPECT_EQ(parsing.stored(), "level@2 strange@1");
    stranger.option("level", "", vtNull, "");
    EXPECT_EQ(stranger.parseArgsVector(2, argv, &parsing.result), 0);
}

TEST(PhaseTwoNames, MustAllBeKnownInWhateverOrderTheyWereStored) {
    const std::vector<const char*> lines[] = {
        {"program", "--level", "--strange"},
        {"program", "--strange", "--level"},
        {"program", "--level", "--other", "--strange"},
    };
    for (const auto& line : lines) {
        SCOPED_TRACE(line[1]);
        BasicParser stranger(0);
        Parsing parsing;
        for (const char* const name : {"level", "other"}) {
            stranger.option(name, "", vtNull, "");
            parsing.parser.option(name, "", vtNull, "");
        }
        stranger.option("strange", "", vtNull, "");
        const int count = static_cast<int>(line.size());
        EXPECT_EQ(stranger.parseArgsVector(count, line.data(), &parsing.result), 0);
        EXPECT_EQ(parsing.parseStream(""), 1);
        EXPECT_EQ(parsing.error(), "");
    }
}

// Unknown names are met in the order of all names as well: "c" comes before the second action.
TEST(PhaseTwoNames, EndWhereTheFirstUnknownOneOrSecondActionIs) {
    const struct {
        const char* option;
        int status;
        const char* error;
    } rows[] = {
        {"a", 1, "earlier"},
        {"c", 1, "earlier"},
        {"e", 2, "Action '-d' and action '-b' were defined, but only one action possible."},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.option);
        BasicParser stranger(0);
        stranger.option(row.option, "", vtNull, "").synonym("strange");
        Parsing parsing;
        parsing.parser.option("strange", "", vtNull, "");
        parsing.parser.action("d", "", vtNull, "");
        parsing.parser.action("b", "", vtNull, "");
        const char* const argv[] = {"program", "--strange"};
        EXPECT_EQ(stranger.parseArgsVector(2, argv, &parsing.result), 0);
        parsing.parser.setLastError("earlier");
        EXPECT_EQ(parsing.parse({"-d", "-b"}), row.status);
        EXPECT_EQ(parsing.error(), row.error);
    }
}

TEST_F(PhaseTwo, ReadsTheResultAlone) {
    EXPECT_EQ(parsing.parse({"--build"}), 0);
    std::vector<std::string> arguments = {"--clean=all", "--"};
    std::string error = "untouched";
    EXPECT_EQ(parsing.parser.parse_phase_two("--", arguments, &parsing.result, error), 0);
    EXPECT_EQ(arguments, (std::vector<std::string>{"--clean=all", "--"}));
    EXPECT_EQ(error, "untouched");
    EXPECT_EQ(parsing.parser.parse_phase_two("--", arguments, nullptr, error), 0);
}

TEST_F(PhaseTwo, StoresTheMessageOfTwoActionsAsTheLastErrorAsWell) {
    EXPECT_EQ(parsing.parse({"--build", "--clean=all"}), 2);
    parsing.parser.setLastError("");
    std::vector<std::string> arguments;
    std::string error;
    EXPECT_EQ(parsing.parser.parse_phase_two("--", arguments, &parsing.result, error), 2);
    EXPECT_EQ(error, "Action '-clean' and action '-build' were defined, but only one action possible.");
    EXPECT_EQ(parsing.error(),
              "Action '-clean' and action '-build' were defined, but only one action possible.");
}

TEST_F(PhaseTwo, WritesItsOtherMessagesIntoTheErrorGivenAlone) {
    EXPECT_EQ(parsing.parse({"--build", "--deep"}), 2);
    parsing.parser.setLastError("");
    std::vector<std::string> arguments;
    std::string error;
    EXPECT_EQ(parsing.parser.parse_phase_two("--", arguments, &parsing.result, error), 2);
    EXPECT_EQ(error, "Action '-build' doesn't accept option '-deep'");
    EXPECT_EQ(parsing.error(), "");
}

} // namespace
} // namespace tarv_3_3
