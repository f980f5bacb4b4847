#include "escaping.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace seek {
namespace {

TEST(EscapeControls, ReplacesControlCharactersAndNothingElse) {
    const struct {
        std::string text;
        std::string expected;
    } rows[] = {
        {"", ""},
        {"poem.txt", "poem.txt"},
        {" ~", " ~"},
        {std::string("a\0b", 3), "a\\x00b"},
        {"two\nlines", "two\\x0alines"},
        {"\x1b[31mred\x1b[m", "\\x1b[31mred\\x1b[m"},
        {"\x01\x1f\x7f", "\\x01\\x1f\\x7f"},
        {"back\\slash", "back\\slash"},
        // U+0080 and U+009F are control characters, their neighbours are not.
        {"\xc2\x80\xc2\x9f\xc2\xa0", "\\xc2\\x80\\xc2\\x9f\xc2\xa0"},
        {"d\xc3\xbcne \xe5\xb1\xb1 \xf0\x9f\x8f\x94", "d\xc3\xbcne \xe5\xb1\xb1 \xf0\x9f\x8f\x94"},
        {"cut\xc2", "cut\xc2"},
        {"\xc2\n", "\xc2\\x0a"},
        {"\x9b\xff", "\x9b\xff"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.expected);
        EXPECT_EQ(escapeControls(row.text), row.expected);
    }
}

TEST(EscapeControls, LooksAtNothingBehindTheEnd) {
    EXPECT_EQ(escapeControls(std::string_view("\xc2\x80", 1)), "\xc2");
}

} // namespace
} // namespace seek
