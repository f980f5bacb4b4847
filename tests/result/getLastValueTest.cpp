#include <gtest/gtest.h>

#include "result/ParseResult.h"
#include "result/StoredOptions.h"

namespace tarv_3_3 {
namespace {

constexpr int end = 2147483647;

TEST(GetLastValue, IsEmptyWithoutAResultOrAName) {
    ParseResult result;
    result.store(optionNamed({"level"}), occurrences({10}, {{"a", 11}}));
    EXPECT_EQ(describe(getLastValue(nullptr, "level", 0, end)), "missing");
    EXPECT_EQ(describe(getLastValue(&result, nullptr, 0, end)), "missing");
    EXPECT_EQ(describe(getLastValue(nullptr, nullptr, 0, end)), "missing");
}

TEST(GetLastValue, IsTheLastValueThatGetAndNextReachInTheRange) {
    ParseResult result;
    result.store(optionNamed({"level", "l"}), occurrences({10}, {{"a", 11}, {"b", 12}}));
    result.store(optionNamed({"level", "l"}), occurrences({20}, {{"c", 21}}));
    result.store(optionNamed({"once"}), occurrences({30}, {{"d", 31}}));
    const struct {
        const char* name;
        int lo;
        int hi;
        const char* last;
    } rows[] = {
        {"level", 0, end, "\"c\"@21"},  {"l", 0, end, "\"c\"@21"},     {"level", 0, 21, "\"c\"@21"},
        {"level", 0, 20, "\"b\"@12"},   {"level", 0, 12, "\"b\"@12"},  {"level", 0, 11, "\"a\"@11"},
        {"level", 13, end, "\"c\"@21"}, {"level", 0, 10, "missing"},   {"level", 21, end, "missing"},
        {"once", 0, end, "\"d\"@31"},   {"absent", 0, end, "missing"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.name) + " " + std::to_string(row.lo) + " " + std::to_string(row.hi));
        EXPECT_EQ(describe(getLastValue(&result, row.name, row.lo, row.hi)), row.last);
    }
}

TEST(GetLastValue, TakesTheWholeCommandLineWithoutBounds) {
    ParseResult result;
    result.store(optionNamed({"level"}), occurrences({10}, {{"a", 11}, {"b", 12}}));
    EXPECT_EQ(describe(getLastValue(&result, "level")), "\"b\"@12");
}

TEST(GetLastValue, IsTheDefaultOfAnOptionThatWasNotGiven) {
    ParseResult result;
    OptionData data;
    data.defaultText = "7";
    data.defaultValue = variant_t("7");
    data.defaultPosition = 3;
    result.store(optionNamed({"level"}), data);
    EXPECT_EQ(describe(getLastValue(&result, "level", 100, 200)), "\"7\"@3");
}

TEST(GetLastValue, IsTheLastOccurrenceOfAnOptionWithoutValues) {
    ParseResult result;
    result.store(optionNamed({"quiet"}), occurrences({10, 20, 30}));
    EXPECT_EQ(describe(getLastValue(&result, "quiet", 0, end)), "@30");
    EXPECT_EQ(describe(getLastValue(&result, "quiet", 0, 15)), "@30");
    EXPECT_EQ(describe(getLastValue(&result, "quiet", 31, end)), "missing");
}

/// Fails behind its first answer.
class FailingResult : public ParseResult {
public:
    using ParseResult::get;
    using ParseResult::next;

    Value get(const char*, int, int) override {
        Value value("first", variant_t("first"), 4);
        value.status = statusOfGet;
        return value;
    }

    Value next(const char*) override {
        Value failed;
        failed.status = 3;
        return failed;
    }

    int statusOfGet = 0;
};

TEST(GetLastValue, IsTheLastOneFoundBeforeAFailure) {
    FailingResult result;
    EXPECT_EQ(describe(getLastValue(&result, "level", 0, end)), "\"first\"@4");
    EXPECT_EQ(describe(getLastValue(&result, nullptr, 0, end)), "missing");
    result.statusOfGet = 3;
    EXPECT_EQ(describe(getLastValue(&result, "level", 0, end)), "missing");
}

} // namespace
} // namespace tarv_3_3
