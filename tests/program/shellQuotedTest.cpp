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
