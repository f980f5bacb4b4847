#include <gtest/gtest.h>

#include <cstdint>
#include <locale>

#include "reliability/Session.h"
#include "support/GlobalLocale.h"

namespace {

using namespace tarv_3_3;

/// One option per kind of number.
struct Numbers : Session {
    Numbers() {
        open(*this);
        parser->option("bool", "", vtBool).positional();
        parser->option("int32", "", vtInt32);
        parser->option("uint32", "", vtUInt32);
        parser->option("int64", "", vtInt64);
        parser->option("uint64", "", vtUInt64);
        parser->option("double", "", vtDouble);
    }
};

/// Numbers written as in much of Europe: 1.234,5.
struct CommaDecimals : std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(HostileNumbers, AtEveryLimitAreAccepted) {
    const struct {
        const char* argument;
        const char* name;
        variant_t value;
    } rows[] = {
        {"--int32=2147483647", "int32", variant_t(std::int32_t{2147483647})},
        {"--int32=-2147483648", "int32", variant_t(std::int32_t{-2147483647 - 1})},
        {"--int32=00000000000000000000000000000002147483647", "int32", variant_t(std::int32_t{2147483647})},
        {"--uint32=4294967295", "uint32", variant_t(std::uint32_t{4294967295U})},
        {"--uint32=0", "uint32", variant_t(std::uint32_t{0})},
        {"--uint32=-1", "uint32", variant_t(std::uint32_t{4294967295U})},
        {"--uint32=-4294967295", "uint32", variant_t(std::uint32_t{1})},
        {"--int64=9223372036854775807", "int64", variant_t(std::int64_t{9223372036854775807})},
        {"--int64=-9223372036854775808", "int64", variant_t(std::int64_t{-9223372036854775807 - 1})},
        {"--uint64=18446744073709551615", "uint64", variant_t(std::uint64_t{18446744073709551615U})},
        {"--uint64=0xFFFFFFFFFFFFFFFF", "uint64", variant_t(std::uint64_t{18446744073709551615U})},
        {"--uint64=ffffffffffffffffh", "uint64", variant_t(std::uint64_t{18446744073709551615U})},
        {"--uint64=-1", "uint64", variant_t(std::uint64_t{18446744073709551615U})},
        {"--double=1.7976931348623157e308", "double", variant_t(1.7976931348623157e308)},
        {"--double=2.2250738585072014e-308", "double", variant_t(2.2250738585072014e-308)},
        {"--double=-0", "double", variant_t(-0.0)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.argument);
        Numbers numbers;
        ASSERT_EQ(parse(numbers, {row.argument}), parseOk) << numbers.parser->getErrorDesc();
        EXPECT_EQ(numbers.result->get(row.name).value, row.value);
    }
}

TEST(HostileNumbers, PastEveryLimitAreRefused) {
    const struct {
        const char* argument;
        const char* message;
    } rows[] = {
        {"--int32=2147483648", "Option 'int32' can not parse '2147483648' value, requires a type 'integer'"},
        {"--int32=-2147483649",
         "Option 'int32' can not parse '-2147483649' value, requires a type 'integer'"},
        {"--uint32=4294967296",
         "Option 'uint32' can not parse '4294967296' value, requires a type 'unsigned integer'"},
        {"--int64=9223372036854775808",
         "Option 'int64' can not parse '9223372036854775808' value, requires a type '64 bit integer'"},
        {"--int64=-9223372036854775809",
         "Option 'int64' can not parse '-9223372036854775809' value, requires a type '64 bit integer'"},
        {"--uint64=18446744073709551616", "Option 'uint64' can not parse '18446744073709551616' value, "
                                          "requires a type 'unsigned 64 bit or hex'"},
        {"--uint64=0x10000000000000000", "Option 'uint64' can not parse '0x10000000000000000' value, "
                                         "requires a type 'unsigned 64 bit or hex'"},
        {"--double=1e309", "Option 'double' can not parse '1e309' value, requires a type 'double'"},
        {"--double=-1e309", "Option 'double' can not parse '-1e309' value, requires a type 'double'"},
        {"--double=nan", "Option 'double' can not parse 'nan' value, requires a type 'double'"},
        {"--double=inf", "Option 'double' can not parse 'inf' value, requires a type 'double'"},
        {"2", "Option 'bool' can not parse '2' value, requires a type 'undefined'"},
        {"99999999999999999999",
         "Option 'bool' can not parse '99999999999999999999' value, requires a type 'undefined'"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.argument);
        Numbers numbers;
        EXPECT_EQ(parse(numbers, {row.argument}), parseFailed);
        EXPECT_EQ(numbers.parser->getErrorDesc(), "Value validation problem in argument '" +
                                                      std::string(row.argument) + "': " + row.message +
                                                      " here.");
    }
}

TEST(HostileLocale, WithCommaDecimalsAndGroupingChangesNoNumber) {
    const GlobalLocale european(std::locale(std::locale::classic(), new CommaDecimals));
    Numbers numbers;
    numbers.parser->option("ratio", "Of sizes.", vtDouble).defaultValue(1234.5);
    numbers.parser->option("count", "Of things.", vtInt32).defaultValue(1234567);
    ASSERT_EQ(
        parse(numbers, {"--double=1.5", "--double=+1.5", "--double= 2.5 ", "--int32=1234567", "--int32=+7"}),
        parseOk)
        << numbers.parser->getErrorDesc();
    EXPECT_EQ(numbers.result->get("double").value, variant_t(1.5));
    EXPECT_EQ(numbers.result->next("double").value, variant_t(1.5));
    EXPECT_EQ(numbers.result->next("double").value, variant_t(2.5));
    EXPECT_EQ(numbers.result->get("int32").value, variant_t(1234567));
    EXPECT_STREQ(numbers.result->get("ratio").text, "1234.5");
    EXPECT_STREQ(numbers.result->get("count").text, "1234567");
    EXPECT_STREQ(numbers.parser->getDescription("ratio"), "-ratio=<double> (1234.5)      Of sizes.\n\n");
    EXPECT_STREQ(numbers.parser->getDescription("count"), "-count=<integer> (1234567)    Of things.\n\n");
}

TEST(HostileLocale, WithCommaDecimalsAndGroupingAcceptsNoOtherNumber) {
    const GlobalLocale european(std::locale(std::locale::classic(), new CommaDecimals));
    // Plus signs, so that nothing but a stream reads them.
    for (const char* const argument : {"--int32=+1.234", "--uint32=+1.234", "--int64=+1.234"}) {
        SCOPED_TRACE(argument);
        Numbers numbers;
        EXPECT_EQ(parse(numbers, {argument}), parseFailed);
    }
    Numbers numbers;
    numbers.parser->option("ratio", "", vtDouble).tokenize(0);
    EXPECT_EQ(parse(numbers, {"--ratio=+1,5"}), parseFailed);
}

} // namespace
