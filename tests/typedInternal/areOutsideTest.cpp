#include <gtest/gtest.h>

#include "tarv_3_3/typed.h"

namespace {

using tarv_3_3::typed::values::areOutside;

TEST(AreOutside, FindsBoundsThatTheTypeCannotHold) {
    const struct {
        const char* bounds;
        bool found;
        bool expected;
    } rows[] = {
        {"unsigned char, 0 and 255", areOutside<unsigned char>(0, 255), false},
        {"unsigned char, 0 and 256", areOutside<unsigned char>(0, 256), true},
        {"unsigned char, -1 and 255", areOutside<unsigned char>(-1, 255), true},
        {"unsigned char, -1 and 256", areOutside<unsigned char>(-1, 256), true},
        {"signed char, -128 and 127", areOutside<signed char>(-128, 127), false},
        {"signed char, -129 and 127", areOutside<signed char>(-129, 127), true},
        {"signed char, -128 and 128", areOutside<signed char>(-128, 128), true},
        {"int, 0 and 2^31 - 1", areOutside<int>(0, 2147483647LL), false},
        {"int, 0 and 2^31", areOutside<int>(0, 2147483648LL), true},
        {"long long, 0 and 2^63 - 1", areOutside<long long>(0, 9223372036854775807ULL), false},
        {"long long, 0 and 2^63", areOutside<long long>(0, 9223372036854775808ULL), true},
        {"unsigned long long, 0 and 2^64 - 1", areOutside<unsigned long long>(0, ~0ULL), false},
        {"unsigned long long, -1 and 1", areOutside<unsigned long long>(-1, 1), true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.bounds);
        EXPECT_EQ(row.found, row.expected);
    }
}

TEST(AreOutside, LooksAtWholeNumbersOnly) {
    EXPECT_FALSE(areOutside<float>(0, ~0ULL));
    EXPECT_FALSE(areOutside<signed char>(0.5, 1000.5));
    EXPECT_FALSE(areOutside<signed char>(0, 1000.5));
}

} // namespace
