#include <gtest/gtest.h>

#include <stdexcept>

#include "parser/Parsing.h"
#include "support/RecordingHandler.h"

namespace tarv_3_3 {
namespace {

TEST(ParseArgsVector, ParsesNothingButTheDefaultsWithoutArguments) {
    const char* const argv[] = {"program", "--level=5"};
    const struct {
        int argc;
        const char* const* argv;
    } rows[] = {{1, argv}, {0, argv}, {-1, argv}, {-2147483647 - 1, argv}, {1, nullptr}, {0, nullptr}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.argc);
        Parsing parsing(0x02);
        parsing.parser.option("level", "", vtInt32, "").defaultValue(7);
        parsing.parser.option("other", "", vtInt32, "");
        EXPECT_EQ(parsing.parser.parseArgsVector(row.argc, row.argv, &parsing.result), 0);
        EXPECT_EQ(parsing.stored(), "level default=\"7\"@1");
        EXPECT_EQ(parsing.error(), "");
    }
}

// Phase two does not run, or the defaulted option would be one without an action.
TEST(ParseArgsVector, ChecksNoRulesWithoutArguments) {
    Parsing parsing;
    parsing.parser.action("build", "", vtNull, "");
    parsing.parser.option("level", "", vtInt32, "").defaultValue(7);
    EXPECT_EQ(parsing.parse({}), 0);
    EXPECT_EQ(parsing.stored(), "level default=\"7\"@1");
}

TEST(ParseArgsVector, NeverReadsTheNameOfTheProgram) {
    Parsing parsing(0x02);
    parsing.parser.option("level", "", vtInt32, "");
    const char* const argv[] = {"--level=1", "--level=2"};
    EXPECT_EQ(parsing.parser.parseArgsVector(2, argv, &parsing.result), 0);
    EXPECT_EQ(parsing.stored(), "level@1=\"2\"@2");
    const char* const withoutName[] = {nullptr, "--level=3"};
    EXPECT_EQ(parsing.parser.parseArgsVector(2, withoutName, &parsing.result), 0);
    EXPECT_EQ(parsing.stored(), "level@1@3=\"2\"@2,\"3\"@4");
}

TEST(ParseArgsVector, ReadsNoFurtherThanTheCount) {
    Parsing parsing(0x02);
    parsing.parser.option("level", "", vtInt32, "");
    const char* const argv[] = {"program", "--level=1", "--level=2"};
    EXPECT_EQ(parsing.parser.parseArgsVector(2, argv, &parsing.result), 0);
    EXPECT_EQ(parsing.stored(), "level@1=\"1\"@2");
}

TEST(ParseArgsVector, RefusesNullAmongTheArguments) {
    Parsing parsing;
    parsing.parser.option("level", "", vtInt32, "");
    parsing.parser.setLastError("earlier");
    const char* const first[] = {"program", nullptr, "--level=1", "--level=2"};
    const char* const middle[] = {"program", "--level=1", nullptr, "--level=2"};
    const char* const last[] = {"program", "--level=1", "--level=2", nullptr};
    for (const char* const* argv : {first, middle, last}) {
        EXPECT_EQ(parsing.parser.parseArgsVector(4, argv, &parsing.result), 3);
    }
    EXPECT_EQ(parsing.parser.parseArgsVector(2, nullptr, &parsing.result), 3);
    EXPECT_EQ(parsing.stored(), "");
    EXPECT_EQ(parsing.error(), "earlier");
    EXPECT_EQ(parsing.parse({"--level=3"}), 0);
    EXPECT_EQ(parsing.stored(), "level@1=\"3\"@2");
}

TEST(ParseArgsVector, RecordsTheDefaultsBeforeAnyArgument) {
    Parsing parsing;
    parsing.parser.option("level,l", "", vtInt32, "").defaultValue(7);
    parsing.parser.option("size", "", vtInt32, "").defaultValue(8);
    EXPECT_EQ(parsing.parse({"--level=5"}), 0);
    EXPECT_EQ(parsing.stored(), "l@4=\"5\"@5 default=\"7\"@2 level@4=\"5\"@5 default=\"7\"@1 "
                                "size default=\"8\"@3");
}

TEST(ParseArgsVector, RecordsTheDefaultsEvenWhenTheArgumentsFail) {
    Parsing parsing(0x02);
    parsing.parser.option("level", "", vtInt32, "").defaultValue(7);
    EXPECT_EQ(parsing.parse({"x"}), 2);
    EXPECT_EQ(parsing.stored(), "level default=\"7\"@1");
}

TEST(ParseArgsVector, AddsUpInOneResult) {
    Parsing parsing;
    parsing.parser.option("level", "", vtInt32, "");
    parsing.parser.option("size", "", vtInt32, "");
    EXPECT_EQ(parsing.parse({"--level=1"}), 0);
    EXPECT_EQ(parsing.parseStream("--size=2\n--level=3"), 0);
    EXPECT_EQ(parsing.parse({"--level=4", "--", "a"}), 0);
    EXPECT_EQ(parsing.parse({"--", "b"}), 0);
    EXPECT_EQ(parsing.stored(), "level@1@5@7=\"1\"@2,\"3\"@6,\"4\"@8 size@3=\"2\"@4");
    EXPECT_EQ(parsing.plainArguments(), "[a][b]");
}

TEST(ParseArgsVector, ParsesForStatusAndEventsAloneWithoutAResult) {
    Parsing parsing(0x02 | 0x04);
    RecordingHandler handler(parsing.positions);
    parsing.parser.addHandler(&handler);
    parsing.parser.option("level", "", vtInt32, "").defaultValue(7);
    parsing.parser.option("file", "", vtString, "").positional();
    parsing.parser.addOptionFileOption("", "");
    const char* const argv[] = {"program", "--level=5", "--option-file=missing", "a", "--", "b"};
    EXPECT_EQ(parsing.parser.parseArgsVector(6, argv, nullptr), 0);
    EXPECT_EQ(handler.events,
              "option level; value level=\"5\"@2; option option-file; value option-file=\"missing\"@4; "
              "option level; value file=\"a\"@6; option level; value file=\"b\"@9");
    const char* const failing[] = {"program", "--level=x"};
    EXPECT_EQ(parsing.parser.parseArgsVector(2, failing, nullptr), 2);
    EXPECT_EQ(parsing.error(), "Value validation problem in argument '--level=x': "
                               "Option 'level' can not parse 'x' value, requires a type 'integer' here.");
}

TEST(PhaseOne, DropsUnknownArgumentsWithoutTheFlag) {
    Parsing parsing;
    RecordingHandler handler(parsing.positions);
    parsing.parser.addHandler(&handler);
    parsing.parser.option("level", "", vtInt32, "");
    EXPECT_EQ(parsing.parse({"x", "--unknown=1", "", "--level=5", "-"}), 0);
    EXPECT_EQ(parsing.stored(), "level@1=\"5\"@2");
    EXPECT_EQ(handler.events,
              "unknown x; unknown --unknown=1; unknown ; option level; value level=\"5\"@2; unknown -");
    EXPECT_EQ(parsing.error(), "");
}

TEST(PhaseOne, RefusesUnknownArgumentsUnderTheFlag) {
    for (const char* const argument : {"x", "--unknown=1", "-", "---x", "it's"}) {
        SCOPED_TRACE(argument);
        Parsing parsing(0x02);
        parsing.parser.option("level", "", vtInt32, "");
        EXPECT_EQ(parsing.parse({"--level=5", argument, "--level=6"}), 2);
        EXPECT_EQ(parsing.error(), std::string("Unknown option: ") + argument);
        EXPECT_EQ(parsing.stored(), "level@1=\"5\"@2");
    }
}

TEST(PhaseOne, DropsAnUnknownArgumentThatAHandlerRefusesDespiteTheFlag) {
    Parsing parsing(0x02);
    RecordingHandler accepting(parsing.positions);
    RecordingHandler refusing(parsing.positions);
    refusing.unknownAnswer = false;
    parsing.parser.addHandler(&accepting);
    parsing.parser.addHandler(&refusing);
    EXPECT_EQ(parsing.parse({"x", "y"}), 0);
    EXPECT_EQ(accepting.events, "unknown x; unknown y");
    EXPECT_EQ(refusing.events, "unknown x; unknown y");
    EXPECT_EQ(parsing.error(), "");
}

TEST(PhaseOne, PrefersTheNamedOptionWhereBothRecognizersTakeAnArgument) {
    Parsing parsing;
    parsing.parser.option("file", "", vtString, "").positional();
    parsing.parser.option("level", "", vtString, "");
    EXPECT_EQ(parsing.parse({"--level=1", "--other", "--lev=2", "a"}), 0);
    EXPECT_EQ(parsing.stored(), "file@3@7=\"--other\"@4,\"a\"@8 level@1@5=\"1\"@2,\"2\"@6");
}

TEST(PhaseOne, HandsTheFlagsToThePositionalRecognizer) {
    Parsing dashes(0x02 | 0x08);
    dashes.parser.option("file", "", vtString, "").positional();
    EXPECT_EQ(dashes.parse({"a", "-x"}), 2);
    EXPECT_EQ(dashes.error(), "Unknown option: -x");
    EXPECT_EQ(dashes.stored(), "file@1=\"a\"@2");

    Parsing rest(0x10);
    rest.parser.option("file", "", vtString, "").positional();
    rest.parser.option("level", "", vtString, "");
    EXPECT_EQ(rest.parse({"--level=1", "a", "--level=2", "--", "b"}), 0);
    EXPECT_EQ(rest.stored(), "file@3@5@7@9=\"a\"@4,\"--level=2\"@6,\"--\"@8,\"b\"@10 level@1=\"1\"@2");
    EXPECT_EQ(rest.plainArguments(), "");
}

TEST(PhaseOne, EndsAtTheFirstFailureWithTheStatusOfTheRecognizer) {
    Parsing parsing;
    RecordingHandler handler(parsing.positions);
    handler.refusedValues = {"3"};
    parsing.parser.addHandler(&handler);
    parsing.parser.option("level", "", vtInt32, "");
    EXPECT_EQ(parsing.parse({"--level=1", "--level=x", "--level=2", "--", "a"}), 2);
    EXPECT_EQ(parsing.error(), "Value validation problem in argument '--level=x': "
                               "Option 'level' can not parse 'x' value, requires a type 'integer' here.");
    EXPECT_EQ(parsing.parse({"--level=3", "--level=4"}), 1);
    EXPECT_EQ(parsing.error(), "Value '3' is not valid for option 'level' in argument '--level=3'");
    EXPECT_EQ(parsing.stored(), "level@1=\"1\"@2");
    EXPECT_EQ(parsing.plainArguments(), "");
}

TEST(PhaseOne, LeavesTheMarkerAndWhatStandsBehindItInTheVector) {
    Parsing parsing;
    parsing.parser.option("level", "", vtInt32, "");
    std::vector<std::string> arguments = {"--level=1", "x", "end", "--level=2", "end"};
    std::string error = "untouched";
    EXPECT_EQ(parsing.parser.parse_phase_one("end", arguments, &parsing.result, error), 0);
    EXPECT_EQ(arguments, (std::vector<std::string>{"end", "--level=2", "end"}));
    EXPECT_EQ(error, "untouched");
    EXPECT_EQ(parsing.stored(), "level@1=\"1\"@2");
}

TEST(PhaseOne, WritesItsMessageIntoTheErrorGiven) {
    Parsing parsing(0x02);
    std::vector<std::string> arguments = {"x", "y"};
    std::string error;
    EXPECT_EQ(parsing.parser.parse_phase_one("--", arguments, &parsing.result, error), 2);
    EXPECT_EQ(error, "Unknown option: x");
    EXPECT_EQ(parsing.error(), "");
    EXPECT_EQ(arguments, (std::vector<std::string>{"x", "y"}));
}

/// Notes the steps of a parse; each returns what the test wants or throws.
class StepByStepParser : public BasicParser {
public:
    StepByStepParser() : BasicParser(0) {}

