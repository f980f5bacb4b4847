#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <locale>
#include <random>
#include <sstream>
#include <string>

#include "options/ForeignLocale.h"
#include "options/OptionOfType.h"
#include "support/CapturedAssertions.h"
#include "support/printVariant.h"

namespace tarv_3_3 {
namespace {

/// The rendered value, "null pointer" for none.
std::string rendered(das_variant_type_t type, const variant_t& value) {
    OptionOfType of(type);
    const char* const text = of.option.toString(&of.garbage, value);
    return text != nullptr ? text : "null pointer";
}

void expectRendered() {
    const struct {
        variant_t value;
        const char* text;
    } rows[] = {
        {true, "1"},
        {false, "0"},
        {0, "0"},
        {-5, "-5"},
        {1234567, "1234567"},
        {std::numeric_limits<std::int32_t>::min(), "-2147483648"},
        {std::numeric_limits<std::uint32_t>::max(), "4294967295"},
        {std::numeric_limits<std::int64_t>::min(), "-9223372036854775808"},
        {std::numeric_limits<std::int64_t>::max(), "9223372036854775807"},
        {std::numeric_limits<std::uint64_t>::max(), "18446744073709551615"},
        {255UL, "255"},
        {0.1, "0.1"},
        {1e20, "1e+20"},
        {1.0, "1"},
        {0.0, "0"},
        {-0.0, "-0"},
        {-2.5, "-2.5"},
        {1234.5, "1234.5"},
        {100000.0, "100000"},
        {999999.4, "999999"},
        {999999.5, "1e+06"},
        {1000000.0, "1e+06"},
        {1234567.0, "1.23457e+06"},
        {0.0001, "0.0001"},
        {0.00001, "1e-05"},
        {1.0 / 3, "0.333333"},
        {2.0 / 3, "0.666667"},
        {-1.7976931348623157e308, "-1.79769e+308"},
        {4.9406564584124654e-324, "4.94066e-324"},
        {std::numeric_limits<double>::infinity(), "inf"},
        {-std::numeric_limits<double>::infinity(), "-inf"},
        {std::nan(""), "nan"},
        {"text", "text"},
        {"", ""},
        {" 1,5 ", " 1,5 "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(rendered(row.value.type(), row.value), row.text);
    }
}

TEST(ToString, RendersEveryKindAsAStreamOfTheClassicLocaleDoes) {
    expectRendered();
}

TEST(ToString, DoesNotHeedTheLocaleOfStreams) {
    const ForeignStreams foreign;
    expectRendered();
}

TEST(ToString, DoesNotHeedTheLocaleOfC) {
    const ForeignC foreign;
    if (!ForeignC::works()) {
        GTEST_SKIP() << "the system has no C.utf8 locale to make a foreign one of";
    }
    expectRendered();
}

TEST(ToString, RendersAnyDoubleAsAStreamDoes) {
    const auto seed = static_cast<unsigned>(testing::UnitTest::GetInstance()->random_seed());
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937_64 random(seed);
    std::uniform_int_distribution<int> exponent(-1080, 1025);
    std::uniform_real_distribution<double> mantissa(-1, 1);
    for (int i = 0; i < 5000; ++i) {
        const double value =
            std::ldexp(mantissa(random), i % 2 == 0 ? exponent(random) : exponent(random) / 60);
        std::ostringstream stream;
        stream.imbue(std::locale::classic());
        stream << value;
        ASSERT_EQ(rendered(vtDouble, value), stream.str());
    }
}

TEST(ToString, HasTheTextKept) {
    OptionOfType of(vtInt32);
    const char* const text = of.option.toString(&of.garbage, 5);
    EXPECT_EQ(text, of.garbage.init("5"));
    OptionOfType ofText(vtString);
    Garbage other;
    const char* const kept = ofText.option.toString(&other, "text");
    EXPECT_EQ(kept, other.init("text"));
}

TEST(ToString, YieldsANullPointerForKindsWithoutConversion) {
    EXPECT_EQ(rendered(vtNull, variant_t()), "null pointer");
    EXPECT_EQ(rendered(vtNull, "text"), "null pointer");
    EXPECT_EQ(rendered(static_cast<das_variant_type_t>(10), 5), "null pointer");
}

TEST(ToString, GoesByTheKindOfTheOptionNotOfTheValue) {
    const struct {
        das_variant_type_t type;
        const char* text;
        const char* assertion;
    } rows[] = {
        {vtBool, "0", "m_type == vtBool"},     {vtInt32, "0", "m_type == vtInt32"},
        {vtUInt32, "0", "m_type == vtUInt32"}, {vtUInt64, "0", "m_type == vtUInt64"},
        {vtDouble, "0", "m_type == vtDouble"}, {vtString, "", "m_type == vtString"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.assertion);
        const CapturedAssertions assertions;
        EXPECT_EQ(rendered(row.type, 5L), row.text);
        EXPECT_EQ(assertions.expressions(), row.assertion);
    }
    const CapturedAssertions assertions;
    EXPECT_EQ(rendered(vtInt64, 5), "0");
    EXPECT_EQ(assertions.expressions(), "m_type == vtInt64");
}

TEST(DefaultText, IsTheDefaultAsText) {
    const struct {
        das_variant_type_t type;
        variant_t value;
        variant_t text;
    } rows[] = {
        {vtBool, true, "1"},        {vtInt32, -5, "-5"}, {vtDouble, 1.5, "1.5"},
        {vtString, "a", "a"},       {vtString, "", ""},  {vtNull, variant_t(), variant_t()},
        {vtNull, "a", variant_t()},
    };
    for (const auto& row : rows) {
        OptionOfType of(row.type);
        of.option.defaultValue(row.value);
        EXPECT_EQ(of.option.defaultText(), row.text);
        EXPECT_EQ(of.option.defaultText(), row.text);
    }
}

TEST(DefaultText, FollowsTheDefault) {
    OptionOfType of(vtInt32);
    of.option.defaultValue(5);
    EXPECT_EQ(of.option.defaultText(), variant_t("5"));
    of.option.defaultValue(6);
    EXPECT_EQ(of.option.defaultText(), variant_t("6"));
}

TEST(DefaultText, IsRenderedOnce) {
    OptionOfType of(vtInt32);
    of.option.defaultValue(5);
    const char* const text = of.option.defaultText().get<const char*>();
    EXPECT_EQ(of.option.defaultText().get<const char*>(), text);
    OptionOfType ofText(vtString);
    ofText.option.defaultValue("a");
    EXPECT_EQ(ofText.option.defaultText().get<const char*>(), ofText.option.m_default.get<const char*>());
}

// A default of another kind is asserted every time.
TEST(DefaultText, GoesByTheKindOfTheOptionNotOfTheDefault) {
    OptionOfType of(vtInt32);
    of.option.defaultValue("5");
    const CapturedAssertions assertions;
    EXPECT_EQ(of.option.defaultText(), variant_t("0"));
    EXPECT_EQ(assertions.expressions(), "m_type == vtInt32");
    EXPECT_EQ(of.option.defaultText(), variant_t("0"));
    EXPECT_EQ(assertions.expressions(), "m_type == vtInt32; m_type == vtInt32");
}

TEST(GetTypeName, NamesEveryKind) {
    const struct {
        das_variant_type_t type;
        const char* name;
    } rows[] = {
        {vtBool, "undefined"},
        {vtInt32, "integer"},
        {vtUInt32, "unsigned integer"},
        {vtInt64, "64 bit integer"},
        {vtUInt64, "unsigned 64 bit or hex"},
        {vtDouble, "double"},
        {vtString, "string"},
        {vtNull, ""},
        {static_cast<das_variant_type_t>(1), ""},
        {static_cast<das_variant_type_t>(10), ""},
        {static_cast<das_variant_type_t>(18), ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.type);
        EXPECT_EQ(OptionOfType(row.type).option.getTypeName(), row.name);
    }
}

TEST(FromString, KeepsTheTextOfAString) {
    class CountingGarbage : public Garbage {
    public:
        const char* init(const char* text) override {
            kept += std::string("'") + text + "'";
            return Garbage::init(text);
        }

        std::string kept;
    };
    CountingGarbage garbage;
    OptionDescription option;
    option.m_type = vtString;
    EXPECT_EQ(option.fromString("text", &garbage), variant_t("text"));
    option.m_type = vtInt32;
    EXPECT_EQ(option.fromString("5", &garbage), variant_t(5));
    EXPECT_EQ(garbage.kept, "'text'");
}

} // namespace
} // namespace tarv_3_3
