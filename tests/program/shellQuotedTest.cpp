#include "text/shellQuoted.h"

#include <gtest/gtest.h>

namespace tarv_program {
namespace {

TEST(ShellQuoted, QuotesWhatAShellWouldNotTakeAsItIs) {
    const struct {
        std::string word;
        const char* expected;
    } rows[] = {
        {"", "''"},
        {"--max-count=1", "--max-count=1"},
        {"two words", "'two words'"},
        {"$HOME", "'$HOME'"},
        {"it's", "'it'\\''s'"},
        {"gr\xC3\xBC\xC3\x9F", "'gr\xC3\xBC\xC3\x9F'"},
        // The first and the last letters of each length, and what stands beside them.
        {"\xC2\xA0\xDF\xBF", "'\xC2\xA0\xDF\xBF'"},
        {"\xE0\xA0\x80\xED\x9F\xBF", "'\xE0\xA0\x80\xED\x9F\xBF'"},
        {"\xEE\x80\x80\xEF\xBF\xBD", "'\xEE\x80\x80\xEF\xBF\xBD'"},
        {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBD", "'\xF0\x90\x80\x80\xF4\x8F\xBF\xBD'"},
        {"\xC1\xBF", "$'\\xc1\\xbf'"},
        {"\xC2\x9F", "$'\\xc2\\x9f'"},
        {"\xC3\xC0", "$'\\xc3\\xc0'"},
        {"\xE0\x9F\xBF", "$'\\xe0\\x9f\\xbf'"},
        {"\xED\xA0\x80", "$'\\xed\\xa0\\x80'"},
        {"\xE1\x80\x7F", "$'\\xe1\\x80\\x7f'"},
        {"\xF0\x8F\xBF\xBF", "$'\\xf0\\x8f\\xbf\\xbf'"},
        {"\xF4\x90\x80\x80", "$'\\xf4\\x90\\x80\\x80'"},
        {"\xF5\x80\x80\x80", "$'\\xf5\\x80\\x80\\x80'"},
        {"\x1B[2J", "$'\\x1b[2J'"},
        {"a'b\n", "$'a\\'b\\x0a'"},
        {"a\\b~\n", "$'a\\\\b~\\x0a'"},
        {"\xFF", "$'\\xff'"},
        {"\xC2\x9B", "$'\\xc2\\x9b'"},
        {"\xE2\x80", "$'\\xe2\\x80'"},
        {std::string(1, '\0'), "$'\\x00'"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.expected);
        EXPECT_EQ(shellQuoted(row.word), row.expected);
    }
}

TEST(ShellQuoted, PutsBlanksBetweenWords) {
    EXPECT_EQ(shellQuoted({"a", "b c", "d"}), "a 'b c' d");
    EXPECT_EQ(shellQuoted(std::vector<std::string>()), "");
}

TEST(Visible, ShowsControlCharactersAsTheirCodes) {
    EXPECT_EQ(visible("plain \xC3\xBC \"text\""), "plain \xC3\xBC \"text\"");
    EXPECT_EQ(visible("\x1B]0;x\x07\xFF\xC2\x9B"), "\\x1b]0;x\\x07\\xff\\xc2\\x9b");
}

} // namespace
} // namespace tarv_program
