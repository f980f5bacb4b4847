#include "options/NameOrder.h"

#include <gtest/gtest.h>

namespace tarv_3_3 {
namespace {

TEST(NameOrder, ComparesUnsignedBytesAndPutsAPrefixFirst) {
    // In ascending order.
    const std::string_view names[] = {"",     std::string_view("\0", 1),
                                      "-",    "A",
                                      "B",    "a",
                                      "a-",   "a-b",
                                      "aa",   "b",
                                      "b-a",  "z",
                                      "~",    "\x7F",
                                      "\x80", "\xC3\xA4",
                                      "\xFE", "\xFF"};
    for (const std::string_view& left : names) {
        for (const std::string_view& right : names) {
            SCOPED_TRACE(std::string(left) + " and " + std::string(right));
            EXPECT_EQ(NameOrder()(left, right), &left < &right);
        }
    }
}

} // namespace
} // namespace tarv_3_3
