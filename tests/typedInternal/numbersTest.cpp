#include "typed/numbers.h"

#include <gtest/gtest.h>

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
    EXPECT_EQ(readDuration("99999999999999999999s", {1, 4}, count), DurationOutcome::tooLarge);
    EXPECT_EQ(readDuration("9223372036854775807d", {1, 4}, count), DurationOutcome::tooLarge);
    EXPECT_EQ(readDuration("", {1, 1}, count), DurationOutcome::notOne);
    EXPECT_EQ(readDuration("s", {1, 1}, count), DurationOutcome::notOne);
}

} // namespace
