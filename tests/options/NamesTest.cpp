#include "options/Names.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

namespace tarv_3_3 {
namespace {

TEST(Names, AreEmptyAtFirst) {
    const Names names;
    EXPECT_TRUE(names.empty());
    EXPECT_EQ(names.size(), 0U);
    EXPECT_EQ(names.begin(), names.end());
    EXPECT_FALSE(names.mayFit(Names::anything));
    EXPECT_THROW(names.at(0), std::out_of_range);
}

TEST(Names, KeepTheirOrder) {
    Names names = {"level", "l"};
    names.emplace_back("depth of something", 5);
    EXPECT_EQ(std::vector<std::string>(names.begin(), names.end()),
              (std::vector<std::string>{"level", "l", "depth"}));
    EXPECT_EQ(names.front(), "level");
    EXPECT_EQ(names[1], "l");
    EXPECT_EQ(names.at(2), "depth");
    EXPECT_EQ(names.size(), 3U);
    EXPECT_FALSE(names.empty());
}

TEST(Names, AreEqualInTheSameOrderOnly) {
    EXPECT_EQ(Names({"a", "b"}), Names({"a", "b"}));
    EXPECT_FALSE(Names({"a", "b"}) == Names({"b", "a"}));
    EXPECT_FALSE(Names({"a", "b"}) == Names({"a"}));
}

// '\1' and 'A' have the same bit.
TEST(Names, MayFitWhatTheirFirstTwoWordsBeginWith) {
    const struct {
        const char* name;
        Names::Pattern pattern;
        bool mayFit;
    } rows[] = {
        {"level", {Names::bitOf('l'), Names::noWord}, true},
        {"level", {Names::bitOf('e'), Names::noWord}, false},
        {"level", {Names::bitOf('l'), Names::bitOf('e')}, false},
        {"level", {Names::bitOf('l'), Names::anyByte}, true},
        {"level", {Names::anyByte, Names::noWord}, true},
        {"log-file", {Names::bitOf('l'), Names::bitOf('f')}, true},
        {"log-file", {Names::bitOf('l'), Names::bitOf('i')}, false},
        {"log-file", {Names::bitOf('l'), Names::noWord}, false},
        {"log-file", {Names::anyByte, Names::bitOf('f')}, true},
        {"log-file-name", {Names::bitOf('l'), Names::bitOf('f')}, true},
        {"log-file-name", {Names::bitOf('l'), Names::bitOf('n')}, false},
        {"log-", {Names::bitOf('l'), Names::anyByte}, true},
        {"log--x", {Names::bitOf('l'), Names::anyByte}, true},
        {"-file", {Names::anyByte, Names::bitOf('f')}, true},
        {"", {Names::anyByte, Names::noWord}, true},
        {"\xE4-\xF6", {Names::bitOf('\xE4'), Names::bitOf('\xF6')}, true},
        {"\1", {Names::bitOf('A'), Names::noWord}, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Names({row.name}).mayFit(row.pattern), row.mayFit);
        EXPECT_TRUE(Names({row.name}).mayFit(Names::anything));
        Names last = {"+-+"};
        last.emplace_back(row.name);
        EXPECT_EQ(last.mayFit(row.pattern), row.mayFit);
    }
}

TEST(Names, HaveABitForEveryByte) {
    for (int byte = -128; byte < 128; ++byte) {
        SCOPED_TRACE(byte);
        const std::uint64_t bit = Names::bitOf(static_cast<char>(byte));
        EXPECT_NE(bit, 0U);
        EXPECT_EQ(bit & (bit - 1), 0U);
    }
    for (char letter = 'a'; letter < 'z'; ++letter) {
        SCOPED_TRACE(letter);
        EXPECT_NE(Names::bitOf(letter), Names::bitOf(static_cast<char>(letter + 1)));
    }
}

TEST(Names, TakeTheirBitsAlongWhenTheyAreCopiedOrMoved) {
    const Names::Pattern own = {Names::bitOf('d'), Names::noWord};
    const Names::Pattern other = {Names::bitOf('e'), Names::noWord};
    Names names = {"level", "depth"};
    const Names copy = names;
    EXPECT_EQ(copy, names);
    EXPECT_TRUE(copy.mayFit(own));
    EXPECT_FALSE(copy.mayFit(other));
    internal::ArenaWithRoom<64> memory;
    const Names there(std::move(names), memory);
    EXPECT_EQ(there, copy);
    EXPECT_TRUE(there.mayFit(own));
    EXPECT_FALSE(there.mayFit(other));
    Names assigned;
    assigned = there;
    EXPECT_EQ(assigned, copy);
    EXPECT_TRUE(assigned.mayFit(own));
    EXPECT_FALSE(assigned.mayFit(other));
}

} // namespace
} // namespace tarv_3_3
