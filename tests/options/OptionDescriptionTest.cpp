#include "options/OptionDescription.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "support/printVariant.h"
#include "support/virtualSlot.h"
#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {
namespace {

using Words = Names;
using Tags = std::set<std::string>;
using Values = std::vector<variant_t>;

OptionDescription named(const std::string& name) {
    OptionDescription option;
    option.m_names = {name};
    return option;
}

TEST(OptionDescription, BeginsAsAnInvalidRecordWithoutAnything) {
    const OptionDescription option;
    EXPECT_EQ(option.m_names, Words());
    EXPECT_EQ(option.m_tags, Tags());
    EXPECT_EQ(option.m_topic, Topic("", ""));
    EXPECT_EQ(option.m_description, "");
    EXPECT_FALSE(option.m_positional);
    EXPECT_FALSE(option.m_hasDefault);
    EXPECT_EQ(option.m_kind, Invalid);
    EXPECT_EQ(option.m_tokenizer, ',');
    EXPECT_EQ(option.m_type, vtNull);
    EXPECT_EQ(option.m_default, variant_t());
    EXPECT_EQ(option.m_allowedValues, Values());
    EXPECT_EQ(option.m_garbage, nullptr);
}

TEST(OptionDescription, NumbersItsKinds) {
    EXPECT_EQ(static_cast<int>(Action), 0);
    EXPECT_EQ(static_cast<int>(Option), 1);
    EXPECT_EQ(static_cast<int>(Invalid), 2);
}

TEST(OptionDescription, ReturnsItselfFromEveryBuilder) {
    OptionDescription option;
    IOption* const itself = &option;
    EXPECT_EQ(&option.synonym("name"), itself);
    EXPECT_EQ(&option.allowValue(1), itself);
    EXPECT_EQ(&option.defaultValue(1), itself);
    EXPECT_EQ(&option.tokenize(';'), itself);
    EXPECT_EQ(&option.positional(), itself);
    EXPECT_EQ(&option.tag("word"), itself);
    EXPECT_EQ(&option.tag(nullptr), itself);
    EXPECT_EQ(&option.synonym(nullptr), itself);
}

TEST(OptionDescription, AppendsEverySynonymAsItIs) {
    OptionDescription option = named("primary");
    option.synonym("second").synonym("a,b").synonym("--odd").synonym("").synonym("primary");
    EXPECT_EQ(option.m_names, (Words{"primary", "second", "a,b", "--odd", "", "primary"}));
    EXPECT_EQ(option.primaryName(), "primary");
}

TEST(OptionDescription, IgnoresANullSynonym) {
    OptionDescription option = named("primary");
    option.synonym(nullptr);
    EXPECT_EQ(option.m_names, Words{"primary"});
}

TEST(OptionDescription, AllowsValuesInTheOrderGivenWhateverTheirKind) {
    OptionDescription option;
    option.m_type = vtInt32;
    option.allowValue(3).allowValue(1).allowValue("text").allowValue(variant_t()).allowValue(1);
    EXPECT_EQ(option.m_allowedValues, (Values{3, 1, "text", variant_t(), 1}));
}

TEST(OptionDescription, SplitsListsAgainOnceAValueIsAllowed) {
    const auto tokenizerAfter = [](auto build) {
        OptionDescription option;
        build(option);
        return option.m_tokenizer;
    };
    EXPECT_EQ(tokenizerAfter([](IOption& option) { option.allowValue(1); }), ',');
    EXPECT_EQ(tokenizerAfter([](IOption& option) { option.tokenize(0); }), 0);
    EXPECT_EQ(tokenizerAfter([](IOption& option) { option.tokenize(0).allowValue(1); }), ',');
    EXPECT_EQ(tokenizerAfter([](IOption& option) { option.allowValue(1).tokenize(0); }), 0);
    EXPECT_EQ(tokenizerAfter([](IOption& option) { option.tokenize(0).allowValue(1).tokenize(0); }), 0);
    EXPECT_EQ(tokenizerAfter([](IOption& option) { option.allowValue(1).tokenize(0).allowValue(2); }), ',');
    EXPECT_EQ(tokenizerAfter([](IOption& option) { option.tokenize(';').allowValue(1); }), ';');
    EXPECT_EQ(tokenizerAfter([](IOption& option) { option.tokenize(0).defaultValue(1); }), 0);
    EXPECT_EQ(tokenizerAfter([](IOption& option) { option.tokenize(0).positional(); }), 0);
}

TEST(OptionDescription, KeepsTheLastDefaultWhateverItsKind) {
    OptionDescription option;
    option.m_type = vtInt32;
    option.defaultValue("text");
    EXPECT_TRUE(option.m_hasDefault);
    EXPECT_EQ(option.m_default, variant_t("text"));
    option.defaultValue(7U);
    EXPECT_TRUE(option.m_hasDefault);
    EXPECT_EQ(option.m_default, variant_t(7U));
}

TEST(OptionDescription, HasADefaultAlsoWhenItIsNull) {
    OptionDescription option;
    option.defaultValue(variant_t());
    EXPECT_TRUE(option.m_hasDefault);
    EXPECT_EQ(option.m_default, variant_t());
}

TEST(OptionDescription, IsPositionalOnceItWasSaid) {
    OptionDescription option;
    option.positional();
    EXPECT_TRUE(option.m_positional);
    option.positional();
    EXPECT_TRUE(option.m_positional);
}

TEST(OptionDescription, CollectsEachTagOnceInSortedOrder) {
    const std::string zeroByte(1, '\0');
    const struct {
        const char* tags;
        Tags all;
    } rows[] = {
        {"a,b", {"a", "b", "there"}},
        {"there", {"there"}},
        {"b,a,b,a", {"a", "b", "there"}},
        {"", {"there"}},
        {"a,,b", {"a", ",b", "there"}},
        {"a,", {"a", zeroByte, "there"}},
        {",a", {"", "a", "there"}},
        {nullptr, {"there"}},
        {"There, a", {"There", " a", "there"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.tags != nullptr ? row.tags : "null");
        OptionDescription option;
        option.tag("there").tag(row.tags);
        EXPECT_EQ(option.m_tags, row.all);
    }
}

TEST(OptionDescription, LeavesTheOtherFieldsAloneInEveryBuilder) {
    OptionDescription option;
    option.synonym("name").allowValue("x").defaultValue("x").tokenize(';').positional().tag("word");
    EXPECT_EQ(option.m_names, Words{"name"});
    EXPECT_EQ(option.m_tags, Tags{"word"});
    EXPECT_EQ(option.m_topic, Topic("", ""));
    EXPECT_EQ(option.m_description, "");
    EXPECT_EQ(option.m_kind, Invalid);
    EXPECT_EQ(option.m_type, vtNull);
    EXPECT_EQ(option.m_tokenizer, ';');
    EXPECT_EQ(option.m_allowedValues, Values{"x"});
}

TEST(OptionDescription, HasAnEmptyPrimaryNameWithoutNames) {
    EXPECT_EQ(OptionDescription().primaryName(), "");
}

TEST(OptionDescription, SortsByPrimaryNameBytewise) {
    std::vector<OptionDescription> options = {named("b"),  named("\xC3\xA4"),   named("a"),
                                              named("ab"), OptionDescription(), named("B")};
    std::sort(options.begin(), options.end());
    Words order;
    for (const OptionDescription& option : options) {
        order.push_back(option.primaryName());
    }
    EXPECT_EQ(order, (Words{"", "B", "a", "ab", "b", "\xC3\xA4"}));
}

TEST(OptionDescription, IsEquivalentToARecordOfTheSamePrimaryName) {
    OptionDescription left = named("same");
    OptionDescription right = named("same");
    left.synonym("a");
    right.synonym("b");
    left.m_type = vtBool;
    EXPECT_FALSE(left < right);
    EXPECT_FALSE(right < left);
    EXPECT_FALSE(OptionDescription() < named(""));
    EXPECT_FALSE(named("") < OptionDescription());
    EXPECT_TRUE(OptionDescription() < named("a"));
    EXPECT_FALSE(named("a") < OptionDescription());
}

void expectEveryField(const OptionDescription& option, Garbage* garbage) {
    EXPECT_EQ(option.m_status, 1);
    EXPECT_EQ(option.m_names, (Words{"primary", "p"}));
    EXPECT_EQ(option.m_tags, (Tags{"one", "two"}));
    EXPECT_EQ(option.m_topic, Topic("net", "Network"));
    EXPECT_EQ(option.m_description, "what it does");
    EXPECT_TRUE(option.m_positional);
    EXPECT_TRUE(option.m_hasDefault);
    EXPECT_EQ(option.m_kind, Action);
    EXPECT_EQ(option.m_tokenizer, ';');
    EXPECT_EQ(option.m_type, vtString);
    EXPECT_EQ(option.m_default, variant_t("alpha"));
    EXPECT_EQ(option.m_allowedValues, (Values{"alpha", "beta"}));
    EXPECT_EQ(option.m_garbage, garbage);

    std::string text = "al";
    variant_t value;
    std::string message;
    EXPECT_TRUE(option.validate(text, value, message));
    EXPECT_EQ(text, "alpha");
    EXPECT_STREQ(option.toString(garbage, option.m_default), "alpha");
    EXPECT_TRUE(named("primarx") < option);
    EXPECT_FALSE(named("primary") < option);
}

TEST(OptionDescription, IsCopiedMovedAndAssignedWhole) {
    Garbage garbage;
    OptionDescription source;
    source.m_status = 1;
    source.m_names = {"primary"};
    source.m_topic = {"net", "Network"};
    source.m_description = "what it does";
    source.m_kind = Action;
    source.m_type = vtString;
    source.m_garbage = &garbage;
    source.synonym("p").tag("two,one").positional().defaultValue("alpha");
    source.allowValue("alpha").allowValue("beta").tokenize(';');

    const OptionDescription copy(source);
    expectEveryField(copy, &garbage);
    EXPECT_EQ(copy.m_default.get<const char*>(), source.m_default.get<const char*>());
    OptionDescription assigned = named("else");
    assigned = source;
    expectEveryField(assigned, &garbage);
    OptionDescription moved(std::move(assigned));
    expectEveryField(moved, &garbage);
    OptionDescription moveAssigned = named("else");
    moveAssigned = std::move(moved);
    expectEveryField(moveAssigned, &garbage);
    expectEveryField(source, &garbage);
}

TEST(IOption, HasItsOperationsInTheSlotsOfTheBinaryInterface) {
    EXPECT_EQ(virtualSlot(&IOption::synonym), 0U);
    EXPECT_EQ(virtualSlot(&IOption::allowValue), 1U);
    EXPECT_EQ(virtualSlot(&IOption::defaultValue), 2U);
    EXPECT_EQ(virtualSlot(&IOption::tokenize), 3U);
    EXPECT_EQ(virtualSlot(&IOption::positional), 4U);
    EXPECT_EQ(virtualSlot(&IOption::tag), 5U);
}

} // namespace
} // namespace tarv_3_3
