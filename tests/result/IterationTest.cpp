#include "result/Iteration.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <string>

#include "reliability/FailingAllocations.h"
#include "result/StoredOptions.h"
#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {
namespace {

class IterationOverEntries : public ::testing::Test {
protected:
    void storeDefault() {
        entries.storeDefaults({"level"}, [] { return internal::Entries::Default{"7", std::int32_t{7}, 4}; });
    }

    /// What `first` and then `next` give, up to the first that is missing, or to the third.
    std::string givenTo(const char* name, int lo, int hi) {
        std::string line = ::describe(iteration.first(name, lo, hi));
        for (int i = 0; i < 2 && line.find("missing") == std::string::npos; ++i) {
            line += " " + ::describe(iteration.next());
        }
        return line;
    }

    internal::ArenaWithRoom<512> memory;
    internal::Entries entries{memory};
    Garbage garbage;
    internal::Iteration iteration{entries, garbage};
};

TEST_F(IterationOverEntries, GivesNothingBeforeAQuery) {
    storeDefault();
    EXPECT_EQ(::describe(iteration.next()), "missing");
    EXPECT_EQ(iteration.nextPosition(), 2147483647);
    EXPECT_EQ(iteration.foundDefault(), nullptr);
}

TEST_F(IterationOverEntries, GivesADefaultOnceUnlessItIsAskedForWhereNothingIs) {
    storeDefault();
    const struct {
        int lo;
        int hi;
        const char* given;
    } rows[] = {
        {0, INT_MAX, "\"7\"@4 missing"},
        {5, 6, "\"7\"@4 missing"},
        {0, 0, "\"7\"@4 missing"},
        {INT_MAX, INT_MAX, "\"7\"@4 \"7\"@4 missing"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.lo);
        EXPECT_EQ(givenTo("level", row.lo, row.hi), row.given);
    }
}

TEST_F(IterationOverEntries, GivesADefaultThatIsDueOnce) {
    storeDefault();
    EXPECT_TRUE(iteration.find("level", 0, 5));
    ASSERT_NE(iteration.foundDefault(), nullptr);
    EXPECT_EQ(iteration.foundDefault()->position, 4);
    EXPECT_EQ(::describe(iteration.next()), "missing");
    iteration.makeDefaultDue();
    EXPECT_EQ(::describe(iteration.next()), "\"7\"@4");
    EXPECT_EQ(::describe(iteration.next()), "missing");
}

TEST_F(IterationOverEntries, BeginsBelowTheUpperBoundAndEndsAtIt) {
    entries.store({"level"}, occurrences({1}, {{"a", 2}, {"b", 3}}));
    entries.store({"level"}, occurrences({4}, {{"c", 5}}));
    const struct {
        int lo;
        int hi;
        const char* given;
    } rows[] = {
        {0, INT_MAX, "\"a\"@2 \"b\"@3 \"c\"@5"},
        {0, 3, "\"a\"@2 \"b\"@3 missing"},
        {2, 5, "\"a\"@2 \"b\"@3 \"c\"@5"},
        {4, 5, "\"c\"@5 missing"},
        {2, 4, "missing"},
        {5, INT_MAX, "missing"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.given);
        EXPECT_EQ(givenTo("level", row.lo, row.hi), row.given);
    }
}

TEST_F(IterationOverEntries, PassesOverLaterValuesBelowTheLowerBoundWithoutGoingBack) {
    entries.store({"level"}, occurrences({5}, {{"a", 6}, {"b", 7}}));
    entries.store({"level"}, occurrences({1}, {{"c", 2}, {"d", 8}}));
    EXPECT_EQ(givenTo("level", 5, INT_MAX), "\"a\"@6 \"b\"@7 \"d\"@8");
    EXPECT_EQ(::describe(iteration.next()), "missing");
}

TEST_F(IterationOverEntries, GivesOccurrencesWithoutValuesWhateverTheUpperBound) {
    entries.store({"verbose"}, occurrences({1}));
    entries.store({"verbose"}, occurrences({3}));
    entries.store({"verbose"}, occurrences({INT_MAX}));
    EXPECT_EQ(givenTo("verbose", 0, 2), "@1 @3 @2147483647");
    EXPECT_EQ(::describe(iteration.next()), "missing");
    EXPECT_EQ(givenTo("verbose", 2, 3), "missing");
}

TEST_F(IterationOverEntries, GivesAgainWhatIsLostWhenMemoryRunsOut) {
    entries.store({"level"}, occurrences({1}, {{"a", 2}}));
    EXPECT_TRUE(iteration.find("level", 0, INT_MAX));
    failing::arm(1, failing::Mode::forGood);
    EXPECT_THROW(iteration.next(), std::bad_alloc);
    failing::disarm();
    EXPECT_EQ(::describe(iteration.next()), "\"a\"@2");
}

} // namespace
} // namespace tarv_3_3
