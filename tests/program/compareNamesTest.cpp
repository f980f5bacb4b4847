#include "compare/compare.h"

#include <gtest/gtest.h>

#include "CompareRows.h"
#include "Described.h"
#include "compare/report.h"

using namespace tarv_3_3;

namespace tarv_program {
namespace {

TEST(Compare, FindsNamesThatMeanSomethingElse) {
    expectRows({
        {"nothing declared", nothing, nothing, ""},
        {"an option more, like no other", nothing, [](IParser& p) { p.option("new", "", vtBool); }, ""},
        {"an option gone", [](IParser& p) { p.option("old", "", vtNull); }, nothing,
         "name: tool --old: is unknown\n"},
        {"a synonym gone", [](IParser& p) { p.option("old,other", "", vtNull); },
         [](IParser& p) { p.option("old", "", vtNull); }, "name: tool --other: is unknown\n"},
        {"names in another order", [](IParser& p) { p.option("old,other", "", vtNull); },
         [](IParser& p) { p.option("other,old", "", vtNull); }, ""},
        {"an abbreviation that is ambiguous now", [](IParser& p) { p.option("max-count", "", vtInt32); },
         [](IParser& p) {
             p.option("max-count", "", vtInt32);
             p.option("max-colors", "", vtInt32);
         },
         "name: tool --max-co=1: is ambiguous: --max-count, --max-colors\n"},
        {"an abbreviation that is a name now", [](IParser& p) { p.option("verbose", "", vtNull); },
         [](IParser& p) {
             p.option("verbose", "", vtNull);
             p.option("verb", "", vtNull);
         },
         "name: tool --ver: is ambiguous: --verbose, --verb\nname: tool --verb: means --verb\n"},
        {"a name that another option has now", [](IParser& p) { p.option("old,x", "", vtNull); },
         [](IParser& p) {
             p.option("old", "", vtNull);
             p.option("exclude,x", "", vtNull);
         },
         "name: tool --x: means --x\n"},
        {"a switch without its no- form", [](IParser& p) { p.option("color", "", vtBool); },
         [](IParser& p) { p.option("color", "", vtNull); }, "name: tool --no-color: is unknown\n"},
        {"an abbreviated no- form", [](IParser& p) { p.option("color", "", vtBool); },
         [](IParser& p) {
             p.option("color", "", vtBool);
             p.option("no-cold", "", vtNull);
         },
         "name: tool --no-col: is ambiguous: --no-color, --no-cold\n"},
        {"an option that is turned off now", [](IParser& p) { p.option("no-color", "", vtNull); },
         [](IParser& p) { p.option("no-color", "", vtBool); }, "name: tool --no-color: means --no-color\n"},
        {"a no- form that is an option now", [](IParser& p) { p.option("color", "", vtBool); },
         [](IParser& p) {
             p.option("no-color", "", vtNull);
             p.option("color", "", vtBool);
         },
         "name: tool --no-color: is ambiguous: --no-color, --no-color\n"},
    });
}

TEST(Compare, FindsNamesThatBecomePositional) {
    expectRows({{"an option gone",
                 [](IParser& p) {
                     p.option("old", "", vtNull);
                     p.option("file", "", vtString).positional();
                 },
                 [](IParser& p) { p.option("file", "", vtString).positional(); },
                 "name: tool --old: is a positional argument\n"}},
               0);
}

TEST(Compare, TakesHelpThatAProgramHasByItselfForTheSame) {
    CommandLine older = described([](IParser& p) {
        p.option("help,h", "", vtNull);
        p.option("version", "", vtNull);
    });
    CommandLine newer = described(nothing);
    older.verbs = {newer};
    older.verbs[0].names = {"log"};
    newer.verbs = older.verbs;
    const std::string neither = "name: tool --help: is unknown\n"
                                "name: tool --h: is unknown\n"
                                "name: tool --version: is unknown\n";
    EXPECT_EQ(reportAsBaseline(compare(older, newer)), neither);
    newer.mends = {"loneDash"};
    EXPECT_EQ(reportAsBaseline(compare(older, newer)), "name: tool --version: is unknown\n");
    newer.version = "1.0";
    EXPECT_EQ(reportAsBaseline(compare(older, newer)), "");
}

// Declared names go before those that a program has by itself.
TEST(Compare, FindsWaysToAskForHelpThatAreTakenAway) {
    CommandLine older = described(nothing);
    older.mends = {"loneDash"};
    older.version = "1.0";
    CommandLine newer = older;
    newer.options = described([](IParser& p) {
                        p.option("hello,v", "", vtNull);
                        p.option("heap", "", vtNull);
                    }).options;
    EXPECT_EQ(reportAsBaseline(compare(older, newer)), "name: tool --he: is ambiguous: --hello, --heap\n"
                                                       "name: tool --hel: means --hello\n"
                                                       "name: tool --v: means --v\n");
    EXPECT_EQ(reportAsBaseline(compare(newer, older)), "name: tool --hello: is unknown\n"
                                                       "name: tool --v: shows the version\n"
                                                       "name: tool --heap: is unknown\n");
    newer = older;
    newer.version = "";
    EXPECT_EQ(reportAsBaseline(compare(older, newer)), "name: tool --version: is unknown\n");
    newer = older;
    older.verbs = {verb({"log"}, nothing)};
    older.verbs[0].verbs = {verb({"all"}, nothing)};
    newer.verbs = {older.verbs[0], verb({"hello"}, nothing)};
    newer.verbs[0].verbs.push_back(verb({"help"}, nothing));
    EXPECT_EQ(reportAsBaseline(compare(older, newer)), "verb: tool hel: means hello\n");
}

} // namespace
} // namespace tarv_program
