#include "recognition/DecomposedName.h"

#include <gtest/gtest.h>

#include <utility>

namespace tarv_3_3 {
namespace {

using Words = std::vector<std::string>;

TEST(DecomposedName, CutsAtEveryHyphenAndKeepsEmptyWords) {
    const struct {
        const char* name;
        Words words;
    } rows[] = {
        {"output-file", {"output", "file"}},
        {"output", {"output"}},
        {"a-b-c", {"a", "b", "c"}},
        {"a--b", {"a", "", "b"}},
        {"-a", {"", "a"}},
        {"a-", {"a", ""}},
        {"", {""}},
        {"-", {"", ""}},
        {"--", {"", "", ""}},
        {"a\u2013b", {"a\u2013b"}},
        {"a_b c=d", {"a_b c=d"}},
        {"No-Case", {"No", "Case"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(DecomposedName(row.name).m_words, row.words);
    }
}

TEST(DecomposedName, JoinsItsWordsToTheNameAgain) {
    for (const char* const name :
         {"output-file", "output", "a-b-c", "a--b", "-a", "a-", "", "-", "---", "\u2013-x"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(DecomposedName(name).getName(), name);
    }
}

TEST(DecomposedName, JoinsTheWordsThatItHoldsNow) {
    DecomposedName name("no-verbose");
    name.m_words = {"verb", "", "ose"};
    EXPECT_EQ(name.getName(), "verb--ose");
    name.m_words.resize(1);
    EXPECT_EQ(name.getName(), "verb");
}

TEST(DecomposedName, CopiesAreIndependent) {
    DecomposedName source("output-file");
    const DecomposedName copy(source);
    DecomposedName assigned("x");
    assigned = source;
    source.m_words[0] = "input";
    EXPECT_EQ(source.getName(), "input-file");
    EXPECT_EQ(copy.getName(), "output-file");
    EXPECT_EQ(assigned.getName(), "output-file");
}

TEST(DecomposedName, MovingHandsTheWordsOver) {
    DecomposedName source("output-file");
    DecomposedName assigned("x");
    assigned = std::move(source);
    EXPECT_EQ(assigned.getName(), "output-file");
    const DecomposedName constructed(std::move(assigned));
    EXPECT_EQ(constructed.getName(), "output-file");
}

} // namespace
} // namespace tarv_3_3
