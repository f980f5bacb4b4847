#include "compare/compare.h"

#include <gtest/gtest.h>

#include "CompareRows.h"
#include "Described.h"
#include "compare/report.h"

using namespace tarv_3_3;

namespace tarv_program {
namespace {

TEST(Compare, FindsRulesThatRefuseMore) {
    expectRows({
        {"one that is required now", [](IParser& p) { p.option("a", "", vtNull); },
         [](IParser& p) {
             p.option("a", "", vtNull);
             addRule(&p, ruleRequired, "a");
         },
         "line: tool: is refused: Option 'a' is required\n"},
        {"one that a note requires now", [](IParser& p) { p.option("a", "", vtNull); },
         [](IParser& p) {
             p.option("a", "", vtNull);
             annotate(&p, "a", "required", "1");
         },
         "line: tool: is refused: Option 'a' is required\n"},
        {"two that exclude each other now",
         [](IParser& p) {
             p.option("a", "", vtNull);
             p.option("b", "", vtInt32);
             addRule(&p, ruleRequired, "b");
         },
         [](IParser& p) {
             p.option("a", "", vtNull);
             p.option("b", "", vtInt32);
             addRule(&p, ruleRequired, "b");
             addRule(&p, ruleAtMostOne, "a,b");
         },
         "line: tool --a --b=1: is refused: Option 'a' and option 'b' exclude each other\n"},
        {"two that exclude each other, neither of which is required",
         [](IParser& p) {
             p.option("a", "", vtNull);
             p.option("b", "", vtInt32);
         },
         [](IParser& p) {
             p.option("a", "", vtNull);
             p.option("b", "", vtInt32);
             addRule(&p, ruleAtMostOne, "a,b");
         },
         "line: tool --a --b=1: is refused: Option 'a' and option 'b' exclude each other\n"},
        {"three of which all are given now, or none",
         [](IParser& p) {
             p.option("a", "", vtNull);
             p.option("b", "", vtNull);
             p.option("c", "", vtNull);
             addRule(&p, ruleNeeds, "c,b");
         },
         [](IParser& p) {
             p.option("a", "", vtNull);
             p.option("b", "", vtNull);
             p.option("c", "", vtNull);
             addRule(&p, ruleAllOrNone, "a,b,c");
         },
         "line: tool --a: is refused: The options 'a', 'b', 'c' go together, but option 'b' is missing\n"
         "line: tool --b: is refused: The options 'a', 'b', 'c' go together, but option 'a' is missing\n"
         "line: tool --a --b: is refused: The options 'a', 'b', 'c' go together, but option 'c' is "
         "missing\n"},
        {"one that needs another now",
         [](IParser& p) {
             p.option("a", "", vtNull);
             p.option("b", "", vtNull);
         },
         [](IParser& p) {
             p.option("a", "", vtNull);
             p.option("b", "", vtNull);
             addRule(&p, ruleNeeds, "a,b");
         },
         "line: tool --a: is refused: Option 'a' needs option 'b'\n"},
        {"a rule gone",
         [](IParser& p) {
             p.option("a", "", vtNull);
             addRule(&p, ruleRequired, "a");
         },
         [](IParser& p) { p.option("a", "", vtNull); }, ""},
    });
}

TEST(Compare, FindsActionsThatRefuseMore) {
    expectRows({
        {"a modifier that an action lost",
         [](IParser& p) {
             p.action("run", "", vtNull);
             p.action("stop", "", vtNull);
             p.modifier("fast", "run,stop", "", vtNull);
         },
         [](IParser& p) {
             p.action("run", "", vtNull);
             p.action("stop", "", vtNull);
             p.modifier("fast", "run", "", vtNull);
         },
         "line: tool --stop --fast: is refused: Action '-stop' doesn't accept option '-fast'\n"},
        {"an action that is needed now", [](IParser& p) { p.option("fast", "", vtNull); },
         [](IParser& p) {
             p.option("fast", "", vtNull);
             p.action("run", "", vtNull);
         },
         "line: tool --fast: is refused: No action defined.\n"},
    });
}

TEST(Compare, FindsFlagsThatRefuseMore) {
    const auto file = [](IParser& parser) { parser.option("file", "", vtString).positional().tokenize(0); };
    const auto breaks = [&](int older, int newer) {
        return reportAsBaseline(compare(described(file, older), described(file, newer)));
    };
    EXPECT_EQ(breaks(0, flagDashIsNotPositional), "line: tool -: is understood in another way\n");
    EXPECT_EQ(breaks(0, flagDashIsNotPositional | flagRejectUnknown),
              "line: tool -: is refused: Unknown option: -\n");
    EXPECT_EQ(breaks(flagPlainArePositional, 0), "line: tool -- --zz: is understood in another way\n");
    EXPECT_EQ(breaks(flagPositionalTakesRest, 0), "line: tool text --: is understood in another way\n");
    EXPECT_EQ(breaks(0, flagRejectUnknown), "");
}

TEST(Compare, FindsWhatStandsWithoutANameAndIsRefused) {
    expectRows({
        {"no positional option any more", [](IParser& p) { p.option("file", "", vtString).positional(); },
         [](IParser& p) { p.option("file", "", vtString); },
         "line: tool text: is refused: Unknown option: text\n"},
        {"a positional option of another kind",
         [](IParser& p) { p.option("file", "", vtString).positional().tokenize(0); },
         [](IParser& p) { p.option("file", "", vtInt32).positional().tokenize(0); },
         "value: tool text: is refused\n"},
        {"another positional option",
         [](IParser& p) {
             p.option("file", "", vtString).positional();
             p.option("other", "", vtString);
         },
         [](IParser& p) {
             p.option("file", "", vtString);
             p.option("other", "", vtString).positional();
         },
         "line: tool text: is understood in another way\n"},
    });
}

/// An argument without a name, of a program that tells several apart by their order.
Option argument(const char* name, das_variant_type_t kind, Count count) {
    Option option;
    option.kind = kind;
    option.names = {name};
    option.positional = Positional::filled;
    option.count = count;
    return option;
}

TEST(Compare, ComparesArgumentsByTheirOrder) {
    const Option source = argument("source", vtString, {1, {}});
    const Option target = argument("target", vtString, {1, 1});
    const Option number = argument("target", vtInt32, {1, 1});
    const Option amount = argument("amount", vtInt32, {1, 1});
    const Option length = argument("length", vtInt32, {1, 1});
    const Option place = argument("place", vtString, {1, 1});
    const Option more = argument("more", vtString, {0, 1});
    Option wide = argument("number", vtInt32, {1, 1});
    Option narrow = wide;
    Option named;
    named.kind = vtInt32;
    named.names = {"named"};
    wide.notes = {{"range", "-5..9"}};
    narrow.notes = {{"range", "0..9"}};
    const struct {
        const char* title;
        std::vector<Option> older;
        std::vector<Option> newer;
        const char* expected;
    } rows[] = {
        {"nothing changed", {source, target}, {source, target}, ""},
        {"another name, which nobody types", {source, target}, {source, place}, ""},
        {"other names for both", {target, amount}, {place, length}, ""},
        {"the other way round",
         {source, target},
         {target, source},
         "line: tool text text: is understood in another way\n"},
        {"one more that may be left out", {target}, {target, more}, ""},
        {"one more in front",
         {target},
         {place, target},
         "line: tool text: is refused: argument TARGET is missing\n"},
        {"an option with a name in front", {source, target}, {named, source, target}, ""},
        {"one less",
         {target, more},
         {target},
         "line: tool text text: is refused: there are too many arguments\n"},
        {"one that is a number now", {source, target}, {source, number}, "value: tool text '': is refused\n"},
        {"a number that was less than zero", {wide}, {narrow}, "value: tool -- -5: is refused\n"},
        {"one that is a text now, which a number was", {source, number}, {source, target}, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.title);
        CommandLine older = described(nothing);
        CommandLine newer = older;
        older.options = row.older;
        newer.options = row.newer;
        EXPECT_EQ(reportAsBaseline(compare(older, newer)), row.expected);
    }
}

TEST(Compare, AsksRulesOverArgumentsWithoutAName) {
    CommandLine older = described([](IParser& p) { p.option("force", "", vtNull); });
    older.options.push_back(argument("source", vtString, {1, 1}));
    older.options.push_back(argument("target", vtString, {0, 1}));
    CommandLine newer = older;
    newer.rules = {{ruleAtMostOne, {"force", "target"}}};
    EXPECT_EQ(
        reportAsBaseline(compare(older, newer)),
        "line: tool --force text text: is refused: Option 'force' and option TARGET exclude each other\n");
    EXPECT_EQ(reportAsBaseline(compare(newer, older)), "");
}

} // namespace
} // namespace tarv_program
