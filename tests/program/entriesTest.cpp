#include "pages/entries.h"

#include <gtest/gtest.h>

#include <tarv_3_3/description.h>

using namespace tarv_3_3;

namespace tarv_program {
namespace {

TEST(EntryOf, SaysWhatElseIsKnownOfAnOption) {
    const struct {
        das_variant_type_t kind;
        std::vector<Note> notes;
        std::optional<std::string> defaultText;
        std::vector<std::string> expected;
    } rows[] = {
        {vtNull, {}, {}, {}},
        {vtInt32, {{"range", "1..9"}}, {}, {"From 1 to 9."}},
        {vtInt32, {{"range", "1.."}}, {}, {"At least 1."}},
        {vtInt32, {{"range", "..9"}}, {}, {"At most 9."}},
        {vtInt32, {{"required", "1"}}, {}, {"It must be given."}},
        {vtInt32, {{"required", "0"}}, {}, {}},
        {vtInt32, {{"deprecated", ""}}, {}, {"Deprecated."}},
        {vtInt32, {{"deprecated", "--b"}}, {}, {"Deprecated; use --b."}},
        {vtInt32, {}, "7", {"Default: 7."}},
        {vtString, {}, "", {}},
        {vtBool, {}, "1", {"To turn it off: --no-a.", "It is on by default."}},
        {vtBool, {}, "0", {"To turn it off: --no-a."}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.expected));
        Option option;
        option.kind = row.kind;
        option.names = {"a"};
        option.notes = row.notes;
        option.defaultText = row.defaultText;
        EXPECT_EQ(entryOf(option, CommandLine()).sentences, row.expected);
    }
}

TEST(EntryOf, NamesTheActionsThatAnOptionGoesWith) {
    CommandLine line;
    line.options.resize(4);
    const char* const names[] = {"run", "stop", "wait", "fast"};
    const char* const tags[] = {"live", "dead", "live", "live"};
    for (std::size_t i = 0; i < 4; ++i) {
        line.options[i].isAction = i != 3;
        line.options[i].names = {names[i]};
        line.options[i].tags = {tags[i]};
    }
    EXPECT_EQ(entryOf(line.options[3], line).sentences, std::vector<std::string>{"Goes with --run, --wait."});
    EXPECT_EQ(entryOf(line.options[0], line).sentences, std::vector<std::string>());
}

TEST(SentenceOf, SaysEveryRule) {
    const struct {
        int kind;
        std::vector<std::string> names;
        const char* expected;
    } rows[] = {
        {ruleRequired, {"all"}, "Must be given: --all."},
        {ruleAtMostOne, {"a", "bc"}, "At most one of these is given: -a, --bc."},
        {ruleAtLeastOne, {"a", "bc"}, "At least one of these is given: -a, --bc."},
        {ruleExactlyOne, {"a", "bc"}, "One of these is given: -a, --bc."},
        {ruleAllOrNone, {"a", "bc"}, "All of these are given, or none: -a, --bc."},
        {ruleNeeds, {"a", "bc", "d"}, "-a needs --bc, -d."},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.expected);
        EXPECT_EQ(sentenceOf({row.kind, row.names}), row.expected);
    }
}

} // namespace
} // namespace tarv_program
