#include "mero_2_16/assertion.h"

#include <gtest/gtest.h>

#include <csignal>
#include <string>

namespace MERO_2_16 {
namespace {

std::string reported;

void note(const char* expression, const char* file, int line) {
    reported = std::string(expression) + " at " + file + ":" + std::to_string(line);
}

void noteNothing(const char*, const char*, int) {}

TEST(AssertionHandler, ReceivesTheExpressionAndItsPlaceAndMayReturn) {
    const assertion_handler_t original = set_assertion_handler(note);
    reported.clear();
    report_assertion("a == b", "source.cpp", 17);
    set_assertion_handler(original);
    EXPECT_EQ(reported, "a == b at source.cpp:17");
}

TEST(AssertionHandler, IsReturnedWhenItIsReplaced) {
    const assertion_handler_t original = set_assertion_handler(note);
    EXPECT_EQ(set_assertion_handler(noteNothing), &note);
    EXPECT_EQ(set_assertion_handler(nullptr), &noteNothing);
    EXPECT_EQ(set_assertion_handler(original), original);
}

TEST(AssertionHandlerDeathTest, PrintsTheExpressionAndAbortsByDefault) {
    EXPECT_EXIT(report_assertion("a == b", "source.cpp", 17), testing::KilledBySignal(SIGABRT),
                testing::Eq("source.cpp:17: assertion failed: a == b\n"));
}

TEST(AssertionHandlerDeathTest, IsTheDefaultOneAgainAfterNull) {
    const assertion_handler_t original = set_assertion_handler(note);
    set_assertion_handler(nullptr);
    EXPECT_EXIT(report_assertion("x", "y.cpp", 1), testing::KilledBySignal(SIGABRT),
                testing::Eq("y.cpp:1: assertion failed: x\n"));
    set_assertion_handler(original);
}

} // namespace
} // namespace MERO_2_16
