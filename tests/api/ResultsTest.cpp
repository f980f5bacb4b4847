#include <gtest/gtest.h>

#include "api/CommandLine.h"

namespace tarv = tarv_3_3;

namespace {

void expectMissing(const tarv::Value& value) {
    EXPECT_EQ(value.status, 1);
    EXPECT_EQ(value.text, nullptr);
    EXPECT_EQ(value.as<const char*>(), nullptr);
    EXPECT_EQ(value.position, 2147483647);
    EXPECT_EQ(value.value.type(), tarv::vtNull);
}

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

TEST_F(Results, AreEmptyBeforeAnyParse) {
    const char* text = "untouched";
    EXPECT_FALSE(result.present("level"));
    expectMissing(result.get("level"));
    expectMissing(result.next("level"));
    EXPECT_EQ(result.nextPosition(), 2147483647);
    EXPECT_EQ(result.getFirstArgument(&text), 1);
    EXPECT_EQ(result.getNextArgument(&text), 1);
    EXPECT_STREQ(text, "untouched");
    expectMissing(tarv::getLastValue(&result, "level"));
}

TEST_F(Results, AreMissingForNamesThatWereNotGiven) {
    EXPECT_EQ(line.parse({"--lev=1", "--no-color"}), 0);
    for (const char* const name : {"lev", "--level", "no-color", "quiet", "", "undeclared"}) {
        SCOPED_TRACE(name);
        EXPECT_FALSE(result.present(name));
        expectMissing(result.get(name));
        expectMissing(result.next(name));
    }
    EXPECT_FALSE(result.present(nullptr));
    expectMissing(result.get(nullptr));
    expectMissing(tarv::getLastValue(&result, nullptr));
    expectMissing(tarv::getLastValue(nullptr, "level"));
}

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

TEST_F(Results, StartBelowTheUpperBoundAndGoOnUpToIt) {
    EXPECT_EQ(line.parse({"-l=1,2", "-l=3"}), 0);
    result.present("level");
    const int first = result.nextPosition();
    EXPECT_EQ(line.values("level", first, first), "");
    EXPECT_EQ(line.values("level", first, first + 1), "[1]");
    EXPECT_EQ(line.values("level", first, first + 2), "[1][2]");
    EXPECT_EQ(line.values("level", first, first + 3), "[1][2]");
    EXPECT_EQ(line.values("level", first, first + 4), "[1][2][3]");
}

TEST_F(Results, YieldADefaultOnceWhateverTheRange) {
    EXPECT_EQ(line.parse({"--quiet"}), 0);
    EXPECT_TRUE(result.present("size", 0, 0));
    EXPECT_STREQ(result.next("size").text, "8");
    expectMissing(result.next("size"));
    const tarv::Value value = result.get("size", 5, 4);
    EXPECT_STREQ(value.text, "8");
    EXPECT_EQ(value.value, tarv::variant_t(8));
    expectMissing(result.next("size"));
    EXPECT_STREQ(tarv::getLastValue(&result, "size", 5, 4).text, "8");
}

TEST_F(Results, LoseADefaultOnceTheOptionIsGiven) {
    EXPECT_EQ(line.parse({"--level=1", "a"}), 0);
    EXPECT_EQ(line.values("level"), "[1]");
    EXPECT_EQ(line.values("level", result.get("file").position), "");
    EXPECT_FALSE(result.present("level", result.get("file").position));
}

TEST_F(Results, OfAnOptionWithoutValuesAreItsOccurrences) {
    EXPECT_EQ(line.parse({"-q", "a", "-q", "-q"}), 0);
    const tarv::Value first = result.get("quiet");
    EXPECT_EQ(first.status, 0);
    EXPECT_EQ(first.text, nullptr);
    EXPECT_EQ(first.value.type(), tarv::vtNull);
    EXPECT_EQ(result.nextPosition(), first.position + 3);
    EXPECT_EQ(result.next("quiet").position, first.position + 4);
    expectMissing(result.next("quiet"));
    EXPECT_EQ(line.values("quiet", 0, first.position + 1), "[][][]");
    EXPECT_EQ(tarv::getLastValue(&result, "quiet").position, first.position + 4);
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

TEST_F(Results, RememberOneIteration) {
    EXPECT_EQ(line.parse({"-l=1,2", "-q"}), 0);
    EXPECT_STREQ(result.get("level").text, "1");
    expectMissing(result.get("undeclared"));
    expectMissing(result.next("level"));
    EXPECT_EQ(result.nextPosition(), 2147483647);
    EXPECT_STREQ(result.get("level").text, "1");
    EXPECT_STREQ(result.next("size").text, "2");
    EXPECT_TRUE(result.present("quiet"));
    EXPECT_EQ(result.next("level").text, nullptr);
}

TEST_F(Results, YieldPlainArgumentsFromTheFirstAgain) {
    EXPECT_EQ(line.parse({"a", "--", "-b", "", "c"}), 0);
    EXPECT_EQ(line.plainArguments(), "[-b][][c]");
    const char* text = nullptr;
    EXPECT_EQ(result.getFirstArgument(&text), 0);
    EXPECT_STREQ(text, "-b");
    EXPECT_EQ(line.values("file"), "[a]");
    EXPECT_EQ(result.getNextArgument(&text), 0);
    EXPECT_STREQ(text, "");
    EXPECT_EQ(result.getNextArgument(&text), 0);
    EXPECT_EQ(result.getNextArgument(&text), 1);
    EXPECT_STREQ(text, "c");
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
