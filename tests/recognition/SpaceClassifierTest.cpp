#include "recognition/SpaceClassifier.h"

#include <gtest/gtest.h>

#include "support/GlobalLocale.h"

namespace tarv_3_3 {
namespace {

TEST(SpaceClassifier, GoesByTheGlobalLocaleOfItsConstruction) {
    const SpaceClassifier classic;
    EXPECT_TRUE(classic.isSpace(' '));
    EXPECT_FALSE(classic.isSpace('_'));
    const GlobalLocale other(UnderscoreIsSpace::locale());
    EXPECT_TRUE(classic.isSpace(' '));
    EXPECT_FALSE(classic.isSpace('_'));
    const SpaceClassifier underscore;
    EXPECT_FALSE(underscore.isSpace(' '));
    EXPECT_TRUE(underscore.isSpace('_'));
}

TEST(SpaceClassifier, FollowsTheGlobalLocale) {
    SpaceClassifier classifier;
    {
        const GlobalLocale other(UnderscoreIsSpace::locale());
        classifier.follow();
        EXPECT_FALSE(classifier.isSpace(' '));
        EXPECT_TRUE(classifier.isSpace('_'));
        classifier.follow();
        EXPECT_TRUE(classifier.isSpace('_'));
    }
    // It keeps the former locale alive until it goes over to the next one.
    EXPECT_TRUE(classifier.isSpace('_'));
    classifier.follow();
    EXPECT_TRUE(classifier.isSpace(' '));
    EXPECT_FALSE(classifier.isSpace('_'));
}

} // namespace
} // namespace tarv_3_3
