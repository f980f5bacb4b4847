#include "compare/compare.h"

#include <gtest/gtest.h>

#include "CompareRows.h"
#include "Described.h"
#include "compare/report.h"

using namespace tarv_3_3;

namespace tarv_program {
namespace {

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

} // namespace
} // namespace tarv_program
