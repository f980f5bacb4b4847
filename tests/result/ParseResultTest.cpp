#include "result/ParseResult.h"

#include <gtest/gtest.h>

#include <cstring>

#include "reliability/FailingAllocations.h"
#include "result/StoredOptions.h"

namespace tarv_3_3 {
namespace {

constexpr int end = 2147483647;

/// `level` and `l`: "a" and "b" in one occurrence at 10, "c" in one at 20. `quiet`: three occurrences
/// without values. `size`: a default at 3. `empty`: an empty default.
class ParseResultQueries : public ::testing::Test {
protected:
    ParseResultQueries() {
        const OptionDescription level = optionNamed({"level", "l"});
        result.store(level, occurrences({10}, {{"a", 11}, {"b", 12}}));
        result.store(level, occurrences({20}, {{"c", 21}}));
        result.store(optionNamed({"quiet"}), occurrences({30, 40, 50}));
        OptionData size;
        size.defaultText = "7";
        size.defaultValue = variant_t(std::int32_t(7));
        size.defaultPosition = 3;
        result.store(optionNamed({"size"}), size);
        OptionData empty;
        empty.defaultValue = variant_t("");
        empty.defaultPosition = 4;
        result.store(optionNamed({"empty"}), empty);
    }

    std::string get(const char* name, int lo = 0, int hi = end) { return describe(result.get(name, lo, hi)); }

    std::string next() { return describe(result.next("level")); }

    /// What `next` yields until there is no more.
    std::string rest() {
        std::string line;
        for (std::string value = next(); value != "missing"; value = next()) {
            line += (line.empty() ? "" : " ") + value;
        }
        return line;
    }

    /// What a query answers that gets no memory.
    template <class Query>
    static std::string withoutMemory(Query query) {
        failing::arm(1, failing::Mode::forGood);
        const Value answer = query();
        failing::disarm();
        return describe(answer);
    }

