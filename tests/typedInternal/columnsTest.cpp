#include "typed/columns.h"

#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

using namespace tarv_3_3::typed::engine;

using Lines = std::vector<std::string_view>;

TEST(Columns, CountWhatATerminalShows) {
    const struct {
        const char* text;
        std::size_t columns;
    } rows[] = {{"", 0},
                {"abc", 3},
                {"Küche", 5},
                {"Ku\u0308che", 5},
                {"日本語", 6},
                {"한국어", 6},
                {"\u1100\u1161\u11a8", 2},
                {"ｆｕｌｌ", 8},
                {"a\u200bb", 2},
                {"👍", 2},
                {"\U000F0000", 1},
                {"a\xff\xfe", 3},
                {"\xe6\x97", 2}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(columnsOf(row.text), row.columns);
    }
}

TEST(Columns, TextIsWrappedAtBlanksAndBesideWideCharacters) {
    EXPECT_EQ(wrapColumns("", 10), (Lines{""}));
    EXPECT_EQ(wrapColumns("one two three", 7), (Lines{"one two", "three"}));
    EXPECT_EQ(wrapColumns("one two three", 6), (Lines{"one", "two", "three"}));
    EXPECT_EQ(wrapColumns("a\nb  c", 10), (Lines{"a", "b  c"}));
    EXPECT_EQ(wrapColumns("  ab c", 4), (Lines{"ab c"}));
    EXPECT_EQ(wrapColumns("a\n b\n", 10), (Lines{"a", "b"}));
    EXPECT_EQ(wrapColumns("\n", 10), (Lines{""}));
    EXPECT_EQ(wrapColumns("abcdefgh", 3), (Lines{"abc", "def", "gh"}));
    EXPECT_EQ(wrapColumns("日本語", 4), (Lines{"日本", "語"}));
    EXPECT_EQ(wrapColumns("日本語", 5), (Lines{"日本", "語"}));
    EXPECT_EQ(wrapColumns("x日y", 3), (Lines{"x日", "y"}));
    EXPECT_EQ(wrapColumns("日abcd", 3), (Lines{"日", "abc", "d"}));
    EXPECT_EQ(wrapColumns("a日ü", 3), (Lines{"a日", "ü"}));
    EXPECT_EQ(wrapColumns("üabcdefgh", 3), (Lines{"üab", "cde", "fgh"}));
    EXPECT_EQ(wrapColumns("ab üabc", 5), (Lines{"ab", "üabc"}));
    EXPECT_EQ(wrapColumns("über Größe", 5), (Lines{"über", "Größe"}));
    EXPECT_EQ(wrapColumns("über Größe", 8), (Lines{"über", "Größe"}));
    EXPECT_EQ(wrapColumns("aaau\u0308bb", 4), (Lines{"aaau\u0308", "bb"}));
    EXPECT_EQ(wrapColumns("\xff\xff\xff", 2), (Lines{"\xff\xff", "\xff"}));
}

} // namespace
