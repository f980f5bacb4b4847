#include "completion/commonBeginning.h"

#include <gtest/gtest.h>

namespace tarv_3_3 {
namespace {

struct Row {
    const char* typed;
    std::vector<std::string> texts;
    const char* expected;
};

TEST(CommonBeginning, IsWhatIsTypedOrMore) {
    const Row rows[] = {
        {"", {}, ""},
        {"ab", {}, "ab"},
        {"", {"abc"}, "abc"},
        {"a", {"abc", "abd"}, "ab"},
        {"a", {"abc", "a"}, "a"},
        {"x", {"abc", "abd"}, "x"},
        {"", {"abc", "xyz"}, ""},
        // Characters of two bytes that differ in the second.
        {"", {"\xC3\xA4", "\xC3\xB6"}, ""},
        {"a", {"a\xC3\xA4", "a\xC3\xB6"}, "a"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.typed) + " " + testing::PrintToString(row.texts));
        EXPECT_EQ(commonBeginning(row.typed, row.texts), row.expected);
    }
}

TEST(CommonWords, LengthensEachWord) {
    const Row rows[] = {
        {"", {}, ""},
        {"m-c", {}, "m-c"},
        {"m-c", {"max-count"}, "max-count"},
        {"m-c", {"max-count", "min-count"}, "m-count"},
        {"m-c", {"max-count", "max-colour"}, "max-co"},
        {"m", {"max-count", "max-depth"}, "max-"},
        {"m-", {"max-count", "max-depth"}, "max-"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.typed) + " " + testing::PrintToString(row.texts));
        EXPECT_EQ(commonWords(row.typed, row.texts), row.expected);
    }
}

} // namespace
} // namespace tarv_3_3