    ParseResult result;
};

TEST_F(ParseResultQueries, FindAnOptionByAnyOfItsNamesExactly) {
    const struct {
        const char* name;
        const char* value;
        bool present;
    } rows[] = {
        {"level", "\"a\"@11", true}, {"l", "\"a\"@11", true},  {"lev", "missing", false},
        {"Level", "missing", false}, {"-l", "missing", false}, {"no-quiet", "missing", false},
        {"", "missing", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(get(row.name), row.value);
        EXPECT_EQ(result.present(row.name, 0, end), row.present);
    }
}

TEST_F(ParseResultQueries, GoOnWithWhatIsStoredUnderTheirNameMeanwhile) {
    EXPECT_EQ(get("l"), "\"a\"@11");
    result.store(optionNamed({"level"}), occurrences({60}, {{"d", 61}}));
    result.store(optionNamed({"other", "l2"}), occurrences({70}, {{"f", 71}}));
    result.store(optionNamed({"level", "l"}), occurrences({80}, {{"e", 81}}));
    EXPECT_EQ(rest(), "\"b\"@12 \"c\"@21 \"e\"@81");
    EXPECT_EQ(get("level"), "\"a\"@11");
    EXPECT_EQ(rest(), "\"b\"@12 \"c\"@21 \"d\"@61 \"e\"@81");
}

TEST_F(ParseResultQueries, FindNothingUnderANullName) {
    EXPECT_EQ(get(nullptr), "missing");
    EXPECT_FALSE(result.present(nullptr, 0, end));
}

TEST_F(ParseResultQueries, YieldTheConvertedValueBesideItsText) {
    OptionData data = occurrences({60});
    data.values.push_back({"0x5", variant_t(5), 61});
    result.store(optionNamed({"count"}, vtInt32), data);
    const Value value = result.get("count", 0, end);
    EXPECT_STREQ(value.text, "0x5");
    EXPECT_EQ(value.value, variant_t(5));
}

// An iteration starts at an occurrence in [lo, hi), and goes on with values in [lo, hi].
TEST_F(ParseResultQueries, StartBelowTheUpperBoundAndGoOnUpToIt) {
    const struct {
        int lo;
        int hi;
        const char* first;
        const char* rest;
    } rows[] = {
        {0, end, "\"a\"@11", "\"b\"@12 \"c\"@21"},
        {10, 11, "\"a\"@11", ""},
        {10, 12, "\"a\"@11", "\"b\"@12"},
        {0, 20, "\"a\"@11", "\"b\"@12"},
        {0, 21, "\"a\"@11", "\"b\"@12 \"c\"@21"},
        {0, 10, "missing", ""},
        {11, 21, "\"a\"@11", "\"b\"@12 \"c\"@21"},
        {13, 21, "\"c\"@21", ""},
        {20, 21, "\"c\"@21", ""},
        {20, 20, "missing", ""},
        {22, end, "missing", ""},
        {end, 0, "missing", ""},
        {-5, end, "\"a\"@11", "\"b\"@12 \"c\"@21"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::to_string(row.lo) + " to " + std::to_string(row.hi));
        EXPECT_EQ(result.present("level", row.lo, row.hi), std::strcmp(row.first, "missing") != 0);
        EXPECT_EQ(get("level", row.lo, row.hi), row.first);
        EXPECT_EQ(rest(), row.rest);
    }
}

// Positions ascend, but where a handler parses into the same result, and where the counter wraps around: then
// what was stored first is found first.
TEST_F(ParseResultQueries, FindTheFirstInRangeWhetherPositionsAscendOrNot) {
    const std::vector<std::vector<int>> lists = {
        {10},
        {10, 20, 30, 40, 50},
        {10, 30, 20, 50, 40},
        {50, 40, 30, 20, 10},
        {30, 10, 20, 20, 40},
        {40, 50, 60, -50, -40, -30},
    };
    for (const std::vector<int>& positions : lists) {
        const std::string name = testing::PrintToString(positions);
        for (const int position : positions) {
            result.store(optionNamed({name + " switch"}), occurrences({position}));
            result.store(optionNamed({name}), occurrences({position}, {{"text", position + 1}}));
        }
        for (int lo = -61; lo <= 61; lo += 3) {
            for (int hi = lo; hi <= 63; hi += 2) {
                SCOPED_TRACE(name + " from " + std::to_string(lo) + " to " + std::to_string(hi));
                std::size_t first = 0;
                while (first < positions.size() && (positions[first] < lo || positions[first] >= hi)) {
                    ++first;
                }
                const bool isThere = first < positions.size();
                ASSERT_EQ(result.present((name + " switch").c_str(), lo, hi), isThere);
                ASSERT_EQ(result.nextPosition(), isThere ? positions[first] : end);
                std::size_t value = 0;
                while (value < positions.size() && positions[value] + 1 < lo) {
                    ++value;
                }
                const bool hasValue = isThere && value < positions.size() && positions[value] + 1 <= hi;
                ASSERT_EQ(result.get(name.c_str(), lo, hi).position, hasValue ? positions[value] + 1 : end);
            }
        }
    }
}

// Names share their lists until something is stored under one of them alone.
TEST_F(ParseResultQueries, FindTheFirstInRangeAlsoUnderNamesThatSharedTheirLists) {
    result.store(optionNamed({"early", "e"}), occurrences({30}));
    result.store(optionNamed({"early", "e"}), occurrences({10}));
    result.store(optionNamed({"early"}), occurrences({40}));
    EXPECT_TRUE(result.present("e", 10, 11));
    EXPECT_TRUE(result.present("early", 10, 11));
    result.store(optionNamed({"late", "l8"}), occurrences({30}));
    result.store(optionNamed({"late"}), occurrences({40}));
    result.store(optionNamed({"l8"}), occurrences({10}));
    result.store(optionNamed({"l8"}), occurrences({50}));
    EXPECT_TRUE(result.present("l8", 10, 11));
}

// The counter wraps around, or a handler parses into the same result, between the values of one list.
TEST_F(ParseResultQueries, FindTheFirstValueInRangeWhetherThoseOfAnOccurrenceAscendOrNot) {
    result.store(optionNamed({"list"}), occurrences({20}, {{"a", 5}, {"b", 30}, {"c", 10}, {"d", 40}}));
    EXPECT_EQ(get("list", 20, 50), "\"b\"@30");
}

// The occurrence is in the range, its value is not.
TEST_F(ParseResultQueries, FindNoValueBehindTheUpperBoundOfAnOccurrenceInRange) {
    result.store(optionNamed({"wide"}), occurrences({60}, {{"far", 99}}));
    EXPECT_TRUE(result.present("wide", 60, 70));
    EXPECT_EQ(get("wide", 60, 70), "missing");
}

TEST_F(ParseResultQueries, YieldTheFirstValueInRangeBehindPresent) {
    EXPECT_TRUE(result.present("level", 0, end));
    EXPECT_EQ(rest(), "\"a\"@11 \"b\"@12 \"c\"@21");
    EXPECT_TRUE(result.present("level", 20, end));
    EXPECT_EQ(rest(), "\"c\"@21");
}

TEST_F(ParseResultQueries, YieldOccurrencesOfAnOptionWithoutValues) {
    const Value value = result.get("quiet", 0, end);
    EXPECT_EQ(value.status, 0);
    EXPECT_EQ(value.text, nullptr);
    EXPECT_EQ(value.value.type(), vtNull);
    EXPECT_EQ(value.position, 30);
    EXPECT_EQ(rest(), "@40 @50");
}

TEST_F(ParseResultQueries, ApplyNoBoundsToTheFurtherOccurrencesOfAnOptionWithoutValues) {
    EXPECT_EQ(get("quiet", 30, 31), "@30");
    EXPECT_EQ(rest(), "@40 @50");
    EXPECT_EQ(get("quiet", 31, 41), "@40");
    EXPECT_EQ(rest(), "@50");
    EXPECT_EQ(get("quiet", 0, 30), "missing");
    EXPECT_EQ(next(), "missing");
}

TEST_F(ParseResultQueries, YieldValuesOnlyOnceAnOccurrenceHasOne) {
    result.store(optionNamed({"mixed"}), occurrences({60}));
    EXPECT_EQ(get("mixed"), "@60");
    result.store(optionNamed({"mixed"}), occurrences({70}, {{"v", 71}}));
    EXPECT_EQ(get("mixed"), "\"v\"@71");
    EXPECT_EQ(next(), "missing");
}

TEST_F(ParseResultQueries, YieldADefaultWhateverTheRange) {
    EXPECT_TRUE(result.present("size", 100, 200));
    const Value value = result.get("size", 100, 200);
    EXPECT_EQ(describe(value), "\"7\"@3");
    EXPECT_EQ(value.value, variant_t(std::int32_t(7)));
    EXPECT_EQ(next(), "missing");
    EXPECT_EQ(get("size", 0, 0), "\"7\"@3");
    EXPECT_EQ(next(), "missing");
}

TEST_F(ParseResultQueries, YieldADefaultOnceBehindPresent) {
    for (const int lo : {0, -5, 100, end}) {
        SCOPED_TRACE(lo);
        EXPECT_TRUE(result.present("size", lo, 1));
        EXPECT_EQ(next(), "\"7\"@3");
        EXPECT_EQ(next(), "missing");
        EXPECT_EQ(next(), "missing");
    }
}

TEST_F(ParseResultQueries, YieldTheDefaultBehindPresentStillWhenMemoryRunsOut) {
    EXPECT_TRUE(result.present("size", 0, end));
    EXPECT_EQ(withoutMemory([&] { return result.next("size"); }), "status 3");
    EXPECT_EQ(next(), "\"7\"@3");
    EXPECT_EQ(next(), "missing");
}

TEST_F(ParseResultQueries, GoOnBehindAGetWhenMemoryRunsOut) {
    EXPECT_EQ(withoutMemory([&] { return result.get("level", 0, end); }), "status 3");
    EXPECT_EQ(next(), "\"a\"@11");
}

TEST_F(ParseResultQueries, FindNothingNextBehindAGetOfADefaultWhenMemoryRunsOut) {
    EXPECT_EQ(withoutMemory([&] { return result.get("size", 0, end); }), "status 3");
    EXPECT_EQ(next(), "missing");
}

// The same state as present leaves.
TEST_F(ParseResultQueries, YieldADefaultAgainWhenBothBoundsAreTheLargestPosition) {
    EXPECT_EQ(get("size", end, end), "\"7\"@3");
    EXPECT_EQ(next(), "\"7\"@3");
    EXPECT_EQ(next(), "missing");
    EXPECT_EQ(get("size", 0, end), "\"7\"@3");
    EXPECT_EQ(next(), "missing");
    EXPECT_EQ(get("size", end, 0), "\"7\"@3");
    EXPECT_EQ(next(), "missing");
}

TEST_F(ParseResultQueries, TakeAnEmptyDefaultForNone) {
    EXPECT_FALSE(result.present("empty", 0, end));
    EXPECT_EQ(next(), "missing");
    EXPECT_EQ(get("empty"), "missing");
    EXPECT_EQ(next(), "missing");
}

TEST_F(ParseResultQueries, PreferOccurrencesToADefault) {
    result.store(optionNamed({"size"}), occurrences({60}, {{"8", 61}}));
    EXPECT_TRUE(result.present("size", 0, end));
    EXPECT_EQ(rest(), "\"8\"@61");
    EXPECT_FALSE(result.present("size", 0, 60));
    EXPECT_EQ(get("size", 0, 60), "missing");
}

TEST_F(ParseResultQueries, FindNothingNextBehindAFailedGet) {
    EXPECT_EQ(get("level"), "\"a\"@11");
    EXPECT_EQ(get("absent"), "missing");
    EXPECT_EQ(next(), "missing");
    EXPECT_EQ(result.nextPosition(), end);
    EXPECT_FALSE(result.present("absent", 0, end));
    EXPECT_EQ(next(), "missing");
}

TEST_F(ParseResultQueries, FindNothingNextBehindANullName) {
    EXPECT_EQ(get("level"), "\"a\"@11");
    EXPECT_EQ(get(nullptr), "missing");
    EXPECT_EQ(next(), "missing");
    EXPECT_EQ(result.nextPosition(), end);
    EXPECT_EQ(get("level"), "\"a\"@11");
    EXPECT_FALSE(result.present(nullptr, 0, end));
    EXPECT_EQ(next(), "missing");
    EXPECT_EQ(result.nextPosition(), end);
}

// The value at 11 alone would be in the range; its occurrence at 10 is not.
TEST_F(ParseResultQueries, FindNothingNextBehindAGetThatFoundNoOccurrenceInItsRange) {
    EXPECT_EQ(get("level", 11, 12), "missing");
    EXPECT_EQ(next(), "missing");
    EXPECT_EQ(result.nextPosition(), end);
    EXPECT_FALSE(result.present("level", 11, 12));
    EXPECT_EQ(next(), "missing");
}

TEST_F(ParseResultQueries, FindNothingNextBehindAGetThatFoundNoValueInItsRange) {
    result.store(optionNamed({"late"}), occurrences({60}, {{"v", 65}}));
    EXPECT_EQ(get("late", 60, 64), "missing");
    EXPECT_EQ(next(), "missing");
    EXPECT_EQ(result.nextPosition(), end);
}

TEST_F(ParseResultQueries, FindNothingNextBeforeAnyGet) {
    EXPECT_EQ(next(), "missing");
    EXPECT_EQ(result.nextPosition(), end);
}

TEST_F(ParseResultQueries, IgnoreTheNameGivenToNext) {
    EXPECT_EQ(get("level"), "\"a\"@11");
    EXPECT_EQ(describe(result.next("quiet")), "\"b\"@12");
    EXPECT_EQ(describe(result.next(nullptr)), "\"c\"@21");
}

TEST_F(ParseResultQueries, RememberOneIterationOnly) {
    EXPECT_EQ(get("level"), "\"a\"@11");
    EXPECT_EQ(get("quiet"), "@30");
    EXPECT_EQ(next(), "@40");
    EXPECT_EQ(get("level"), "\"a\"@11");
    EXPECT_TRUE(result.present("quiet", 45, end));
    EXPECT_EQ(next(), "@50");
}

TEST_F(ParseResultQueries, GoOnIntoWhatIsStoredMeanwhile) {
    EXPECT_EQ(get("level"), "\"a\"@11");
    result.store(optionNamed({"another"}), occurrences({60}));
    result.store(optionNamed({"level", "l"}), occurrences({70}, {{"d", 71}}));
    EXPECT_EQ(rest(), "\"b\"@12 \"c\"@21 \"d\"@71");
}

// The first occurrence of another option that has the name as well replaces what is stored under it.
TEST_F(ParseResultQueries, EndWhereTheirListsWereReplacedByShorterOnesMeanwhile) {
    EXPECT_EQ(get("l"), "\"a\"@11");
    EXPECT_EQ(next(), "\"b\"@12");
    EXPECT_EQ(next(), "\"c\"@21");
    result.store(optionNamed({"last", "l"}), occurrences({60}, {{"d", 61}}));
    EXPECT_EQ(next(), "missing");
    EXPECT_EQ(get("quiet"), "@30");
    EXPECT_EQ(next(), "@40");
    result.store(optionNamed({"silent", "quiet"}), occurrences({70}));
    EXPECT_EQ(next(), "missing");
    EXPECT_EQ(result.nextPosition(), end);
}

TEST_F(ParseResultQueries, CountPositionsFromTheOccurrenceFoundWithoutBounds) {
    EXPECT_EQ(get("level", 0, 11), "\"a\"@11");
    EXPECT_EQ(result.nextPosition(), 10);
    EXPECT_EQ(result.nextPosition(), 20);
    EXPECT_EQ(result.nextPosition(), end);
    EXPECT_EQ(result.nextPosition(), end);
    EXPECT_EQ(get("level", 13, end), "\"c\"@21");
    EXPECT_EQ(next(), "missing");
    EXPECT_EQ(result.nextPosition(), 20);
    EXPECT_EQ(result.nextPosition(), end);
}

// Without values, positions and occurrences are one list with one cursor.
TEST_F(ParseResultQueries, ShareThePositionsCursorWithAnOptionWithoutValues) {
    EXPECT_EQ(get("quiet"), "@30");
    EXPECT_EQ(result.nextPosition(), 40);
    EXPECT_EQ(next(), "@50");
    EXPECT_EQ(result.nextPosition(), end);
    EXPECT_TRUE(result.present("quiet", 0, end));
    EXPECT_EQ(result.nextPosition(), 30);
}

TEST_F(ParseResultQueries, HaveNoPositionOfADefault) {
    EXPECT_EQ(get("size"), "\"7\"@3");
    EXPECT_EQ(result.nextPosition(), end);
}

TEST_F(ParseResultQueries, KeepTheirTextsApartFromLaterAnswers) {
    const char* const first = result.get("level", 0, end).text;
    const char* const second = result.next("level").text;
    const char* const again = result.get("l", 0, end).text;
    EXPECT_STREQ(first, "a");
    EXPECT_STREQ(second, "b");
    EXPECT_EQ(again, first);
}

TEST_F(ParseResultQueries, AnswerOnByteStringsWithAStatus) {
    char* text = nullptr;
    variant_t value;
    int position = 0;
    EXPECT_EQ(result.get(std::string("level"), &text, value, 0, end, position), 0);
    EXPECT_STREQ(text, "a");
    EXPECT_EQ(value, variant_t("a"));
    EXPECT_EQ(position, 11);
    EXPECT_EQ(result.next(std::string("any"), &text, value, position), 0);
    EXPECT_STREQ(text, "b");
    EXPECT_EQ(position, 12);
    EXPECT_EQ(result.get(std::string("absent"), &text, value, 0, end, position), 1);
    EXPECT_EQ(result.next(std::string("any"), &text, value, position), 1);
    EXPECT_STREQ(text, "b");
    EXPECT_EQ(position, 12);
}

TEST_F(ParseResultQueries, FindANameWithAZeroByteByAllItsBytes) {
    const std::string name("level\0", 6);
    result.store(optionNamed({name}), occurrences({60}, {{"zero", 61}}));
    char* text = nullptr;
    variant_t value;
    int position = 0;
    EXPECT_EQ(result.get(name, &text, value, 0, end, position), 0);
    EXPECT_STREQ(text, "zero");
    EXPECT_EQ(result.get(name + "x", &text, value, 0, end, position), 1);
    EXPECT_EQ(get("level"), "\"a\"@11");
}

TEST_F(ParseResultQueries, LeaveTextAndValueAloneForAnOptionWithoutValues) {
    char before[] = "before";
    char* text = before;
    variant_t value("before");
    int position = 0;
    EXPECT_EQ(result.get(std::string("quiet"), &text, value, 0, end, position), 0);
    EXPECT_EQ(text, before);
    EXPECT_EQ(value, variant_t("before"));
    EXPECT_EQ(position, 30);
}

TEST_F(ParseResultQueries, ConsumeNothingWhenAskedForThePresenceAlone) {
    variant_t value("before");
    int position = 5;
    EXPECT_EQ(result.get(std::string("level"), nullptr, value, 0, end, position), 0);
    EXPECT_EQ(value, variant_t("before"));
    EXPECT_EQ(position, 5);
    EXPECT_EQ(next(), "\"a\"@11");
    EXPECT_EQ(result.get(std::string("absent"), nullptr, value, 0, end, position), 1);
    EXPECT_EQ(value, variant_t("before"));
    EXPECT_EQ(position, 5);
}

TEST_F(ParseResultQueries, YieldADefaultWhenAskedForThePresenceAlone) {
    variant_t value("before");
    int position = 5;
    EXPECT_EQ(result.get(std::string("size"), nullptr, value, 0, end, position), 0);
    EXPECT_EQ(value, variant_t(std::int32_t(7)));
    EXPECT_EQ(position, 3);
}

} // namespace
} // namespace tarv_3_3
