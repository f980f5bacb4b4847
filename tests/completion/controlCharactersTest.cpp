#include "completion/controlCharacters.h"

#include <gtest/gtest.h>

#include <string>

namespace tarv_3_3 {
namespace {

using std::string_literals::operator""s;

// A text, and what stands in its place where no control characters may be.
const struct {
    std::string text;
    std::string plain;
    bool hasControls;
} cases[] = {
    {"", "", false},
    {"plain text", "plain text", false},
    {"a\tb", "a b", true},
    {"a\x1b[31mb", "a [31mb", true},
    {"\0x"s, " x", true},
    {"\x1f \x20 \x7e", "    ~", true},
    {"\x7f", " ", true},
    {"first\nsecond", "first", true},
    {"\n", "", true},
    {"first\rsecond", "first second", true},
    {"\xe0\xa0\x80\xed\x9f\xbf\xee\x80\x80", "\xe0\xa0\x80\xed\x9f\xbf\xee\x80\x80", false},
    // What is no control character: U+00A0, U+00E4, U+20AC, U+1F600, the last of all.
    {"\xc2\xa0\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80\xf4\x8f\xbf\xbf",
     "\xc2\xa0\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80\xf4\x8f\xbf\xbf", false},
    // Continuation bytes below 0xA0 are none in UTF-8.
    {"\xc5\x9b\xe1\x80\x80\xf0\x90\x80\x80", "\xc5\x9b\xe1\x80\x80\xf0\x90\x80\x80", false},
    {"\xc2\x80", " ", true},
    {"\xc2\x9b", " ", true},
    {"\xc2\x9f"
     "a",
     " a", true},
    // No UTF-8: bytes that some terminals obey, and others that none does.
    {"\x9b", " ", true},
    {"a\x80z\x9fz", "a z z", true},
    {"\xa0\xe4\xff", "\xa0\xe4\xff", false},
    {"\xe4", "\xe4", false},
    {"\xe2\x82", "\xe2 ", true},
    {"\xe2\x82z", "\xe2 z", true},
    {"\xf0\x9f\x98", "\xf0  ", true},
    {"\xc3\x1b", "\xc3 ", true},
    {"\xe2\xa2\x1b", "\xe2\xa2 ", true},
    // Too long a form, a surrogate, beyond the last character.
    {"\xc0\x9b", "\xc0 ", true},
    {"\xc1\xbf", "\xc1\xbf", false},
    {"\xe0\x82\x9b", "\xe0  ", true},
    {"\xf0\x80\x82\x9b", "\xf0   ", true},
    {"\xed\xa0\x9b", "\xed\xa0 ", true},
    {"\xf4\x90\x80\x80", "\xf4   ", true},
    {"\xf5\x80\xa0\xa0", "\xf5 \xa0\xa0", true},
};

TEST(HasControlCharacters, SeesWhatATerminalMayObey) {
    for (const auto& example : cases) {
        SCOPED_TRACE(testing::PrintToString(example.text));
        EXPECT_EQ(hasControlCharacters(example.text), example.hasControls);
    }
}

TEST(WithoutControlCharacters, PutsABlankInPlaceOfEachInTheFirstLine) {
    for (const auto& example : cases) {
        SCOPED_TRACE(testing::PrintToString(example.text));
        EXPECT_EQ(withoutControlCharacters(example.text), example.plain);
    }
}

} // namespace
} // namespace tarv_3_3
