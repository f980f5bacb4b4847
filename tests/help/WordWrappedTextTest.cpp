#include "help/WordWrappedText.h"

#include <gtest/gtest.h>

namespace tarv_3_3 {
namespace {

TEST(WordWrappedText, TakesTheLeadFirstAndARightEdgeInsteadOfAWidth) {
    const WordWrappedText wrapped("-v", "aaa bbb ccc", 4, 12);
    EXPECT_STREQ(wrapped.getText(), "-v  aaa bbb\n    ccc\n");
}

TEST(WordWrappedText, KeepsItsTextAsLongAsItLives) {
    const WordWrappedText wrapped("", "abc", 2, 12);
    const char* const text = wrapped.getText();
    EXPECT_STREQ(text, "  abc\n");
    EXPECT_EQ(wrapped.getText(), text);
}

TEST(WordWrappedText, IsEmptyWithoutAText) {
    EXPECT_STREQ(WordWrappedText("-v", "", 4, 12).getText(), "");
}

} // namespace
} // namespace tarv_3_3
