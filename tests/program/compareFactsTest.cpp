#include "compare/compare.h"

#include <gtest/gtest.h>

#include "CompareRows.h"
#include "Described.h"
#include "compare/report.h"

using namespace tarv_3_3;

namespace tarv_program {
namespace {

TEST(Compare, FindsFactsThatNoCommandLineShows) {
    expectRows({
        {"another default", [](IParser& p) { p.option("n", "", vtInt32).defaultValue(1); },
         [](IParser& p) { p.option("n", "", vtInt32).defaultValue(2); }, "default: tool: --n is 2\n"},
        {"a default gone", [](IParser& p) { p.option("n", "", vtInt32).defaultValue(1); },
         [](IParser& p) { p.option("n", "", vtInt32); }, "default: tool: --n has no default\n"},
        {"another variable",
         [](IParser& p) {
             p.option("n", "", vtInt32);
             annotate(&p, "n", "environment", "OLD");
         },
         [](IParser& p) {
             p.option("n", "", vtInt32);
             annotate(&p, "n", "environment", "NEW");
         },
         "environment: OLD=1 tool: is not read; NEW is\n"},
        {"no option files any more", [](IParser& p) { p.addOptionFileOption(""); },
         [](IParser& p) { p.option("option-file", "", vtString); },
         "settings: tool --option-file=arguments.txt: does not\n"},
    });
}

TEST(Compare, ComparesSettingsMendsCountsAndSaysWhatItCannotJudge) {
    CommandLine older = described([](IParser& p) { p.option("file", "", vtString).positional(); });
    CommandLine newer = older;
    older.settings = {{"/etc/tool", ""}, {"", "config"}};
    newer.settings = {{"", "config"}};
    older.mends = {"numbers"};
    newer.mends = {"letters"};
    newer.checks = {"handlers"};
    newer.options[0].checks = {"even"};
    older.options[0].count = Count{1, 3};
    newer.options[0].count = Count{2, 2};
    const Comparison comparison = compare(older, newer);
    EXPECT_EQ(reportAsBaseline(comparison),
              "line: tool text: is refused: argument FILE is needed at least 2 times\n"
              "line: tool text text text: is refused: there are too many arguments\n"
              "settings: tool: does not\n"
              "line: tool: does not\n");
    EXPECT_EQ(
        comparison.unjudged,
        (std::vector<std::string>{"FILE is checked by the program: even", "command lines are mended: letters",
                                  "the program checks more than before: handlers"}));
}

} // namespace
} // namespace tarv_program
