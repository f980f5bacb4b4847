#pragma once

#include <cstdlib>

/// How many rounds a random test makes whose number is usually `usual`: so many percent of it as
/// TARV_TEST_PERCENT in the environment says. Builds that check or count every access take ten times as long
/// for a round, and find what they look for in the first ones.
inline unsigned roundsOf(unsigned usual) {
    const char* const percent = std::getenv("TARV_TEST_PERCENT");
    return percent == nullptr ? usual
                              : usual * static_cast<unsigned>(std::strtoul(percent, nullptr, 10)) / 100;
}