    int parseVector(std::vector<std::string>& arguments, IParseResult* result) override {
        steps += "vector(" + std::to_string(arguments.size()) + ") ";
        if (throwFromVector) {
            throw std::runtime_error("thrown by a test");
        }
        return BasicParser::parseVector(arguments, result);
    }

    int parse_phase_one(const std::string& endMarker, std::vector<std::string>& arguments,
                        IParseResult* result, std::string& error) override {
        steps += "one(" + endMarker + ") ";
        if (throwFromPhaseOne) {
            throw std::runtime_error("thrown by a test");
        }
        return phaseOne != 0 ? phaseOne : BasicParser::parse_phase_one(endMarker, arguments, result, error);
    }

    int parse_phase_two(const std::string& endMarker, std::vector<std::string>& arguments, IParseResult*,
                        std::string& error) override {
        steps += "two(" + endMarker + "," + std::to_string(arguments.size()) + ") ";
        error = "message of phase two";
        return phaseTwo;
    }

    std::string steps;
    int phaseOne = 0;
    int phaseTwo = 0;
    bool throwFromVector = false;
    bool throwFromPhaseOne = false;
};

TEST(ParseVector, RunsItsStepsInOrder) {
    StepByStepParser parser;
    ParseResult result;
    const char* const argv[] = {"program", "x", "--", "a"};
    parser.phaseTwo = 17;
    EXPECT_EQ(parser.parseArgsVector(4, argv, &result), 17);
    EXPECT_EQ(parser.steps, "vector(3) one(--) two(--,0) ");
    EXPECT_STREQ(parser.getErrorDesc(), "message of phase two");
    const char* text = nullptr;
    EXPECT_EQ(result.getFirstArgument(&text), 0);
    EXPECT_STREQ(text, "a");
}

TEST(ParseVector, EndsBehindAFailedPhaseOne) {
    StepByStepParser parser;
    ParseResult result;
    parser.phaseOne = 23;
    const char* const argv[] = {"program", "--", "a"};
    EXPECT_EQ(parser.parseArgsVector(3, argv, &result), 23);
    EXPECT_EQ(parser.steps, "vector(2) one(--) ");
    const char* text = nullptr;
    EXPECT_EQ(result.getFirstArgument(&text), 1);
}

TEST(ParseVector, TurnsAStandardExceptionIntoAStatusAndAMessage) {
    StepByStepParser parser;
    ParseResult result;
    parser.throwFromPhaseOne = true;
    const char* const argv[] = {"program", "x"};
    EXPECT_EQ(parser.parseArgsVector(2, argv, &result), 4);
    EXPECT_STREQ(parser.getErrorDesc(), "Unidentified problem detected.");
    parser.setLastError("");
    EXPECT_EQ(parser.parseStream("x", &result), 4);
    EXPECT_STREQ(parser.getErrorDesc(), "Unidentified problem detected.");
}

TEST(ParseVector, LeavesAStandardExceptionAroundItToItsCallers) {
    StepByStepParser parser;
    ParseResult result;
    parser.throwFromVector = true;
    parser.setLastError("earlier");
    const char* const argv[] = {"program", "x"};
    EXPECT_EQ(parser.parseArgsVector(2, argv, &result), 3);
    EXPECT_EQ(parser.parseStream("x", &result), 3);
    EXPECT_STREQ(parser.getErrorDesc(), "earlier");
}

} // namespace
} // namespace tarv_3_3
