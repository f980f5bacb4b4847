#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "parser/BasicParser.h"

namespace {

// Counts down with every allocation; the one that reaches zero fails.
long allocationsLeft = 0;

bool failsNow() {
    return allocationsLeft > 0 && --allocationsLeft == 0;
}

/// Fails one allocation, the `number`-th from now on.
class FailingAllocation {
public:
    explicit FailingAllocation(long number) { allocationsLeft = number; }
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    ~FailingAllocation() { allocationsLeft = 0; }

    bool happened() const { return allocationsLeft == 0; }
};

} // namespace

void* operator new(std::size_t size) {
    void* const block = failsNow() ? nullptr : std::malloc(size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

namespace tarv_3_3 {
namespace {

constexpr char help[] = R"(topic
 A title that is longer than what fits into a text object itself.

-a-name-that-needs-memory=fast | thorough (thorough)
                              A description that needs memory as well.

)";

class ExhaustedHelp : public testing::Test {
protected:
    ExhaustedHelp() {
        m_parser
            .option("a-name-that-needs-memory", "A description that needs memory as well.", vtString,
                    "topic:A title that is longer than what fits into a text object itself.")
            .allowValue("fast")
            .allowValue("thorough")
            .defaultValue("thorough");
        m_options = m_basic.getGlobalModifiers();
    }

    std::vector<Topic> topics() const {
        return {{"topic", "A title that is longer than what fits into a text object itself."}};
    }

    BasicParser m_basic{0};
    IParser& m_parser = m_basic;
    std::vector<OptionDescription> m_options;
};

TEST_F(ExhaustedHelp, OfTheRendererIsTheLastErrorWhicheverAllocationFails) {
    long number = 1;
    for (bool happened = true; happened; ++number) {
        SCOPED_TRACE(number);
        BasicParser parser(0);
        std::vector<Topic> given = topics();
        const char* text = nullptr;
        {
            const FailingAllocation failing(number);
            text = parser.getDescription(std::move(given), m_options, false);
            happened = failing.happened();
        }
        EXPECT_STREQ(text, happened ? "Unknown error handled." : help);
        EXPECT_STREQ(parser.getErrorDesc(), happened ? "Unknown error handled." : "");
        EXPECT_STREQ(parser.getDescription(topics(), m_options, false), help);
    }
    EXPECT_GT(number, 10);
}

TEST_F(ExhaustedHelp, OfAParserIsTheLastErrorOrAStandardException) {
    long number = 1;
    for (bool happened = true; happened; ++number) {
        SCOPED_TRACE(number);
        std::string outcome;
        outcome.reserve(1000);
        {
            const FailingAllocation failing(number);
            try {
                outcome = m_parser.getDescription();
            } catch (const std::bad_alloc&) {
                outcome = "bad_alloc";
            }
            happened = failing.happened();
        }
        EXPECT_EQ(outcome == help, !happened) << outcome;
        EXPECT_TRUE(outcome == help || outcome == "bad_alloc" || outcome == "Unknown error handled.")
            << outcome;
        EXPECT_STREQ(m_parser.getDescription(), help);
    }
    EXPECT_GT(number, 10);
}

} // namespace
} // namespace tarv_3_3
