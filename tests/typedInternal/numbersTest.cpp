#include "typed/numbers.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace tarv_3_3::typed::engine;

TEST(Numbers, AreShownAsTheyAreTyped) {
    EXPECT_EQ(showReal(0.1, false), "0.1");
    EXPECT_EQ(showReal(0.1F, true), "0.1");
    EXPECT_EQ(showReal(1e300, false), "1e+300");
    EXPECT_EQ(showSize(0), "0");
    EXPECT_EQ(showSize(1000), "1000");
    EXPECT_EQ(showSize(1024), "1KiB");
    EXPECT_EQ(showSize(3ULL << 60), "3EiB");
    EXPECT_EQ(showSize(1536), "1536");
    EXPECT_EQ(showDuration("3", {60, 1}), "3min");
    EXPECT_EQ(showDuration("3", {1, 1000}), "3ms");
    EXPECT_EQ(showDuration("3", {1, 4}), "0.75s");
    EXPECT_EQ(showDuration("-2", {604800, 1}), "-1209600s");
}

TEST(Numbers, ATextForASwitchIsOneOfEight) {
    for (const char* on : {"1", "true", "yes", "on"}) {
        EXPECT_EQ(readSwitchText(on), 1) << on;
    }
    for (const char* off : {"0", "false", "no", "off"}) {
        EXPECT_EQ(readSwitchText(off), 0) << off;
    }
    for (const char* neither : {"", "2", "True", "y", "onn"}) {
        EXPECT_EQ(readSwitchText(neither), -1) << neither;
    }
}

TEST(Numbers, ADurationInAnOddUnitIsScaledExactly) {
    long long count = 0;
    EXPECT_EQ(readDuration("3min", {1, 4}, count), DurationOutcome::read);
    EXPECT_EQ(count, 720);
    EXPECT_EQ(readDuration("250ms", {1, 4}, count), DurationOutcome::read);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(readDuration("100ms", {1, 4}, count), DurationOutcome::inexact);
    EXPECT_EQ(readDuration("0.0000000000000000000000000000000000000000000001s", {1, 4}, count),
              DurationOutcome::inexact);
    const std::string with128Places = "0." + std::string(127, '0') + "1s";
    EXPECT_EQ(readDuration(with128Places, {1, 4}, count), DurationOutcome::inexact);
    EXPECT_EQ(readDuration("99999999999999999999s", {1, 4}, count), DurationOutcome::tooLarge);
    EXPECT_EQ(readDuration("9223372036854775807d", {1, 4}, count), DurationOutcome::tooLarge);
    EXPECT_EQ(readDuration("", {1, 1}, count), DurationOutcome::notOne);
    EXPECT_EQ(readDuration("s", {1, 1}, count), DurationOutcome::notOne);
}

TEST(Numbers, ADurationIsReadWithItsSignItsFractionAndItsUnit) {
    const struct {
        const char* text;
        TimeUnit unit;
        DurationOutcome outcome;
        long long count;
    } rows[] = {{"+3s", {1, 1}, DurationOutcome::read, 3},
                {"-3s", {1, 1}, DurationOutcome::read, -3},
                {"1.50s", {1, 1000}, DurationOutcome::read, 1500},
                {"1.000s", {1, 1}, DurationOutcome::read, 1},
                {"0.0s", {1, 1}, DurationOutcome::read, 0},
                {"100s", {1, 1}, DurationOutcome::read, 100},
                {".5min", {1, 1}, DurationOutcome::read, 30},
                {".0s", {1, 1}, DurationOutcome::read, 0},
                {"9223372036854775807s", {1, 1}, DurationOutcome::read, 9223372036854775807},
                {"9223372036854775808s", {1, 1}, DurationOutcome::tooLarge, 0},
                {"-9223372036854775808s", {1, 1}, DurationOutcome::tooLarge, 0},
                {"18446744073709551616s", {1, 1}, DurationOutcome::tooLarge, 0},
                {"9s", {1, 1000000000000000000}, DurationOutcome::read, 9000000000000000000},
                {"1d", {1, 1000000000000000000}, DurationOutcome::tooLarge, 0},
                {"9223372036854775807d", {1, 1000000000000000000}, DurationOutcome::tooLarge, 0},
                {"576460752303423488d", {1, 4611686018427387904}, DurationOutcome::tooLarge, 0},
                {"1000000000000000000s", {1000000000000000000, 1}, DurationOutcome::read, 1},
                {"9223372036854775807ns", {1000000000000000000, 1}, DurationOutcome::inexact, 0},
                {"3", {1, 1}, DurationOutcome::noUnit, 0},
                {"3x", {1, 1}, DurationOutcome::notOne, 0},
                {"1e3s", {1, 1}, DurationOutcome::notOne, 0},
                {"1.2.3s", {1, 1}, DurationOutcome::notOne, 0},
                {"--3s", {1, 1}, DurationOutcome::notOne, 0},
                {"-s", {1, 1}, DurationOutcome::notOne, 0},
                {".s", {1, 1}, DurationOutcome::notOne, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.text) + " in " + std::to_string(row.unit.numerator) + "/" +
                     std::to_string(row.unit.denominator) + "s");
        long long count = 0;
        EXPECT_EQ(readDuration(row.text, row.unit, count), row.outcome);
        EXPECT_EQ(count, row.count);
    }
}

