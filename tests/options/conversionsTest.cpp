#include "options/conversions.h"

#include <gtest/gtest.h>

#include <string>

#include "options/OptionOfType.h"
#include "support/printVariant.h"

namespace tarv_3_3 {
namespace {

const variant_t none;

struct Row {
    const char* text;
    variant_t value;
};

template <std::size_t count>
void expectConverted(das_variant_type_t type, const Row (&rows)[count]) {
    for (const Row& row : rows) {
        SCOPED_TRACE('"' + std::string(row.text) + '"');
        EXPECT_EQ(converted(type, row.text), row.value);
    }
}

TEST(FromString, ReadsABoolFromZeroAndOneAlone) {
    const Row rows[] = {
        {"1", true},      {"0", false},   {"+1", true},
        {"-0", false},    {"001", true},  {"0000", false},
        {" \t1\n", true}, {"2", none},    {"-1", none},
        {"10", none},     {"true", none}, {"false", none},
        {"yes", none},    {"on", none},   {"", none},
        {" ", none},      {"1x", none},   {"1 0", none},
        {"1.0", none},    {"0x1", none},  {"18446744073709551617", none},
        {"1~", none},     {"0~", none},
    };
    expectConverted(vtBool, rows);
}

TEST(FromString, ReadsASigned32BitInteger) {
    const Row rows[] = {
        {"42", 42},
        {" 42 ", 42},
        {"\t\n\v\f\r42\t\n\v\f\r", 42},
        {"+42", 42},
        {"-42", -42},
        {"0042", 42},
        {"010", 10},
        {"-0", 0},
        {"2147483647", 2147483647},
        {"-2147483648", INT32_MIN},
        {"2147483648", none},
        {"-2147483649", none},
        {"99999999999999999999999", none},
        {"42x", none},
        {"42 x", none},
        {"42 43", none},
        {"12abc", none},
        {"", none},
        {" ", none},
        {"+", none},
        {"-", none},
        {"--1", none},
        {"+-1", none},
        {"- 1", none},
        {"1.5", none},
        {"1e3", none},
        {"1,000", none},
        {"0x10", none},
        {"10h", none},
        {"\xC2\xA0"
         "42",
         none},
    };
    expectConverted(vtInt32, rows);
}

// An unsigned extraction takes a minus sign and wraps.
TEST(FromString, ReadsAnUnsigned32BitInteger) {
    const Row rows[] = {
        {"42", 42U},
        {" +42 ", 42U},
        {"4294967295", 4294967295U},
        {"2147483648", 2147483648U},
        {"4294967296", none},
        {"-1", 4294967295U},
        {"-0", 0U},
        {"-4294967295", 1U},
        {"-4294967296", none},
        {" -42 ", 4294967254U},
        {"42x", none},
        {"", none},
        {"1.5", none},
        {"0x10", none},
    };
    expectConverted(vtUInt32, rows);
}

TEST(FromString, ReadsASigned64BitInteger) {
    const Row rows[] = {
        {"42", 42L},
        {" -42 ", -42L},
        {"2147483648", 2147483648L},
        {"9223372036854775807", INT64_MAX},
        {"-9223372036854775808", INT64_MIN},
        {"9223372036854775808", none},
        {"-9223372036854775809", none},
        {"42x", none},
        {"", none},
        {"1.5", none},
        {"0x10", none},
    };
    expectConverted(vtInt64, rows);
}

TEST(FromString, ReadsADouble) {
    const Row rows[] = {
        {"1.5", 1.5},       {" 1.5 ", 1.5},
        {"1e3", 1000.0},    {"1E+3", 1000.0},
        {"-2.5e-1", -0.25}, {"+.5", 0.5},
        {"5.", 5.0},        {"42", 42.0},
        {"0.1", 0.1},       {"1.7976931348623157e308", 1.7976931348623157e308},
        {"1e309", none},    {"-1e309", none},
        {"1e", none},       {"1e+", none},
        {"e3", none},       {".", none},
        {"", none},         {"1.5x", none},
        {"1.5 2", none},    {"1.2.3", none},
        {"1,5", none},      {"inf", none},
        {"-inf", none},     {"infinity", none},
        {"nan", none},      {"NAN", none},
    };
    expectConverted(vtDouble, rows);
}

TEST(FromString, ReadsUnsigned64BitIntegersInDecimal) {
    const Row rows[] = {
        {"10", 10UL},
        {" +10", 10UL},
        {"010", 10UL},
        {"18446744073709551615", UINT64_MAX},
        {"18446744073709551616", none},
        {"-1", UINT64_MAX},
        {"-10", 18446744073709551606UL},
        {"-18446744073709551616", none},
        {"", none},
        {" ", none},
        {"-", none},
        {"x", none},
        {"ff", none},
        {"h", none},
        {"H", none},
    };
    expectConverted(vtUInt64, rows);
}

TEST(FromString, ReadsUnsigned64BitIntegersInHexadecimalByPrefixOrSuffix) {
    const Row rows[] = {
        {"0x10", 16UL},
        {"0X10", 16UL},
        {"0x1F", 31UL},
        {"0xabcdefABCDEF", 0xabcdefABCDEFUL},
        {"0x1234567890", 0x1234567890UL},
        {"0xFFFFFFFFFFFFFFFF", UINT64_MAX},
        {"0x10000000000000000", none},
        {"0x", none},
        {"10h", 16UL},
        {"10H", 16UL},
        {"1Fh", 31UL},
        {"ffh", 255UL},
        {"FFFFFFFFFFFFFFFFH", UINT64_MAX},
        {"10000000000000000h", none},
        {"0h", 0UL},
    };
    expectConverted(vtUInt64, rows);
}

// Only where every character belongs to the number is it hexadecimal; else the decimal number at
// the beginning counts, and what follows it is ignored.
TEST(FromString, IgnoresWhatFollowsAnUnsigned64BitInteger) {
    const Row rows[] = {
        {"12abc", 12UL}, {"12 34", 12UL}, {"12 ", 12UL},
        {"1.5", 1UL},    {"1e3", 1UL},    {"0xg", 0UL},
        {"0x1g", 0UL},   {"0x10 ", 0UL},  {" 0x10", 0UL},
        {"0x10h", 0UL},  {"-0x10", 0UL},  {"10h ", 10UL},
        {"10hh", 10UL},  {" 10h", 10UL},  {"-10h", 18446744073709551606UL},
        {"1gh", 1UL},    {"gh", none},    {"18446744073709551616 ", none},
    };
    expectConverted(vtUInt64, rows);
}

TEST(FromString, TakesEveryTextForAString) {
    const Row rows[] = {
        {"", ""},
        {" a b ", " a b "},
        {"1", "1"},
        {"\xFF\x01", "\xFF\x01"},
    };
    expectConverted(vtString, rows);
}

TEST(FromString, KeepsAStringBeyondItsSourceAndItsKeeper) {
    char source[] = "text";
    const variant_t value = converted(vtString, source);
    source[0] = 'X';
    EXPECT_STREQ(value.get<const char*>(), "text");
}

TEST(FromString, ConvertsNothingToOtherKinds) {
    expectConverted(vtNull, {{"1", none}, {"", none}, {"text", none}});
    expectConverted(static_cast<das_variant_type_t>(1), {{"1", none}, {"", none}});
    expectConverted(static_cast<das_variant_type_t>(10), {{"1", none}, {"1.5", none}});
}

template <class T>
void expectExecutes(const char* text, bool success, const variant_t& result) {
    SCOPED_TRACE(text);
    Garbage garbage;
    OperationFromString operation(&garbage, text);
    EXPECT_EQ(operation.result, none);
    EXPECT_EQ(operation.execute<T>(), success);
    EXPECT_EQ(operation.result, result);
}

TEST(OperationFromString, SaysWhetherItStoredAResult) {
    expectExecutes<bool>("1", true, true);
    expectExecutes<bool>("2", false, none);
    expectExecutes<std::int32_t>("-5", true, -5);
    expectExecutes<std::int32_t>("x", false, none);
    expectExecutes<std::int64_t>("-5", true, -5L);
    expectExecutes<std::int64_t>("x", false, none);
    expectExecutes<std::uint64_t>("5h", true, 5UL);
    expectExecutes<std::uint64_t>("", false, none);
    expectExecutes<const char*>("text", true, "text");
    expectExecutes<const char*>("", true, "");
}

TEST(OperationToString, HandsTheTextToItsKeeper) {
    Garbage garbage;
    OperationToString operation(&garbage, "text");
    EXPECT_EQ(operation.result, nullptr);
    EXPECT_TRUE(operation.execute<const char*>());
    EXPECT_EQ(operation.result, garbage.init("text"));
    EXPECT_STREQ(operation.result, "text");
}

template <class T>
std::string typeName() {
    OperatorGetTypeName operation;
    EXPECT_EQ(operation.result, "");
    EXPECT_TRUE(operation.execute<T>());
    return operation.result;
}

TEST(OperatorGetTypeName, NamesTheKind) {
    EXPECT_EQ(typeName<std::int32_t>(), "integer");
    EXPECT_EQ(typeName<std::uint32_t>(), "unsigned integer");
    EXPECT_EQ(typeName<std::int64_t>(), "64 bit integer");
    EXPECT_EQ(typeName<std::uint64_t>(), "unsigned 64 bit or hex");
    EXPECT_EQ(typeName<double>(), "double");
    EXPECT_EQ(typeName<const char*>(), "string");
}

} // namespace
} // namespace tarv_3_3
