#include "compare/compare.h"

#include <gtest/gtest.h>

#include "Described.h"
#include "compare/report.h"

using namespace tarv_3_3;

namespace tarv_program {
namespace {

using Declare = void (*)(IParser&);

struct Row {
    const char* title;
    Declare older;
    Declare newer;
    /// A line for each break, as in a baseline.
    const char* expected;
};

void expectRows(std::initializer_list<Row> rows, int flags = flagRejectUnknown | flagDashIsNotPositional) {
    for (const Row& row : rows) {
        SCOPED_TRACE(row.title);
        EXPECT_EQ(reportAsBaseline(compare(described(row.older, flags), described(row.newer, flags))),
                  row.expected);
    }
}

void nothing(IParser&) {}

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

TEST(Compare, FindsValuesThatAreRefusedOrTakenForOthers) {
    expectRows({
        {"a smaller kind", [](IParser& p) { p.option("n", "", vtInt64).tokenize(0); },
         [](IParser& p) { p.option("n", "", vtInt32).tokenize(0); },
         "value: tool --n=2147483648: is refused\n"},
        {"a larger kind", [](IParser& p) { p.option("n", "", vtInt32).tokenize(0); },
         [](IParser& p) { p.option("n", "", vtDouble).tokenize(0); }, ""},
        {"a text that is a number now", [](IParser& p) { p.option("n", "", vtString).tokenize(0); },
         [](IParser& p) { p.option("n", "", vtInt32).tokenize(0); }, "value: tool --n=text: is refused\n"},
        {"a switch that takes a value now", [](IParser& p) { p.option("n", "", vtNull); },
         [](IParser& p) { p.option("n", "", vtString); }, "value: tool --n: is refused\n"},
        {"a list that is none now", [](IParser& p) { p.option("n", "", vtString); },
         [](IParser& p) { p.option("n", "", vtString).tokenize(0); },
         "value: tool --n=1,1: has the value 1,1\n"},
        {"a text that is a list now", [](IParser& p) { p.option("n", "", vtString).tokenize(0); },
         [](IParser& p) { p.option("n", "", vtString).tokenize(':'); },
         "value: tool --n=1:1: has the values 1 1\n"},
        {"an allowed value gone", [](IParser& p) { p.option("n", "", vtInt32).allowValue(1).allowValue(2); },
         [](IParser& p) { p.option("n", "", vtInt32).allowValue(1); }, "value: tool --n=2: is refused\n"},
        {"only some values allowed now", [](IParser& p) { p.option("n", "", vtInt32).tokenize(0); },
         [](IParser& p) { p.option("n", "", vtInt32).allowValue(1).tokenize(0); },
         "value: tool --n=0: is refused\n"},
        {"an abbreviation of a value that is ambiguous now",
         [](IParser& p) { p.option("n", "", vtString).allowValue("always").allowValue("never").tokenize(0); },
         [](IParser& p) {
             p.option("n", "", vtString)
                 .allowValue("always")
                 .allowValue("alone")
                 .allowValue("never")
                 .tokenize(0);
         },
         "value: tool --n=al: is refused\n"},
        {"an allowed value gone that begins another one",
         [](IParser& p) { p.option("n", "", vtString).allowValue("red").allowValue("redder").tokenize(0); },
         [](IParser& p) { p.option("n", "", vtString).allowValue("redder").tokenize(0); },
         "value: tool --n=red: has the value redder\n"},
        {"every text allowed now, so that no abbreviation is completed",
         [](IParser& p) { p.option("n", "", vtString).allowValue("always").tokenize(0); },
         [](IParser& p) { p.option("n", "", vtString).tokenize(0); },
         "value: tool --n=alway: has the value alway\n"},
        {"a narrower range",
         [](IParser& p) {
             p.option("n", "", vtInt32).tokenize(0);
             annotate(&p, "n", "range", "1..99");
         },
         [](IParser& p) {
             p.option("n", "", vtInt32).tokenize(0);
             annotate(&p, "n", "range", "1..50");
         },
         "value: tool --n=99: is refused\n"},
        {"a wider range",
         [](IParser& p) {
             p.option("n", "", vtInt32).tokenize(0);
             annotate(&p, "n", "range", "1..99");
         },
         [](IParser& p) {
             p.option("n", "", vtInt32).tokenize(0);
             annotate(&p, "n", "range", "..100");
         },
         ""},
    });
}

TEST(Compare, FindsNarrowerRangesOfEveryKind) {
    const struct {
        das_variant_type_t kind;
        const char* older;
        const char* newer;
        const char* refused;
    } rows[] = {
        {vtInt32, "-5..9", "-4..9", "-5"},
        {vtInt32, "..1.5", "..0.5", "1"},
        {vtUInt32, "1..4294967295", "1..4294967294", "4294967295"},
        {vtInt64, "-9223372036854775808..", "-9223372036854775807..", "-9223372036854775808"},
        {vtUInt64, "..18446744073709551615", "..18446744073709551614", "18446744073709551615"},
        {vtDouble, "0.25..0.5", "0.25..0.375", "0.5"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.older) + " and " + row.newer);
        CommandLine older = described(nothing);
        Option option;
        option.kind = row.kind;
        option.names = {"n"};
        option.notes = {{"range", row.older}};
        older.options = {option};
        CommandLine newer = older;
        newer.options[0].notes = {{"range", row.newer}};
        EXPECT_EQ(reportAsBaseline(compare(older, newer)),
                  std::string("value: tool --n=") + row.refused + ": is refused\n");
        EXPECT_EQ(reportAsBaseline(compare(newer, older)), "");
    }
}

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

CommandLine verb(std::vector<std::string> names, Declare declare) {
    CommandLine line = described(declare);
    line.names = std::move(names);
    return line;
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
