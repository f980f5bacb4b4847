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

} // namespace
} // namespace tarv_3_3
