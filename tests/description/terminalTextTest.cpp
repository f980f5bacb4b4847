#include "description/terminalText.h"

#include <gtest/gtest.h>

#include <string>

using namespace tarv_3_3;

namespace {

TEST(TerminalText, ShowsWhatATerminalMustNotGetAsBytes) {
    const struct {
        const char* text;
        const char* shown;
    } rows[] = {
        {"", ""},
        {"plain -l=3", "plain -l=3"},
        {"gr\xC3\xBC\xC3\x9F\x65", "gr\xC3\xBC\xC3\x9F\x65"},
        {"it's", "it\\x27s"},
        {"\"x\"", "\\x22x\\x22"},
        {"a\\b", "a\\x5cb"},
        {"\x1B[31m", "\\x1b[31m"},
        {"tab\tline\n", "tab\\x09line\\x0a"},
        {"\x7F", "\\x7f"},
        {"\xC2\x9B"
         "31m",
         "\\xc2\\x9b31m"},
        {"\xFF\xC3", "\\xff\\xc3"},
        {"\xC3(", "\\xc3("},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.text));
        EXPECT_EQ(internal::terminalText(row.text), row.shown);
    }
}

} // namespace
