#include <gtest/gtest.h>

#include "result/ParseResult.h"

namespace tarv_3_3 {
namespace {

TEST(PlainArguments, AreMissingInAnEmptyResult) {
    ParseResult result;
    const char* text = "untouched";
    EXPECT_EQ(result.getFirstArgument(&text), 1);
    EXPECT_EQ(result.getNextArgument(&text), 1);
    EXPECT_STREQ(text, "untouched");
}

TEST(PlainArguments, AreYieldedFromFirstToLast) {
    ParseResult result;
    result.storePlainArgument("b", 7);
    result.storePlainArgument("", 8);
    result.storePlainArgument("--a", 5);
    const char* text = nullptr;
    EXPECT_EQ(result.getNextArgument(&text), 1);
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(result.getFirstArgument(&text), 0);
        EXPECT_STREQ(text, "b");
        EXPECT_EQ(result.getNextArgument(&text), 0);
        EXPECT_STREQ(text, "");
        EXPECT_EQ(result.getNextArgument(&text), 0);
        EXPECT_STREQ(text, "--a");
        EXPECT_EQ(result.getNextArgument(&text), 1);
        EXPECT_EQ(result.getNextArgument(&text), 1);
        EXPECT_STREQ(text, "--a");
    }
}

TEST(PlainArguments, GoOnWithWhatIsStoredBehindTheLast) {
    ParseResult result;
    result.storePlainArgument("a", 1);
    const char* text = nullptr;
    EXPECT_EQ(result.getFirstArgument(&text), 0);
    EXPECT_EQ(result.getNextArgument(&text), 1);
    result.storePlainArgument("b", 2);
    EXPECT_EQ(result.getNextArgument(&text), 0);
    EXPECT_STREQ(text, "b");
}

TEST(PlainArguments, AreNotRewoundByQueries) {
    ParseResult result;
    result.storePlainArgument("a", 1);
    result.storePlainArgument("b", 2);
    const char* text = nullptr;
    EXPECT_EQ(result.getFirstArgument(&text), 0);
    EXPECT_FALSE(result.present("a", 0, 2147483647));
    EXPECT_EQ(result.get("a", 0, 2147483647).status, 1);
    EXPECT_EQ(result.getNextArgument(&text), 0);
    EXPECT_STREQ(text, "b");
}

TEST(PlainArguments, AreCopiedIntoByteStringsAsWell) {
    ParseResult result;
    result.storePlainArgument("a", 1);
    std::string text = "untouched";
    EXPECT_EQ(result.getNextArgument(text), 1);
    EXPECT_EQ(text, "untouched");
    EXPECT_EQ(result.getFirstArgument(text), 0);
    EXPECT_EQ(text, "a");
    EXPECT_EQ(result.getNextArgument(text), 1);
    EXPECT_EQ(text, "a");
}

} // namespace
} // namespace tarv_3_3
