#include "description/nameDistance.h"

#include <gtest/gtest.h>

#include <string>

using namespace tarv_3_3;

namespace {

TEST(NameDistance, CountsEditsAndLettersCut) {
    const struct {
        const char* typed;
        const char* name;
        std::size_t edits;
        std::size_t cut;
    } rows[] = {
        {"", "", 0, 0},
        {"level", "level", 0, 0},
        {"lev", "level", 0, 2},
        {"m-c", "max-count", 0, 6},
        {"levvel", "level", 1, 0},
        {"levl", "level", 1, 0},
        {"lefel", "level", 1, 0},
        {"elvel", "level", 1, 0},
        {"leevl", "level", 1, 0},
        {"levellx", "level", 2, 0},
        {"xyz", "level", 3, 2},
        {"level", "", 5, 0},
        {"", "ab", 1, 1},
        // Word by word, each cut short.
        {"m-cuont", "max-count", 1, 2},
        {"maz-co", "max-count", 1, 3},
        // A dash lost, added or moved.
        {"maxcount", "max-count", 1, 0},
        {"max-co-unt", "max-count", 1, 0},
        {"ma-xcount", "max-count", 1, 0},
        {"maco", "max-count", 1, 4},
        // Words without a letter.
        {"a--b", "a--b", 0, 0},
        {"a-", "a-", 0, 0},
        {"a-b", "a--b", 1, 0},
        {"a--b", "a-x-b-c", 3, 0},
        // Words left out: in order, each fitting.
        {"count", "max-count", 1, 0},
        {"max", "max-count", 1, 0},
        {"co", "max-count", 1, 3},
        {"a-c", "a-b-c", 1, 0},
        {"b-c", "a-b-c", 1, 0},
        {"c-a", "a-b-c", 4, 0},
        {"kount", "max-count", 3, 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.typed) + " for " + row.name);
        const internal::NameDistance distance = internal::nameDistance(row.typed, row.name);
        EXPECT_EQ(distance.edits, row.edits);
        EXPECT_EQ(distance.cut, row.cut);
    }
}

TEST(NameDistance, IsLessWithFewerEditsAndThenWithFewerLettersCut) {
    using internal::NameDistance;
    EXPECT_TRUE((NameDistance{1, 5} < NameDistance{2, 0}));
    EXPECT_FALSE((NameDistance{2, 0} < NameDistance{1, 5}));
    EXPECT_TRUE((NameDistance{1, 0} < NameDistance{1, 1}));
    EXPECT_FALSE((NameDistance{1, 1} < NameDistance{1, 1}));
    EXPECT_TRUE((NameDistance{100, 100} < NameDistance()));
}

} // namespace
