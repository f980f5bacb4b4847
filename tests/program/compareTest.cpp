#include "compare/compare.h"

#include <gtest/gtest.h>

#include "CompareRows.h"
#include "Described.h"

using namespace tarv_3_3;

namespace tarv_program {
namespace {

TEST(Compare, ListsAdditionsApart) {
    const Comparison comparison = compare(
        described([](IParser& p) { p.option("a", "", vtString).allowValue("x"); }), described([](IParser& p) {
            p.option("a,all", "", vtString).allowValue("x").allowValue("y");
            p.option("b", "", vtBool);
        }));
    EXPECT_EQ(comparison.breaks.size(), 0U);
    EXPECT_EQ(comparison.additions,
              (std::vector<std::string>{"tool --a=y", "tool --all, a name for --a", "tool --b"}));
}

TEST(Compare, RefusesADescriptionThatSaysMoreThanIsKnown) {
    CommandLine line = described(nothing);
    line.minorVersion = 2;
    EXPECT_THROW(compare(line, described(nothing)), Failure);
}

} // namespace
} // namespace tarv_program
