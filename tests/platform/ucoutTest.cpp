#include "platform/ucout.h"

#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

namespace MERO_2_16::strings::gh2 {
namespace {

TEST(Ucout, IsTheStandardOutputStreamItself) {
    EXPECT_EQ(&ucout(), &std::cout);
    EXPECT_EQ(&ucout(), &ucout());
}

TEST(Ucout, WritesWhereTheHostRedirectedStandardOutput) {
    std::ostringstream redirected;
    std::streambuf* const original = std::cout.rdbuf(redirected.rdbuf());
    ucout() << "text " << 5 << std::endl;
    std::cout.rdbuf(original);
    EXPECT_EQ(redirected.str(), "text 5\n");
}

} // namespace
} // namespace MERO_2_16::strings::gh2
