#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <locale>
#include <random>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "options/ForeignLocale.h"
#include "options/OptionOfType.h"
#include "support/printVariant.h"

namespace tarv_3_3 {
namespace {

constexpr das_variant_type_t numericKinds[] = {vtBool, vtInt32, vtUInt32, vtInt64, vtUInt64, vtDouble};

std::istringstream classicStream(const std::string& text) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    return stream;
}

/// What a standard stream reads, if it is the whole of the text.
template <class T>
variant_t extractedWhole(const std::string& text) {
    std::istringstream stream = classicStream(text);
    T value;
    char behind;
    return stream >> value && !(stream >> behind) ? variant_t(value) : variant_t();
}

variant_t extractedBeginning(const std::string& text) {
    static const std::regex hexadecimal("0[xX][0-9A-Fa-f]*|[0-9A-Fa-f]*[hH]");
    std::istringstream stream = classicStream(text);
    stream >> (std::regex_match(text, hexadecimal) ? std::hex : std::dec);
    std::uint64_t value;
    return stream >> value ? variant_t(value) : variant_t();
}

/// The definition of the conversions.
variant_t defined(das_variant_type_t type, const std::string& text) {
    switch (type) {
    case vtBool:
        return extractedWhole<bool>(text);
    case vtInt32:
        return extractedWhole<std::int32_t>(text);
    case vtUInt32:
        return extractedWhole<std::uint32_t>(text);
    case vtInt64:
        return extractedWhole<std::int64_t>(text);
    case vtUInt64:
        return extractedBeginning(text);
    default:
        return extractedWhole<double>(text);
    }
}

bool isNegativeZero(const variant_t& value) {
    return value.can_get<double>() && value.get<double>() == 0 && std::signbit(value.get<double>());
}

std::vector<std::string> oddTexts() {
    // clang-format off
    std::vector<std::string> texts = {
        "", " ", "0", "-0", "+0", "00", "1", "-1", "+1", "+-1", "1-", "--1", "1+1", "1 1", "1_000",
        "1'000", "1,000", "1.000", "1.000,5", "1,5", "12.345,6", "0,1", ".5", "5.", ".", "-.5", "+.5",
        "-5.", "-.", "1e3", "1E3", "1e+3", "1e-3", "1e", "1e+", "1e3.5", "e3", ".e3", "1.e3", "1e03",
        "1e 3", "0e0", "-0e5", "1e308", "1e309", "-1e309", "1e-308", "1e-320", "4.9e-324", "2e-324",
        "1e-400", "-1e-400", "1.7976931348623157e308", "1.7976931348623159e308", "9007199254740993",
        "0.1000000000000000055511151231", "123456789012345678901234567890", "1e00000000000000000000001",
        "0.000000000000000000000000000001", "inf", "-inf", "+inf", "INF", "infinity", "nan", "-nan",
        "NaN", "nan(1)", "nan()", "i", "n", "0x", "0X", "0x0", "0x10", "0X1F", "0xg", "0x1p3", "0x1.8",
        "-0x10", "+0x10", " 0x10", "0x 10", "0x-1", "h", "H", "10h", "1Fh", "ffh", "-10h", "+10h", "10 h",
        "10hh", "0xh", "0x10h", "fffffffffffffffffh", "abc", "12abc", "a", "f", "F", "true", "false",
        "yes", "no", "on", "TRUE", "010", "08", "0b1", "0o7", "1u", "1L", "1f", "1.0f", "1d",
        "2147483647", "2147483648", "-2147483648", "-2147483649", "4294967295", "4294967296",
        "-4294967295", "-4294967296", "9223372036854775807", "9223372036854775808",
        "-9223372036854775808", "-9223372036854775809", "18446744073709551615", "18446744073709551616",
        "-18446744073709551615", "-18446744073709551616", "0xFFFFFFFFFFFFFFFF", "0x10000000000000000",
        "00000000000000000000000000001", "-00000000000000000000000000001", "\t1", "1\t", "\n1\n", "\v1\f",
        "\r1\r", "1\r\n", "\xC2\xA0" "1", "1\xC2\xA0", "\xEF\xBC\x91", "\xE2\x88\x92" "1", "\x01",
        "1\x7F", "#1", "$1", "1%", "(1)", "\"1\"", "1/2",
    };
    // clang-format on
    texts.push_back(std::string(400, '9'));
    texts.push_back("0." + std::string(400, '0') + "1");
    texts.push_back("0x" + std::string(40, '0') + "1");
    texts.push_back(std::string(5000, ' ') + "1" + std::string(5000, ' '));
    return texts;
}

/// Short texts that often are numbers, or nearly.
std::vector<std::string> randomTexts(unsigned seed) {
    const std::string alphabet = "0011289+-..,ee xXhHafAFni\t";
    std::mt19937 random(seed);
    std::uniform_int_distribution<std::size_t> length(1, 7);
    std::uniform_int_distribution<std::size_t> letter(0, alphabet.size() - 1);
    std::vector<std::string> texts(6000);
    for (std::string& text : texts) {
        text.resize(length(random));
        for (char& character : text) {
            character = alphabet[letter(random)];
        }
    }
    return texts;
}

void expectAsDefined(const std::vector<std::string>& texts) {
    for (const das_variant_type_t type : numericKinds) {
        OptionOfType of(type);
        for (const std::string& text : texts) {
            const variant_t actual = of.option.fromString(text.c_str(), &of.garbage);
            const variant_t expected = defined(type, text);
            ASSERT_EQ(actual, expected) << "kind " << type << ", text \"" << text << '"';
            ASSERT_EQ(isNegativeZero(actual), isNegativeZero(expected)) << '"' << text << '"';
        }
    }
}

/// 0, or in a shuffled run what GoogleTest prints and `--gtest_random_seed` repeats.
unsigned seed() {
    return static_cast<unsigned>(testing::UnitTest::GetInstance()->random_seed());
}

TEST(FromStringLikeAStream, ForOddTexts) {
    expectAsDefined(oddTexts());
}

TEST(FromStringLikeAStream, ForRandomTexts) {
    SCOPED_TRACE("seed " + std::to_string(seed()));
    expectAsDefined(randomTexts(seed()));
}

TEST(FromStringLikeAStream, WhateverTheLocaleOfStreams) {
    const ForeignStreams foreign;
    std::ostringstream text;
    text << 1234.5;
    ASSERT_EQ(text.str(), "1.234,5");
    SCOPED_TRACE("seed " + std::to_string(seed()));
    expectAsDefined(oddTexts());
    expectAsDefined(randomTexts(seed()));
    EXPECT_EQ(converted(vtDouble, "1.5"), variant_t(1.5));
    EXPECT_EQ(converted(vtDouble, " 1.5"), variant_t(1.5));
    EXPECT_EQ(converted(vtDouble, "1,5"), variant_t());
    EXPECT_EQ(converted(vtInt32, "1.000"), variant_t());
    EXPECT_EQ(converted(vtUInt64, "1.000"), variant_t(1UL));
}

TEST(FromStringLikeAStream, WhateverTheLocaleOfC) {
    const ForeignC foreign;
    if (!ForeignC::works()) {
        GTEST_SKIP() << "the system has no C.utf8 locale to make a foreign one of";
    }
    SCOPED_TRACE("seed " + std::to_string(seed()));
    expectAsDefined(oddTexts());
    expectAsDefined(randomTexts(seed()));
    EXPECT_EQ(converted(vtDouble, "1.5"), variant_t(1.5));
    EXPECT_EQ(converted(vtDouble, " 1.5"), variant_t(1.5));
    EXPECT_EQ(converted(vtDouble, "1,5"), variant_t());
}

} // namespace
} // namespace tarv_3_3
