#include "compare/report.h"

#include <gtest/gtest.h>

#include "CompareRows.h"
#include "Described.h"
#include "compare/compare.h"

using namespace tarv_3_3;

namespace tarv_program {
namespace {

TEST(AcceptBreaks, PassesByTheLinesOfABaseline) {
    Comparison comparison =
        compare(described([](IParser& p) { p.option("one,two", "", vtNull); }), described(nothing));
    acceptBreaks(comparison, "# agreed\n\nname: tool --two: is unknown\nname: tool --three: is unknown\n");
    EXPECT_EQ(reportAsText(comparison), "tool --one\n"
                                        "    until now: means --one\n"
                                        "    now:       is unknown\n"
                                        "    and 2 shorter forms of it\n"
                                        "1 break, 1 break accepted.\n");
    acceptBreaks(comparison, "name: tool --one: is unknown\n");
    EXPECT_EQ(comparison.breaks.size(), 0U);
}

} // namespace
} // namespace tarv_program