TEST(Numbers, ADurationOfRealNumbersIsFinite) {
    const struct {
        const char* text;
        DurationOutcome outcome;
        double count;
    } rows[] = {{"1.5min", DurationOutcome::read, 90},    {"-1e3ms", DurationOutcome::read, -1},
                {"3", DurationOutcome::noUnit, 3},        {"3x", DurationOutcome::notOne, 3},
                {"xs", DurationOutcome::notOne, 0},       {"1e999s", DurationOutcome::tooLarge, 0},
                {"-1e999s", DurationOutcome::tooLarge, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        double count = 0;
        EXPECT_EQ(readDuration(row.text, {1, 1}, count), row.outcome);
        EXPECT_EQ(count, row.count);
    }
    double count = 0;
    EXPECT_EQ(readDuration("1e308d", {1, 1}, count), DurationOutcome::tooLarge);
}

TEST(Numbers, AWholeNumberIsReadToTheEndOfItsText) {
    const struct {
        const char* text;
        NumberOutcome outcome;
        long long number;
    } rows[] = {{"0XfF", NumberOutcome::read, 255},
                {"-0x10", NumberOutcome::read, -16},
                {"+7", NumberOutcome::read, 7},
                {"-9223372036854775808", NumberOutcome::read, -9223372036854775807 - 1},
                {"9223372036854775808", NumberOutcome::tooLarge, 0},
                {"99999999999999999999", NumberOutcome::tooLarge, 0},
                {"", NumberOutcome::notOne, 0},
                {"+", NumberOutcome::notOne, 0},
                {"0x", NumberOutcome::notOne, 0},
                {"0x-1", NumberOutcome::notOne, 0},
                {"1x", NumberOutcome::notOne, 0},
                {"0b1", NumberOutcome::notOne, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        long long number = 0;
        EXPECT_EQ(readWhole(row.text, number), row.outcome);
        if (row.outcome == NumberOutcome::read) {
            EXPECT_EQ(number, row.number);
        }
    }
}

TEST(Numbers, ASizeIsWholeAndNotBelowZero) {
    const struct {
        const char* text;
        NumberOutcome outcome;
        unsigned long long bytes;
    } rows[] = {{"1.50k", NumberOutcome::read, 1500},
                {"-0", NumberOutcome::read, 0},
                {"18446744073709551615", NumberOutcome::read, 18446744073709551615ULL},
                {"18446744073709551616", NumberOutcome::tooLarge, 0},
                {"16Ei", NumberOutcome::tooLarge, 0},
                {"-1", NumberOutcome::notOne, 0},
                {"-99999999999999999999", NumberOutcome::tooLarge, 0},
                {"0.3B", NumberOutcome::notOne, 0},
                {"0.0000000000000000000000000000000000000000001k", NumberOutcome::notOne, 0},
                {"B", NumberOutcome::notOne, 0},
                {"1iB", NumberOutcome::notOne, 0},
                {"1KiBB", NumberOutcome::notOne, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        unsigned long long bytes = 0;
        EXPECT_EQ(readSize(row.text, bytes), row.outcome);
        if (row.outcome == NumberOutcome::read) {
            EXPECT_EQ(bytes, row.bytes);
        }
    }
}

} // namespace
