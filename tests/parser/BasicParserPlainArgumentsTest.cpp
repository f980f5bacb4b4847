#include <gtest/gtest.h>

#include "parser/Parsing.h"
#include "support/RecordingHandler.h"

namespace tarv_3_3 {
namespace {

TEST(PlainArgumentsOfAParse, AreWhatStandsBehindTheFirstEndMarker) {
    const struct {
        const char* line;
        std::vector<const char*> arguments;
        const char* plain;
    } rows[] = {
        {"none", {"x"}, ""},
        {"marker only", {"--"}, ""},
        {"two behind the marker", {"x", "--", "b", "c"}, "[b][c]"},
        {"marker in front", {"--", "b"}, "[b]"},
        {"second marker is plain", {"--", "--", "b", "--"}, "[--][b][--]"},
        {"options are plain", {"--", "--level=5", "-l"}, "[--level=5][-l]"},
        {"empty argument", {"--", "", "b"}, "[][b]"},
        {"longer than the marker", {"---", "--=", "-- "}, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        Parsing parsing;
        EXPECT_EQ(parsing.parse(row.arguments), 0);
        EXPECT_EQ(parsing.plainArguments(), row.plain);
        EXPECT_EQ(parsing.stored(), "");
    }
}

TEST(PlainArgumentsOfAParse, TakeAPositionIndexEach) {
    Parsing parsing;
    parsing.parser.option("level", "", vtInt32, "");
    EXPECT_EQ(parsing.parse({"--level=1", "--", "a", "b", "c"}), 0);
    EXPECT_EQ(parsing.positions.taken(), 5);
    EXPECT_EQ(parsing.parse({"--level=2"}), 0);
    EXPECT_EQ(parsing.stored(), "level@1@6=\"1\"@2,\"2\"@7");
}

TEST(PlainArgumentsOfAParse, AreNotOfferedToThePositionalOptionWithoutTheFlag) {
    Parsing parsing;
    RecordingHandler handler(parsing.positions);
    parsing.parser.addHandler(&handler);
    parsing.parser.option("file", "", vtString, "").positional();
    EXPECT_EQ(parsing.parse({"--", "a"}), 0);
    EXPECT_EQ(parsing.stored(), "");
    EXPECT_EQ(handler.events, "");
}

TEST(PlainArgumentsOfAParse, AreAlsoPositionalUnderTheFlag) {
    Parsing parsing(0x04);
    parsing.parser.option("file", "", vtString, "").positional();
    EXPECT_EQ(parsing.parse({"a", "--", "b", "--", "c,d"}), 0);
    EXPECT_EQ(parsing.stored(), "file@1@4@7@10=\"a\"@2,\"b\"@5,\"--\"@8,\"c\"@11,\"d\"@12");
    EXPECT_EQ(parsing.plainArguments(), "[b][--][c,d]");
}

TEST(PlainArgumentsOfAParse, ArePlainAloneUnderTheFlagWithoutAPositionalOption) {
    Parsing parsing(0x02 | 0x04);
    parsing.parser.option("level", "", vtInt32, "");
    EXPECT_EQ(parsing.parse({"--", "--level=5", "b"}), 0);
    EXPECT_EQ(parsing.stored(), "");
    EXPECT_EQ(parsing.plainArguments(), "[--level=5][b]");
}

TEST(PlainArgumentsOfAParse, MayBeginWithADashAndBePositional) {
    Parsing parsing(0x02 | 0x04 | 0x08);
    parsing.parser.option("file", "", vtString, "").positional();
    EXPECT_EQ(parsing.parse({"--", "-x"}), 0);
    EXPECT_EQ(parsing.stored(), "file@2=\"-x\"@3");
    EXPECT_EQ(parsing.parse({"-x"}), 2);
    EXPECT_EQ(parsing.error(), "Unknown option: -x");
}

// Under 0x10 a positional argument takes the rest, but behind the marker each stands alone.
TEST(PlainArgumentsOfAParse, AreTakenOneByOneWhenPositionalTakesTheRest) {
    Parsing parsing(0x04 | 0x10);
    parsing.parser.option("file", "", vtString, "").positional();
    EXPECT_EQ(parsing.parse({"--", "a", "b"}), 0);
    EXPECT_EQ(parsing.stored(), "file@2@5=\"a\"@3,\"b\"@6");
    EXPECT_EQ(parsing.plainArguments(), "[a][b]");
}

TEST(PlainArgumentsOfAParse, EndTheParseWhenOneDoesNotBind) {
    Parsing parsing(0x04);
    RecordingHandler handler(parsing.positions);
    handler.refusedValues = {"3"};
    parsing.parser.addHandler(&handler);
    parsing.parser.option("count", "", vtInt32, "").positional();
    EXPECT_EQ(parsing.parse({"--", "1", "x", "2"}), 2);
    EXPECT_EQ(parsing.error(), "Value validation problem in argument 'x': "
                               "Option 'count' can not parse 'x' value, requires a type 'integer' here.");
    EXPECT_EQ(parsing.stored(), "count@2=\"1\"@3");
    EXPECT_EQ(parsing.plainArguments(), "[1][x]");
    EXPECT_EQ(parsing.parse({"--", "3", "4"}), 1);
    EXPECT_EQ(parsing.error(), "Value '3' is not valid for option 'count' in argument '3'");
    EXPECT_EQ(parsing.plainArguments(), "[1][x][3]");
}

TEST(CollectNonparsingArguments, LeavesWhatStandsInFrontOfTheMarker) {
    Parsing parsing;
    std::vector<std::string> arguments = {"a", "end", "b", "end", "c"};
    std::string error = "untouched";
    EXPECT_EQ(parsing.parser.collectNonparsingArguments("end", arguments, &parsing.result, error), 0);
    EXPECT_EQ(arguments, (std::vector<std::string>{"a"}));
    EXPECT_EQ(parsing.plainArguments(), "[b][end][c]");
    EXPECT_EQ(error, "untouched");
}

TEST(CollectNonparsingArguments, LeavesEverythingWithoutAMarker) {
    Parsing parsing;
    std::vector<std::string> arguments = {"a", "b"};
    std::string error;
    EXPECT_EQ(parsing.parser.collectNonparsingArguments("--", arguments, &parsing.result, error), 0);
    EXPECT_EQ(arguments, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(parsing.plainArguments(), "");
    EXPECT_EQ(parsing.positions.taken(), 0);
}

TEST(CollectNonparsingArguments, TakesPositionsWithoutAResult) {
    Parsing parsing;
    std::vector<std::string> arguments = {"--", "a", "b"};
    std::string error;
    EXPECT_EQ(parsing.parser.collectNonparsingArguments("--", arguments, nullptr, error), 0);
    EXPECT_EQ(arguments, std::vector<std::string>());
    EXPECT_EQ(parsing.positions.taken(), 2);
}

} // namespace
} // namespace tarv_3_3
