#include <gtest/gtest.h>

#include "api/CommandLine.h"

namespace tarv = tarv_3_3;

namespace {

/// `level` and `l` with the default 7, `size` with the default 8, the switch `color`, `quiet` without
/// values, the positional `file`.
class Results : public ::testing::Test {
protected:
    Results() {
        line.parser->option("level,l", "", tarv::vtInt32).defaultValue(7);
        line.parser->option("size", "", tarv::vtInt32).defaultValue(8);
        line.parser->option("color", "", tarv::vtBool);
        line.parser->option("quiet", "", tarv::vtNull);
        line.parser->option("file", "", tarv::vtString).positional();
    }

    CommandLine line;
    tarv::IParseResult& result = *line.result;
};

TEST_F(Results, HoldSwitchesAsOneAndZero) {
    EXPECT_EQ(line.parse({"--color", "--no-color", "--col"}), 0);
    EXPECT_EQ(line.values("color"), "[1][0][1]");
    EXPECT_EQ(result.get("color").value, tarv::variant_t(true));
    EXPECT_EQ(result.next("color").value, tarv::variant_t(false));
}

TEST_F(Results, NumberEveryOccurrenceAndValueInTheOrderParsed) {
    EXPECT_EQ(line.parse({"--level=1,2", "--quiet", "--", "plain", "more"}), 0);
    EXPECT_EQ(line.parse({"-q"}), 0);
    const tarv::Value first = result.get("level");
    const int occurrence = result.nextPosition();
    EXPECT_EQ(first.position, occurrence + 1);
    EXPECT_EQ(result.next("level").position, occurrence + 2);
    EXPECT_EQ(result.get("quiet").position, occurrence + 3);
    constexpr int plainArguments = 2;
    constexpr int namesWithADefault = 3;
    EXPECT_EQ(result.next("quiet").position, occurrence + 4 + plainArguments + namesWithADefault);
}

TEST_F(Results, NumberDefaultsInFrontOfTheArguments) {
    EXPECT_EQ(line.parse({"--quiet"}), 0);
    const int level = result.get("level").position;
    EXPECT_EQ(result.get("l").position, level + 1);
    EXPECT_EQ(result.get("size").position, level + 2);
    EXPECT_EQ(result.get("quiet").position, level + 3);
}

TEST_F(Results, AreCutAtPositionsOfOtherThings) {
    EXPECT_EQ(line.parse({"-l=1", "a", "-l=2", "-l=3", "b", "-l=4"}), 0);
    result.present("file");
    const int a = result.nextPosition();
    const int b = result.nextPosition();
    EXPECT_EQ(line.values("level", 0, a), "[1]");
    EXPECT_EQ(line.values("level", a, b), "[2][3]");
    EXPECT_EQ(line.values("level", b), "[4]");
    EXPECT_STREQ(tarv::getLastValue(&result, "level", a, b).text, "3");
    EXPECT_TRUE(result.present("level", a, b));
    EXPECT_FALSE(result.present("quiet", a, b));
}

TEST_F(Results, OfAnEmptyPositionalArgumentHaveNoValue) {
    EXPECT_EQ(line.parse({"", "a", ""}), 0);
    EXPECT_EQ(line.values("file"), "[a]");
    result.present("file");
    const int first = result.nextPosition();
    EXPECT_EQ(result.nextPosition(), first + 1);
    EXPECT_EQ(result.nextPosition(), first + 3);
    EXPECT_EQ(result.nextPosition(), 2147483647);
}

TEST_F(Results, KeepEveryTextThatTheyHandedOut) {
    EXPECT_EQ(line.parse({"-l=1,2", "--", "plain"}), 0);
    const char* const first = result.get("level").text;
    const char* const second = result.next("level").text;
    const char* plain = nullptr;
    result.getFirstArgument(&plain);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(line.parse({"-l=3,4", "--", "other"}), 0);
        line.values("level");
        line.plainArguments();
    }
    EXPECT_STREQ(first, "1");
    EXPECT_STREQ(second, "2");
    EXPECT_STREQ(plain, "plain");
}

} // namespace
