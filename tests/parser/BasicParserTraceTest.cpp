#include <gtest/gtest.h>

#include "parser/Parsing.h"
#include "support/CapturedLog.h"

namespace tarv_3_3 {
namespace {

constexpr char logSwitch[] = "tarvoption=tarvlogenable=1";

TEST(Trace, TellsTheWholeRoadOfACommandLine) {
    Parsing parsing;
    parsing.parser.option("level,l", "", vtInt32, "");
    parsing.parser.option("quiet", "", vtBool, "");
    const CapturedLog log;
    EXPECT_EQ(parsing.parse({logSwitch, "--lev=3,4", "x", "--no-q", "-l", "5", "--", "a"}), 0);
    EXPECT_EQ(log.text(), "PositionalOptionsParser: recognizing argument '--lev=3,4'\n"
                          "AbbreviationParser: recognizing argument '--lev=3,4'\n"
                          "AbbreviationParser: best match option for 'lev' "
                          "in argument '--lev=3,4' is 'level'\n"
                          "AbbreviationParser: parsing argument '--lev=3,4'\n"
                          "AbbreviationParser: detected option: 'level'\n"
                          "AbbreviationParser: value from the same argument taken: '3,4'\n"
                          "AbbreviationParser: sent event on option parsed\n"
                          "AbbreviationParser: adding values to result container:\n"
                          "AbbreviationParser: using tokenizer on char: ','\n"
                          "AbbreviationParser: value is: '3'\n"
                          "AbbreviationParser: sent event on value parsed, option: 'level', value: '3'\n"
                          "AbbreviationParser: value is: '4'\n"
                          "AbbreviationParser: sent event on value parsed, option: 'level', value: '4'\n"
                          "AbbreviationParser: stored option to result container.\n"
                          "AbbreviationParser: removing argument: '--lev=3,4'\n"
                          "PositionalOptionsParser: recognizing argument 'x'\n"
                          "AbbreviationParser: recognizing argument 'x'\n"
                          "ignoring x\n"
                          "PositionalOptionsParser: recognizing argument '--no-q'\n"
                          "AbbreviationParser: recognizing argument '--no-q'\n"
                          "AbbreviationParser: best match option for 'no-q' "
                          "in argument '--no-q' is 'no-quiet'\n"
                          "AbbreviationParser: parsing argument '--no-q'\n"
                          "AbbreviationParser: detected option: 'quiet'\n"
                          "AbbreviationParser: sent event on option parsed\n"
                          "AbbreviationParser: adding values to result container:\n"
                          "AbbreviationParser: using tokenizer on char: ','\n"
                          "AbbreviationParser: value is: '0'\n"
                          "AbbreviationParser: sent event on value parsed, option: 'quiet', value: '0'\n"
                          "AbbreviationParser: stored option to result container.\n"
                          "AbbreviationParser: removing argument: '--no-q'\n"
                          "PositionalOptionsParser: recognizing argument '-l'\n"
                          "AbbreviationParser: recognizing argument '-l'\n"
                          "AbbreviationParser: best match option for 'l' in argument '-l' is 'l'\n"
                          "AbbreviationParser: parsing argument '-l'\n"
                          "AbbreviationParser: detected option: 'level'\n"
                          "AbbreviationParser: no value in the same argument, looking next\n"
                          "AbbreviationParser: got value from the next argument: '5'\n"
                          "AbbreviationParser: sent event on option parsed\n"
                          "AbbreviationParser: adding values to result container:\n"
                          "AbbreviationParser: using tokenizer on char: ','\n"
                          "AbbreviationParser: value is: '5'\n"
                          "AbbreviationParser: sent event on value parsed, option: 'level', value: '5'\n"
                          "AbbreviationParser: stored option to result container.\n"
                          "AbbreviationParser: removing argument: '-l'\n"
                          "AbbreviationParser: removing argument: '5'\n"
                          "collectNonparsingArguments: stored argument: 'a'\n");
    EXPECT_EQ(parsing.positions.taken(), 8);
}

TEST(Trace, TellsHowPlainArgumentsArePositional) {
    Parsing parsing(0x04 | 0x20);
    parsing.parser.option("file", "", vtInt32, "").positional();
    parsing.parser.setLastError("earlier");
    const CapturedLog log;
    EXPECT_EQ(parsing.parse({logSwitch, "--", "1", "x"}), 2);
    EXPECT_EQ(log.text(), "collectNonparsingArguments: stored argument: '1'\n"
                          "PositionalOptionsParser: recognizing argument '1'\n"
                          "collectNonparsingArguments: recognize result: 0, message: earlier\n"
                          "PositionalOptionsParser: parsing argument '1'\n"
                          "PositionalOptionsParser: option is 'file'\n"
                          "PositionalOptionsParser: adding values to result container:\n"
                          "PositionalOptionsParser: not using tokenizer\n"
                          "PositionalOptionsParser: stored option to result container.\n"
                          "PositionalOptionsParser: removing argument: '1'\n"
                          "collectNonparsingArguments: parse result: 0, message: earlier\n"
                          "collectNonparsingArguments: stored argument: 'x'\n"
                          "PositionalOptionsParser: recognizing argument 'x'\n"
                          "collectNonparsingArguments: recognize result: 0, message: earlier\n"
                          "PositionalOptionsParser: parsing argument 'x'\n"
                          "PositionalOptionsParser: option is 'file'\n"
                          "PositionalOptionsParser: adding values to result container:\n"
                          "PositionalOptionsParser: not using tokenizer\n"
                          "PositionalOptionsParser: Value validation problem in argument 'x': "
                          "Option 'file' can not parse 'x' value, requires a type 'integer' here.\n"
                          "collectNonparsingArguments: parse result: 2, message: Value validation "
                          "problem in argument 'x': "
                          "Option 'file' can not parse 'x' value, requires a type 'integer' here.\n");
}

TEST(Trace, TellsThatPlainArgumentsAreNotPositional) {
    Parsing parsing(0x04);
    const CapturedLog log;
    EXPECT_EQ(parsing.parse({logSwitch, "--", "a"}), 0);
    EXPECT_EQ(log.text(), "collectNonparsingArguments: stored argument: 'a'\n"
                          "PositionalOptionsParser: recognizing argument 'a'\n"
                          "collectNonparsingArguments: recognize result: 1, message: \n");
}

TEST(Trace, EndsWithTheUnknownArgumentUnderTheFlag) {
    Parsing parsing(0x02);
    const CapturedLog log;
    EXPECT_EQ(parsing.parse({logSwitch, "x"}), 2);
    EXPECT_EQ(log.text(), "PositionalOptionsParser: recognizing argument 'x'\n"
                          "AbbreviationParser: recognizing argument 'x'\n");
    EXPECT_EQ(parsing.error(), "Unknown option: x");
}

TEST(Trace, IsSilentUnlessTheSwitchIsTheFirstArgument) {
    const std::vector<const char*> lines[] = {
        {"x"},
        {"x", logSwitch},
        {"tarvoption=tarvlogenable=0"},
        {"tarvoption=tarvlogenable=1 "},
        {"--tarvoption=tarvlogenable=1"},
        {"tarvoption=tarvlogenable"},
        {"--", logSwitch},
    };
    for (const auto& line : lines) {
        SCOPED_TRACE(line.front());
        Parsing parsing;
        const CapturedLog log;
        EXPECT_EQ(parsing.parse(line), 0);
        EXPECT_EQ(log.text(), "");
        EXPECT_FALSE(internal::tarvLogEnabled);
    }
}

TEST(Trace, TakesTheSwitchInSecondPlaceForAnOrdinaryArgument) {
    Parsing parsing(0x02);
    parsing.parser.option("level", "", vtInt32, "");
    EXPECT_EQ(parsing.parse({"--level=1", logSwitch}), 2);
    EXPECT_EQ(parsing.error(), "Unknown option: tarvoption=tarvlogenable=1");

    Parsing twice(0x02);
    const CapturedLog log;
    EXPECT_EQ(twice.parse({logSwitch, logSwitch}), 2);
    EXPECT_EQ(twice.error(), "Unknown option: tarvoption=tarvlogenable=1");
    EXPECT_EQ(log.text(), "PositionalOptionsParser: recognizing argument 'tarvoption=tarvlogenable=1'\n"
                          "AbbreviationParser: recognizing argument 'tarvoption=tarvlogenable=1'\n");
}

TEST(Trace, IsNotSeenByHandlersNorStored) {
    Parsing parsing(0x02);
    parsing.parser.option("file", "", vtString, "").positional();
    const CapturedLog log;
    EXPECT_EQ(parsing.parse({logSwitch}), 0);
    EXPECT_EQ(parsing.stored(), "");
    EXPECT_EQ(log.text(), "");
    EXPECT_TRUE(internal::tarvLogEnabled);
}

TEST(Trace, IsDecidedAnewByEveryParseAndStream) {
    Parsing parsing;
    {
        const CapturedLog log;
        EXPECT_EQ(parsing.parse({logSwitch, "x"}), 0);
        EXPECT_TRUE(internal::tarvLogEnabled);
        EXPECT_EQ(parsing.parseStream("y"), 0);
        EXPECT_FALSE(internal::tarvLogEnabled);
        EXPECT_EQ(parsing.parseStream(" tarvoption=tarvlogenable=1\r\nz\n"), 0);
        EXPECT_TRUE(internal::tarvLogEnabled);
        EXPECT_EQ(parsing.parseStream(""), 0);
        EXPECT_FALSE(internal::tarvLogEnabled);
        EXPECT_EQ(log.text(), "PositionalOptionsParser: recognizing argument 'x'\n"
                              "AbbreviationParser: recognizing argument 'x'\n"
                              "ignoring x\n"
                              "PositionalOptionsParser: recognizing argument 'z'\n"
                              "AbbreviationParser: recognizing argument 'z'\n"
                              "ignoring z\n");
    }
}

// Without arguments phase one does not run, which alone resets the switch.
TEST(Trace, StaysOnOverACommandLineWithoutArguments) {
    Parsing parsing;
    const CapturedLog log;
    EXPECT_EQ(parsing.parse({logSwitch}), 0);
    EXPECT_EQ(parsing.parse({}), 0);
    EXPECT_TRUE(internal::tarvLogEnabled);
}

} // namespace
} // namespace tarv_3_3
