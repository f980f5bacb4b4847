#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "options/OptionOfType.h"
#include "support/CapturedAssertions.h"
#include "support/printVariant.h"

namespace tarv_3_3 {
namespace {

/// What `validate` makes of a text: whether it accepts it, and its three parameters afterwards.
struct Outcome {
    bool accepted;
    std::string text;
    variant_t value;
    std::string message;

    bool operator==(const Outcome& other) const {
        return accepted == other.accepted && text == other.text && value == other.value &&
               message == other.message;
    }
};

void PrintTo(const Outcome& outcome, std::ostream* out) {
    *out << (outcome.accepted ? "accepted '" : "refused '") << outcome.text << "', "
         << testing::PrintToString(outcome.value) << ", message '" << outcome.message << "'";
}

Outcome validated(das_variant_type_t type, const std::vector<variant_t>& allowed, const std::string& text) {
    OptionOfType of(type);
    of.option.m_allowedValues = allowed;
    Outcome outcome{false, text, variant_t("before"), "before"};
    outcome.accepted = of.option.validate(outcome.text, outcome.value, outcome.message);
    return outcome;
}

TEST(Validate, AcceptsWhatConvertsWhenNoValuesAreListed) {
    EXPECT_EQ(validated(vtInt32, {}, " 42 "), (Outcome{true, " 42 ", 42, "before"}));
    EXPECT_EQ(validated(vtString, {}, "any thing"), (Outcome{true, "any thing", "any thing", "before"}));
    EXPECT_EQ(validated(vtString, {}, ""), (Outcome{true, "", "", "before"}));
    EXPECT_EQ(validated(vtBool, {}, "0"), (Outcome{true, "0", false, "before"}));
    EXPECT_EQ(validated(vtUInt64, {}, "1Fh"), (Outcome{true, "1Fh", 31UL, "before"}));
    EXPECT_EQ(validated(vtDouble, {}, "1e3"), (Outcome{true, "1e3", 1000.0, "before"}));
}

TEST(Validate, NamesTheTypeWhereATextDoesNotConvert) {
    const struct {
        das_variant_type_t type;
        const char* text;
        const char* message;
    } rows[] = {
        {vtInt32, "abc", "Option 'opt' can not parse 'abc' value, requires a type 'integer' here."},
        {vtInt32, "", "Option 'opt' can not parse '' value, requires a type 'integer' here."},
        {vtUInt32, "1.5", "Option 'opt' can not parse '1.5' value, requires a type 'unsigned integer' here."},
        {vtInt64, "1x", "Option 'opt' can not parse '1x' value, requires a type '64 bit integer' here."},
        {vtUInt64, "x",
         "Option 'opt' can not parse 'x' value, requires a type 'unsigned 64 bit or hex' here."},
        {vtDouble, "1,5", "Option 'opt' can not parse '1,5' value, requires a type 'double' here."},
        {vtBool, "yes", "Option 'opt' can not parse 'yes' value, requires a type 'undefined' here."},
        {vtNull, "it's", "Option 'opt' can not parse 'it's' value, requires a type '' here."},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.message);
        EXPECT_EQ(validated(row.type, {}, row.text), (Outcome{false, row.text, variant_t(), row.message}));
    }
}

TEST(Validate, ReportsATextThatDoesNotConvertBeforeItLooksAtAllowedValues) {
    EXPECT_EQ(validated(vtInt32, {1, 2}, "x"),
              (Outcome{false, "x", variant_t(),
                       "Option 'opt' can not parse 'x' value, requires a type 'integer' here."}));
}

TEST(Validate, HasAnEmptyNameInTheMessagesOfARecordWithoutNames) {
    OptionDescription option;
    std::string text = "x";
    variant_t value(5);
    std::string message;
    EXPECT_FALSE(option.validate(text, value, message));
    EXPECT_EQ(value, variant_t());
    EXPECT_EQ(message, "Option '' can not parse 'x' value, requires a type '' here.");
}

TEST(Validate, AcceptsAnAllowedValue) {
    EXPECT_EQ(validated(vtString, {"alpha", "beta", "gamma"}, "beta"),
              (Outcome{true, "beta", "beta", "before"}));
    EXPECT_EQ(validated(vtInt32, {1, 2, 3}, " +3"), (Outcome{true, " +3", 3, "before"}));
    EXPECT_EQ(validated(vtBool, {true}, "1"), (Outcome{true, "1", true, "before"}));
    EXPECT_EQ(validated(vtDouble, {0.5}, "5e-1"), (Outcome{true, "5e-1", 0.5, "before"}));
    EXPECT_EQ(validated(vtUInt64, {16UL}, "10h"), (Outcome{true, "10h", 16UL, "before"}));
}

TEST(Validate, PrefersAnExactMatchToAbbreviations) {
    EXPECT_EQ(validated(vtString, {"abc", "abcd"}, "abc"), (Outcome{true, "abc", "abc", "before"}));
    EXPECT_EQ(validated(vtString, {"abcd", "abc", "abce"}, "abc"), (Outcome{true, "abc", "abc", "before"}));
    EXPECT_EQ(validated(vtString, {"alpha", "alps"}, "alpha"), (Outcome{true, "alpha", "alpha", "before"}));
    EXPECT_EQ(validated(vtString, {"", "x", "y"}, ""), (Outcome{true, "", "", "before"}));
}

TEST(Validate, CompletesAnAbbreviationOfOneAllowedText) {
    EXPECT_EQ(validated(vtString, {"alpha", "beta", "gamma"}, "al"),
              (Outcome{true, "alpha", "alpha", "before"}));
    EXPECT_EQ(validated(vtString, {"alpha", "beta", "gamma"}, "g"),
              (Outcome{true, "gamma", "gamma", "before"}));
    EXPECT_EQ(validated(vtString, {"abc", "abcd"}, "abcd"), (Outcome{true, "abcd", "abcd", "before"}));
    EXPECT_EQ(validated(vtString, {"two words"}, "two w"),
              (Outcome{true, "two words", "two words", "before"}));
    EXPECT_EQ(validated(vtString, {"\u00E4rger"}, "\xC3"),
              (Outcome{true, "\u00E4rger", "\u00E4rger", "before"}));
}

// Every text begins with the empty one.
TEST(Validate, TakesAnEmptyTextForAnAbbreviationOfEverything) {
    EXPECT_EQ(validated(vtString, {"only"}, ""), (Outcome{true, "only", "only", "before"}));
    EXPECT_EQ(
        validated(vtString, {"a", "b"}, ""),
        (Outcome{false, "", "b", "Ambiguous value for option 'opt'. Possible values follows: 'a', 'b'"}));
}

TEST(Validate, ListsEveryAllowedValueWhereAnAbbreviationIsAmbiguous) {
    EXPECT_EQ(validated(vtString, {"alpha", "beta", "alps", "gamma"}, "al"),
              (Outcome{false, "al", "alps",
                       "Ambiguous value for option 'opt'. "
                       "Possible values follows: 'alpha', 'beta', 'alps', 'gamma'"}));
    EXPECT_EQ(validated(vtString, {"twice", "twice"}, "tw"),
              (Outcome{false, "tw", "twice",
                       "Ambiguous value for option 'opt'. Possible values follows: 'twice', 'twice'"}));
}

TEST(Validate, ListsEveryAllowedValueWhereATextIsNoneOfThem) {
    EXPECT_EQ(validated(vtString, {"alpha", "beta", "gamma"}, "x"),
              (Outcome{false, "x", "x",
                       "Option 'opt' does not allow value 'x'. "
                       "Possible values follows: 'alpha', 'beta', 'gamma'"}));
    EXPECT_EQ(validated(vtString, {"alpha"}, "Al"),
              (Outcome{false, "Al", "Al",
                       "Option 'opt' does not allow value 'Al'. Possible values follows: 'alpha'"}));
    EXPECT_EQ(
        validated(vtString, {"x"}, "xy"),
        (Outcome{false, "xy", "xy", "Option 'opt' does not allow value 'xy'. Possible values follows: 'x'"}));
    EXPECT_EQ(validated(vtString, {"alpha"}, "lpha"),
              (Outcome{false, "lpha", "lpha",
                       "Option 'opt' does not allow value 'lpha'. Possible values follows: 'alpha'"}));
}

TEST(Validate, DoesNotAbbreviateOtherKinds) {
    EXPECT_EQ(validated(vtInt32, {1, 2, 3}, "4"),
              (Outcome{false, "4", 4,
                       "Option 'opt' does not allow value '4'. Possible values follows: '1', '2', '3'"}));
    EXPECT_EQ(validated(vtInt32, {12, 34}, "1"),
              (Outcome{false, "1", 1,
                       "Option 'opt' does not allow value '1'. Possible values follows: '12', '34'"}));
    EXPECT_EQ(
        validated(vtUInt32, {12U}, "1"),
        (Outcome{false, "1", 1U, "Option 'opt' does not allow value '1'. Possible values follows: '12'"}));
    EXPECT_EQ(validated(vtInt64, {-12L}, "-1"),
              (Outcome{false, "-1", -1L,
                       "Option 'opt' does not allow value '-1'. Possible values follows: '-12'"}));
    EXPECT_EQ(validated(vtUInt64, {31UL}, "0x1"),
              (Outcome{false, "0x1", 1UL,
                       "Option 'opt' does not allow value '0x1'. Possible values follows: '31'"}));
    EXPECT_EQ(validated(vtDouble, {0.25, 1e20}, "0.2"),
              (Outcome{false, "0.2", 0.2,
                       "Option 'opt' does not allow value '0.2'. Possible values follows: '0.25', '1e+20'"}));
    EXPECT_EQ(
        validated(vtBool, {true}, "0"),
        (Outcome{false, "0", false, "Option 'opt' does not allow value '0'. Possible values follows: '1'"}));
}

TEST(Validate, ComparesTheKindOfAllowedValuesToo) {
    const CapturedAssertions assertions;
    EXPECT_EQ(
        validated(vtInt32, {1L}, "1"),
        (Outcome{false, "1", 1, "Option 'opt' does not allow value '1'. Possible values follows: '0'"}));
    EXPECT_EQ(assertions.expressions(), "m_type == vtInt32");
}

TEST(Validate, DoesNotAbbreviateATextThatIsAllowedForAnotherKind) {
    const CapturedAssertions assertions;
    EXPECT_EQ(
        validated(vtInt32, {"12"}, "1"),
        (Outcome{false, "1", 1, "Option 'opt' does not allow value '1'. Possible values follows: '0'"}));
    EXPECT_EQ(assertions.expressions(), "m_type == vtInt32");
}

TEST(Validate, SkipsAllowedValuesThatAreNoTextsWhenItCompletes) {
    const CapturedAssertions assertions;
    EXPECT_EQ(validated(vtString, {5, "alpha", variant_t()}, "a"),
              (Outcome{true, "alpha", "alpha", "before"}));
    EXPECT_EQ(validated(vtString, {5}, ""),
              (Outcome{false, "", "", "Option 'opt' does not allow value ''. Possible values follows: ''"}));
    EXPECT_EQ(assertions.expressions(), "m_type == vtString");
}

} // namespace
} // namespace tarv_3_3
