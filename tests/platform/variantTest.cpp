#include "dovel2/variant.h"

#include <gtest/gtest.h>

#include <cmath>
#include <csignal>
#include <limits>
#include <string>
#include <type_traits>

#include "support/CapturedAssertions.h"
#include "support/printVariant.h"

namespace dovel2 {
namespace {

TEST(Variant, KindsHaveTheNumbersOfTheBinaryInterface) {
    EXPECT_EQ(static_cast<int>(vtBool), 0);
    EXPECT_EQ(static_cast<int>(vtInt32), 6);
    EXPECT_EQ(static_cast<int>(vtUInt32), 7);
    EXPECT_EQ(static_cast<int>(vtInt64), 8);
    EXPECT_EQ(static_cast<int>(vtUInt64), 9);
    EXPECT_EQ(static_cast<int>(vtDouble), 11);
    EXPECT_EQ(static_cast<int>(vtString), 12);
    EXPECT_EQ(static_cast<int>(vtNull), 17);
}

TEST(Variant, IsNullAtFirst) {
    EXPECT_EQ(variant_t().type(), vtNull);
}

template <class T>
void expectHolds(const variant_t& value, das_variant_type_t kind, T expected) {
    EXPECT_EQ(value.type(), kind);
    EXPECT_TRUE(value.can_get<T>());
    EXPECT_EQ(value.get<T>(), expected);
}

TEST(Variant, YieldsWhatItWasMadeOf) {
    expectHolds<bool>(true, vtBool, true);
    expectHolds<bool>(false, vtBool, false);
    expectHolds<int32_t>(INT32_MIN, vtInt32, INT32_MIN);
    expectHolds<int32_t>(INT32_MAX, vtInt32, INT32_MAX);
    expectHolds<uint32_t>(UINT32_MAX, vtUInt32, UINT32_MAX);
    expectHolds<int64_t>(INT64_MIN, vtInt64, INT64_MIN);
    expectHolds<int64_t>(INT64_MAX, vtInt64, INT64_MAX);
    expectHolds<uint64_t>(UINT64_MAX, vtUInt64, UINT64_MAX);
    expectHolds<double>(0.1, vtDouble, 0.1);
    const variant_t text("a text");
    EXPECT_EQ(text.type(), vtString);
    EXPECT_TRUE(text.can_get<const char*>());
    EXPECT_STREQ(text.get<const char*>(), "a text");
}

TEST(Variant, TakesEveryArithmeticTypeWithoutAmbiguity) {
    enum Plain { plain = 3 };
    EXPECT_EQ(variant_t('a').type(), vtInt32);
    EXPECT_EQ(variant_t(static_cast<signed char>(1)).type(), vtInt32);
    EXPECT_EQ(variant_t(static_cast<unsigned char>(1)).type(), vtInt32);
    EXPECT_EQ(variant_t(static_cast<short>(-1)).type(), vtInt32);
    EXPECT_EQ(variant_t(static_cast<unsigned short>(1)).type(), vtInt32);
    EXPECT_EQ(variant_t(1).type(), vtInt32);
    EXPECT_EQ(variant_t(1U).type(), vtUInt32);
    EXPECT_EQ(variant_t(1L).type(), vtInt64);
    EXPECT_EQ(variant_t(1UL).type(), vtUInt64);
    EXPECT_EQ(variant_t(1LL).type(), vtInt64);
    EXPECT_EQ(variant_t(1ULL).type(), vtUInt64);
    EXPECT_EQ(variant_t(1.5F).type(), vtDouble);
    EXPECT_EQ(variant_t(plain), variant_t(3));
    EXPECT_EQ(variant_t(std::numeric_limits<long long>::min()).get<int64_t>(), INT64_MIN);
    EXPECT_EQ(variant_t(std::numeric_limits<unsigned long long>::max()).get<uint64_t>(), UINT64_MAX);
    EXPECT_EQ(variant_t(1.5F).get<double>(), 1.5);
    EXPECT_EQ(variant_t(static_cast<short>(-1)).get<int32_t>(), -1);
}

TEST(Variant, TakesTextsAndNoOtherPointers) {
    char writable[] = "text";
    char* const pointer = writable;
    EXPECT_EQ(variant_t(writable).type(), vtString);
    EXPECT_EQ(variant_t(pointer).type(), vtString);
    EXPECT_EQ(variant_t("literal").type(), vtString);
    EXPECT_FALSE((std::is_constructible_v<variant_t, const int*>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, void*>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, std::string*>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, std::string>));
}

TEST(Variant, CopiesTheTextUpToItsTerminatingZero) {
    char source[] = "ab\0cd";
    const variant_t text(source);
    source[0] = 'x';
    EXPECT_STREQ(text.get<const char*>(), "ab");
}

TEST(Variant, TakesANullTextForAnEmptyOne) {
    const char* const none = nullptr;
    const variant_t text(none);
    EXPECT_EQ(text.type(), vtString);
    EXPECT_STREQ(text.get<const char*>(), "");
    EXPECT_EQ(text, variant_t(""));
}

TEST(Variant, CanBeGotAsItsOwnKindOnly) {
    const variant_t values[] = {true, int32_t{1}, uint32_t{1}, int64_t{1}, uint64_t{1}, 1.0, "1"};
    const char* const gettable[] = {"bool", "int32", "uint32", "int64", "uint64", "double", "string"};
    for (std::size_t i = 0; i < std::size(values); ++i) {
        SCOPED_TRACE(gettable[i]);
        std::string kinds;
        kinds += values[i].can_get<bool>() ? "bool" : "";
        kinds += values[i].can_get<int32_t>() ? "int32" : "";
        kinds += values[i].can_get<uint32_t>() ? "uint32" : "";
        kinds += values[i].can_get<int64_t>() ? "int64" : "";
        kinds += values[i].can_get<uint64_t>() ? "uint64" : "";
        kinds += values[i].can_get<double>() ? "double" : "";
        kinds += values[i].can_get<const char*>() ? "string" : "";
        EXPECT_EQ(kinds, gettable[i]);
    }
    const variant_t null;
    EXPECT_FALSE(null.can_get<bool>());
    EXPECT_FALSE(null.can_get<int32_t>());
    EXPECT_FALSE(null.can_get<uint32_t>());
    EXPECT_FALSE(null.can_get<int64_t>());
    EXPECT_FALSE(null.can_get<uint64_t>());
    EXPECT_FALSE(null.can_get<double>());
    EXPECT_FALSE(null.can_get<const char*>());
}

// What the variant holds in place of the kind that is asked for must not show through.
TEST(Variant, YieldsZeroForAnotherKindWhenTheAssertionHandlerReturns) {
    const variant_t values[] = {variant_t(), int64_t{-1}, "text"};
    for (const variant_t& value : values) {
        SCOPED_TRACE(testing::PrintToString(value));
        const CapturedAssertions assertions;
        EXPECT_FALSE(value.get<bool>());
        EXPECT_EQ(value.get<int32_t>(), 0);
        EXPECT_EQ(value.get<uint32_t>(), 0U);
        EXPECT_EQ(value.get<uint64_t>(), 0U);
        EXPECT_EQ(value.get<double>(), 0.0);
        EXPECT_EQ(assertions.expressions(),
                  "m_type == vtBool; m_type == vtInt32; m_type == vtUInt32; m_type == vtUInt64; "
                  "m_type == vtDouble");
    }
    const CapturedAssertions assertions;
    EXPECT_EQ(variant_t(7).get<int64_t>(), 0);
    EXPECT_EQ(variant_t(7).get<const char*>(), nullptr);
    EXPECT_EQ(assertions.expressions(), "m_type == vtInt64; m_type == vtString");
}

TEST(Variant, DoesNotAssertWhenTheKindIsRight) {
    const CapturedAssertions assertions;
    EXPECT_TRUE(variant_t(true).get<bool>());
    EXPECT_EQ(variant_t(-7).get<int32_t>(), -7);
    EXPECT_EQ(variant_t(7U).get<uint32_t>(), 7U);
    EXPECT_EQ(variant_t(-7L).get<int64_t>(), -7);
    EXPECT_EQ(variant_t(7UL).get<uint64_t>(), 7U);
    EXPECT_EQ(variant_t(0.5).get<double>(), 0.5);
    EXPECT_STREQ(variant_t("7").get<const char*>(), "7");
    EXPECT_EQ(assertions.expressions(), "");
}

TEST(VariantDeathTest, AbortsOnAnotherKindUnlessTheHostHandlesIt) {
    const variant_t value("text");
    EXPECT_EXIT(value.get<int32_t>(), testing::KilledBySignal(SIGABRT),
                "variant\\.cpp:[0-9]+: assertion failed: m_type == vtInt32\n$");
}

TEST(Variant, EqualsTheSameValueOfTheSameKind) {
    const struct {
        variant_t left;
        variant_t right;
        bool equal;
    } rows[] = {
        {true, true, true},
        {true, false, false},
        {5, 5, true},
        {5, -5, false},
        {5U, 5U, true},
        {5U, 6U, false},
        {5L, 5L, true},
        {5L, 5L + (1L << 32), false},
        {5UL, 5UL, true},
        {5UL, 5UL + (1UL << 32), false},
        {0.1, 0.1, true},
        {0.1, 0.2, false},
        {0.0, -0.0, true},
        {std::nan(""), std::nan(""), false},
        {"text", "text", true},
        {"text", "Text", false},
        {"text", "tex", false},
        {"tex", "text", false},
        {"", "", true},
        {"", "x", false},
        {variant_t(), variant_t(), true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.left) + " and " + testing::PrintToString(row.right));
        const CapturedAssertions assertions;
        EXPECT_EQ(row.left == row.right, row.equal);
        EXPECT_EQ(row.left != row.right, !row.equal);
        EXPECT_EQ(assertions.expressions(), "");
    }
}

TEST(Variant, IsUnequalToEveryOtherKind) {
    const variant_t values[] = {variant_t(), false,       int32_t{0}, uint32_t{0},
                                int64_t{0},  uint64_t{0}, 0.0,        ""};
    for (std::size_t left = 0; left < std::size(values); ++left) {
        for (std::size_t right = 0; right < std::size(values); ++right) {
            SCOPED_TRACE(testing::PrintToString(values[left]) + " and " +
                         testing::PrintToString(values[right]));
            EXPECT_EQ(values[left] == values[right], left == right);
        }
    }
}

TEST(VariantStringCompare, OrdersByUnsignedBytes) {
    const struct {
        const char* left;
        const char* right;
        int sign;
    } rows[] = {
        {"", "", 0},    {"a", "a", 0},  {"a", "b", -1},        {"b", "a", 1},    {"a", "ab", -1},
        {"ab", "a", 1}, {"A", "a", -1}, {"a", "\xC3\xA4", -1}, {"\xFF", "a", 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.left) + " and " + row.right);
        const int order = variant_t::string_compare(row.left, row.right);
        EXPECT_EQ((order > 0) - (order < 0), row.sign);
    }
}

TEST(VariantReferences, CountInOneStepAndYieldTheNewCount) {
    volatile int counter = 5;
    EXPECT_EQ(internal::sync_inc(&counter), 6);
    EXPECT_EQ(counter, 6);
    EXPECT_EQ(internal::sync_dec(&counter), 5);
    EXPECT_EQ(internal::sync_dec(&counter), 4);
    EXPECT_EQ(counter, 4);
}

} // namespace
} // namespace dovel2
