#include <gtest/gtest.h>

#include <string_view>

#include "parser/BasicParser.h"
#include "reliability/FailingAllocations.h"

namespace tarv_3_3 {
namespace {

constexpr char help[] = R"(topic
 A title that is longer than what fits into a text object itself.

-a-name-that-needs-memory=fast | thorough (thorough)
                              A description that needs memory as well.

)";

std::vector<Topic> topics() {
    return {{"topic", "A title that is longer than what fits into a text object itself."}};
}

TEST(HelpRenderer, YieldsTheLastErrorWhicheverAllocationFails) {
    BasicParser declared(0);
    declared.option("a-name-that-needs-memory", "A description that needs memory as well.", vtString, "topic")
        .allowValue("fast")
        .allowValue("thorough")
        .defaultValue("thorough");
    const std::vector<OptionDescription> options = declared.getGlobalModifiers();

    long number = 1;
    int survived = 0;
    for (bool failed = true; failed; ++number) {
        SCOPED_TRACE(number);
        BasicParser parser(0);
        std::vector<Topic> given = topics();
        failing::arm(number, failing::Mode::once);
        const char* const text = parser.getDescription(std::move(given), options, false);
        failed = failing::disarm().failed != 0;
        const bool reported = std::string_view(parser.getErrorDesc()) == "Unknown error handled.";
        EXPECT_STREQ(text, reported ? "Unknown error handled." : help);
        survived += failed && !reported ? 1 : 0;
        EXPECT_STREQ(parser.getDescription(topics(), options, false), help);
    }
    EXPECT_GT(number, 10);
    // Sorting does without the buffer that it asks for.
    EXPECT_EQ(survived, 1);
}

} // namespace
} // namespace tarv_3_3
