#include <gtest/gtest.h>

#include <string>

#include "parser/BasicParser.h"
#include "tarv_3_3/completion.h"

namespace tarv_3_3 {
namespace {

class LockedGarbage : public Garbage {
public:
    const char* init(const char* text) override {
        ADD_FAILURE() << "kept: " << text;
        return Garbage::init(text);
    }
};

// A value that is cut short in the list is made whole, and the whole one has to be kept somewhere.
TEST(ValueOffer, KeepsNoTextsInTheParserThatIsAsked) {
    LockedGarbage locked;
    BasicParser parser(0);
    IOption& colors = parser.option("colors", "", vtString, "").allowValue("red").allowValue("green");
    static_cast<OptionDescription&>(colors.tokenize(',')).m_garbage = &locked;
    const char* const words[] = {"tool", "--colors=r,"};
    const Completion* const completion = complete(&parser, 2, words);
    ASSERT_EQ(completion->candidateCount, 1U);
    EXPECT_STREQ(completion->candidates[0].text, "--colors=r,green");
    release(completion);
}

bool describeGreen(void* /*context*/, const char* /*option*/, const char* /*word*/, CandidateSink& sink) {
    sink.add("green", "as grass");
    return true;
}

TEST(ValueOffer, HasOneAndZeroForAPositionalSwitch) {
    BasicParser parser(0);
    parser.option("on", "", vtBool, "").positional();
    const char* const words[] = {"tool", ""};
    const Completion* const completion = complete(&parser, 2, words);
    ASSERT_EQ(completion->candidateCount, 2U);
    for (unsigned i = 0; i < 2; ++i) {
        EXPECT_STREQ(completion->candidates[i].text, i == 0 ? "1" : "0");
        EXPECT_STREQ(completion->candidates[i].description, "");
    }
    release(completion);
}

TEST(ValueOffer, BeginsWithWhatTheHostSaysOfAllowedValues) {
    BasicParser parser(0);
    parser.option("color", "", vtString, "").allowValue("red").allowValue("green");
    const char* const words[] = {"tool", "--color="};
    const Completion* const completion = complete(&parser, 2, words, describeGreen);
    ASSERT_EQ(completion->candidateCount, 2U);
    EXPECT_STREQ(completion->candidates[0].text, "--color=green");
    EXPECT_STREQ(completion->candidates[0].description, "as grass");
    EXPECT_STREQ(completion->candidates[1].text, "--color=red");
    EXPECT_STREQ(completion->candidates[1].description, "");
    release(completion);
}

} // namespace
} // namespace tarv_3_3
