#include "platform/utf32_to_utf8.h"

#include <gtest/gtest.h>

namespace MERO_2_16::strings {
namespace {

struct Row {
    char32_t codePoint;
    const char* bytes;
};

template <std::size_t count>
void expectEncoded(const Row (&rows)[count]) {
    for (const Row& row : rows) {
        SCOPED_TRACE(static_cast<unsigned>(row.codePoint));
        EXPECT_EQ(utf32_to_utf8(ustring32(1, row.codePoint)), row.bytes);
    }
}

TEST(Utf32ToUtf8, EncodesEachLengthFromItsFirstToItsLastCodePoint) {
    expectEncoded({
        {0x01, "\x01"},
        {'-', "-"},
        {0x7F, "\x7F"},
        {0x80, "\xC2\x80"},
        {0x7FF, "\xDF\xBF"},
        {0x800, "\xE0\xA0\x80"},
        {0x2012, "\xE2\x80\x92"},
        {0x2053, "\xE2\x81\x93"},
        {0xD7FF, "\xED\x9F\xBF"},
        {0xE000, "\xEE\x80\x80"},
        {0xFFFF, "\xEF\xBF\xBF"},
        {0x10000, "\xF0\x90\x80\x80"},
        {0x1F600, "\xF0\x9F\x98\x80"},
        {0x10FFFF, "\xF4\x8F\xBF\xBF"},
    });
}

TEST(Utf32ToUtf8, ReplacesWhatIsNoScalarValue) {
    expectEncoded({
        {0xD800, "\xEF\xBF\xBD"},
        {0xDBFF, "\xEF\xBF\xBD"},
        {0xDC00, "\xEF\xBF\xBD"},
        {0xDFFF, "\xEF\xBF\xBD"},
        {0x110000, "\xEF\xBF\xBD"},
        {0xFFFFFFFF, "\xEF\xBF\xBD"},
    });
}

TEST(Utf32ToUtf8, KeepsZeros) {
    EXPECT_EQ(utf32_to_utf8(ustring32(U"a\0b", 3)), ustring8("a\0b", 3));
}

TEST(Utf32ToUtf8, EncodesAWholeText) {
    EXPECT_EQ(utf32_to_utf8(U""), "");
    EXPECT_EQ(utf32_to_utf8(U"a\u2013\U0001F600b"), "a\xE2\x80\x93\xF0\x9F\x98\x80"
                                                    "b");
}

} // namespace
} // namespace MERO_2_16::strings
