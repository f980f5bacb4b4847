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
    EXPECT_EQ(names.firstBytes(), 0U);
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

TEST(Names, HaveTheBitOfTheFirstByteOfEach) {
    Names names = {"level", "Xy"};
    EXPECT_EQ(names.firstBytes(), Names::bitOf('l') | Names::bitOf('X'));
    names.emplace_back("\xE4");
    EXPECT_EQ(names.firstBytes(), Names::bitOf('l') | Names::bitOf('X') | Names::bitOf('\xE4'));
    names.emplace_back("");
    EXPECT_NE(names.firstBytes() & Names::bitOf('\0'), 0U);
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
    const std::uint64_t bits = Names::bitOf('l') | Names::bitOf('d');
    Names names = {"level", "depth"};
    const Names copy = names;
    EXPECT_EQ(copy, names);
    EXPECT_EQ(copy.firstBytes(), bits);
    internal::ArenaWithRoom<64> memory;
    const Names there(std::move(names), memory);
    EXPECT_EQ(there, copy);
    EXPECT_EQ(there.firstBytes(), bits);
    Names assigned;
    assigned = there;
    EXPECT_EQ(assigned, copy);
    EXPECT_EQ(assigned.firstBytes(), bits);
}

} // namespace
} // namespace tarv_3_3
