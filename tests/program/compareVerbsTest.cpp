#include "compare/compare.h"

#include <gtest/gtest.h>

#include "CompareRows.h"
#include "Described.h"
#include "compare/report.h"

using namespace tarv_3_3;

namespace tarv_program {
namespace {

TEST(Compare, ComparesVerbsAndWhatBelongsToThem) {
    CommandLine older = described([](IParser& p) { p.option("dir", "", vtString).tokenize(0); });
    CommandLine newer = older;
    older.verbs = {verb({"log", "history"}, [](IParser& p) { p.option("max-count", "", vtInt32); }),
                   verb({"status"}, nothing)};
    newer.verbs = {verb({"log"},
                        [](IParser& p) {
                            p.option("max-count", "", vtInt32);
                            p.option("digits", "", vtNull);
                        }),
                   verb({"stash"}, nothing), verb({"status"}, nothing)};
    const Comparison comparison = compare(older, newer);
    EXPECT_EQ(reportAsBaseline(comparison), "verb: tool history: is unknown\n"
                                            "verb: tool sta: is ambiguous: stash, status\n"
                                            "name: tool log --di=text: is ambiguous: --dir, --digits\n");
    EXPECT_EQ(comparison.additions, (std::vector<std::string>{"tool stash", "tool log --digits"}));
}

TEST(Compare, FindsThatAVerbIsNeeded) {
    const Declare needsAnOption = [](IParser& p) {
        p.option("dir", "", vtString);
        addRule(&p, ruleRequired, "dir");
    };
    CommandLine without = described(needsAnOption);
    CommandLine older = without;
    older.verbs = {verb({"log"}, nothing)};
    CommandLine needed = older;
    CommandLine unneeded = older;
    needed.isVerbRequired = true;
    unneeded.isVerbRequired = false;
    const std::string broken = "line: tool --dir=text: is refused: a verb is missing\n";
    const std::vector<std::string> unknown = {
        "a verb is needed; the older description does not say whether it was before"};
    const struct {
        const char* title;
        const CommandLine& older;
        const CommandLine& newer;
        std::string expected;
        std::vector<std::string> unjudged;
    } rows[] = {
        {"needed now", unneeded, needed, broken, {}},
        {"needed now, and there was none", without, needed, broken, {}},
        {"needed still", needed, needed, "", {}},
        {"not needed any more", needed, unneeded, "", {}},
        {"not needed, and there was none", without, unneeded, "", {}},
        {"needed, and an older description", older, needed, "", unknown},
        {"not needed, and an older description", older, unneeded, "", {}},
        {"two older descriptions", older, older, "", {}},
        {"a newer side with an older description", unneeded, older, "", {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.title);
        const Comparison comparison = compare(row.older, row.newer);
        EXPECT_EQ(reportAsBaseline(comparison), row.expected);
        EXPECT_EQ(comparison.unjudged, row.unjudged);
    }
    unneeded.verbs[0].verbs = needed.verbs[0].verbs = {verb({"all"}, nothing)};
    needed.isVerbRequired = unneeded.verbs[0].isVerbRequired = false;
    needed.verbs[0].isVerbRequired = true;
    EXPECT_EQ(reportAsBaseline(compare(unneeded, needed)),
              "line: tool log --dir=text: is refused: a verb is missing\n");
}

TEST(Compare, SaysOnceWhatBreaksWithAllVerbs) {
    CommandLine older = described([](IParser& p) {
        p.option("dir", "", vtString).tokenize(0).defaultValue("here");
        p.option("gone", "", vtNull);
    });
    CommandLine newer = described([](IParser& p) {
        p.option("dir", "", vtString).tokenize(0).defaultValue("there");
        p.option("more", "", vtNull);
    });
    older.verbs = {verb({"log"}, nothing), verb({"status"}, nothing)};
    newer.verbs = {verb({"log"}, [](IParser& p) { p.option("digits", "", vtNull); }),
                   verb({"status"}, nothing)};
    newer.verbs[0].checks = newer.verbs[1].checks = {"handlers"};
    const Comparison comparison = compare(older, newer);
    EXPECT_EQ(reportAsBaseline(comparison), "name: tool --gone: is unknown\n"
                                            "default: tool: --dir is there\n"
                                            "name: tool log --di=text: is ambiguous: --dir, --digits\n");
    EXPECT_EQ(comparison.additions, (std::vector<std::string>{"tool --more", "tool log --digits"}));
    EXPECT_EQ(comparison.unjudged, std::vector<std::string>{"the program checks more than before: handlers"});
}

} // namespace
} // namespace tarv_program
