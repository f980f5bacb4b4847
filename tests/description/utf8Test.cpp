#include "description/utf8.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/utf32_to_utf8.h"

using namespace tarv_3_3;

namespace {

TEST(Utf8Length, IsThatOfTheFirstCharacterAndZeroWhereNoneBegins) {
    const struct {
        const char* text;
        std::size_t length;
    } rows[] = {
        {"", 0},
        {"a", 1},
        {"ab", 1},
        {"\x01", 1},
        {"\x7F", 1},
        {"\x80", 0},
        {"\xBF", 0},
        {"\xC0\x80", 0},
        {"\xC1\xBF", 0},
        {"\xC2\x80", 2},
        {"\xC2\x7F", 0},
        {"\xC2\xC0", 0},
        {"\xDF\xBF", 2},
        {"\xC3", 0},
        {"\xC3\xA4x", 2},
        {"\xE0\x9F\xBF", 0},
        {"\xE0\xA0\x80", 3},
        {"\xE1\x80\x80", 3},
        {"\xE1\x80", 0},
        {"\xE1\x80\xC0", 0},
        {"\xE1\x80\x7F", 0},
        {"\xED\x9F\xBF", 3},
        {"\xED\xA0\x80", 0},
        {"\xEE\x80\x80", 3},
        {"\xEF\xBF\xBD", 3},
        {"\xF0\x8F\xBF\xBF", 0},
        {"\xF0\x90\x80\x80", 4},
        {"\xF1\x80\x80", 0},
        {"\xF3\xBF\xBF\xBF", 4},
        {"\xF3\xBF\xBF\x7F", 0},
        {"\xF4\x8F\xBF\xBF", 4},
        {"\xF4\x90\x80\x80", 0},
        {"\xF5\x80\x80\x80", 0},
        {"\xFF", 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.text));
        EXPECT_EQ(internal::utf8Length(row.text), row.length);
    }
    EXPECT_EQ(internal::utf8Length(std::string(1, '\0')), 1U);
}

// The encoder says what a character is; it was written without the decoder.
TEST(Utf8Length, TakesEveryScalarValue) {
    for (char32_t code = 1; code <= 0x10FFFF; ++code) {
        if (code >= 0xD800 && code <= 0xDFFF) {
            continue;
        }
        const std::string text = MERO_2_16::strings::utf32_to_utf8(MERO_2_16::strings::ustring32(1, code));
        ASSERT_EQ(internal::utf8Length(text), text.size()) << static_cast<unsigned long>(code);
    }
}

TEST(IsControl, HoldsForC0AndC1AndDelete) {
    const struct {
        const char* character;
        bool isControl;
    } rows[] = {{"\x01", true},      {"\x1B", true},      {"\x1F", true},         {" ", false},
                {"~", false},        {"\x7F", true},      {"\xC2\x80", true},     {"\xC2\x9F", true},
                {"\xC2\xA0", false}, {"\xC3\x80", false}, {"\xE2\x80\x99", false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.character));
        EXPECT_EQ(internal::isControl(row.character), row.isControl);
    }
    EXPECT_TRUE(internal::isControl(std::string(1, '\0')));
}

} // namespace
