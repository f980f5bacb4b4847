#include <gtest/gtest.h>

#include "tarv_3_3/tarv.h"

namespace tarv = tarv_3_3;

namespace {

// The functions return plain `int`: a host that was built with an older header compares with the
// numbers that stood there.
TEST(Status, OfAParseHasItsNumbers) {
    EXPECT_EQ(tarv::parseOk, 0);
    EXPECT_EQ(tarv::parseVetoed, 1);
    EXPECT_EQ(tarv::parseFailed, 2);
    EXPECT_EQ(tarv::parseException, 3);
    EXPECT_EQ(tarv::parseUnidentified, 4);
    EXPECT_EQ(tarv::parseFileUnreadable, 6);
}

TEST(Status, OfAValueHasItsNumbers) {
    EXPECT_EQ(tarv::valueFound, 0);
    EXPECT_EQ(tarv::valueMissing, 1);
    EXPECT_EQ(tarv::valueException, 3);
}

TEST(Status, OfADeclarationHasItsNumbers) {
    EXPECT_EQ(tarv::declarationStored, 0);
    EXPECT_EQ(tarv::declarationRefused, 1);
    EXPECT_EQ(tarv::declarationInProgress, 3);
}

TEST(Status, HasANumberForNoPosition) {
    EXPECT_EQ(tarv::noPosition, 2147483647);
}

} // namespace
