#include "tarv_3_3/internal/Garbage.h"

#include <gtest/gtest.h>

#include <string>

namespace tarv_3_3 {
namespace {

TEST(Garbage, KeepsOneCopyOfEqualTexts) {
    Garbage garbage;
    std::string text = "level";
    const char* const first = garbage.init(text.c_str());
    EXPECT_NE(first, text.c_str());
    text[0] = 'b';
    const char* const other = garbage.init(text.c_str());
    EXPECT_STREQ(first, "level");
    EXPECT_STREQ(other, "bevel");
    EXPECT_EQ(garbage.init("level"), first);
}

TEST(Garbage, YieldsTheEmptyTextForNullAndForTheEmptyText) {
    Garbage garbage;
    EXPECT_STREQ(garbage.init(nullptr), "");
    EXPECT_STREQ(garbage.init(""), "");
    EXPECT_EQ(garbage.init(""), garbage.init(""));
}

TEST(Garbage, LeavesItsTextsWhereTheyAreAsItGrows) {
    Garbage garbage;
    const char* const first = garbage.init("first");
    for (int i = 0; i < 1000; ++i) {
        garbage.init(std::to_string(i).c_str());
    }
    EXPECT_STREQ(first, "first");
    EXPECT_EQ(garbage.init("first"), first);
}

TEST(Garbage, TellsTextsApartByEveryByte) {
    Garbage garbage;
    EXPECT_NE(garbage.init("a"), garbage.init("A"));
    EXPECT_NE(garbage.init("a"), garbage.init("a "));
    EXPECT_STREQ(garbage.init("\xFF\x01"), "\xFF\x01");
}

} // namespace
} // namespace tarv_3_3
