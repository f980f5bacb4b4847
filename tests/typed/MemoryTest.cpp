#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "reliability/FailingAllocations.h"
#include "support/TemporaryDirectory.h"
#include "tarv_3_3/typed.h"

namespace {

namespace tarv = tarv_3_3::typed;

enum class Paper { a4, letter };

/// A program with everything that needs memory of the library's, and none of the host's.
struct Subject {
    tarv::Program program{"a-name-that-is-longer-than-a-short-text", "1.0",
                          "Tries what happens without memory."};
    tarv::Handle<Paper> paper = program.option("paper-size,p", "The paper that is printed on.", Paper::a4);
    tarv::Handle<int> copies = program.option("copies-of-each-page", "How many there are.", 1).range(1, 99);
    tarv::Handle<tarv::Text> title =
        program.option("title-of-the-document", "A title.", "a default that is longer than a short text");
    tarv::Handle<int> verbose =
        program.counter("verbose,v", "Say more.").env("TARV_TEST_VERBOSE_BY_ENVIRONMENT");
    tarv::Command& print = program.verb("print-all-pages,pr", "Prints them.");
    tarv::Handle<int> even = print.option<int>("even", "").check("an even number, of all things", [](int n) {
        return n % 2 == 0;
    });
    tarv::Handle<bool> fast =
        print.flag("fast", "").completeWith([](const char*, tarv::Candidates& list) { list.add("x"); });
    tarv::Handle<tarv::Text> file = print.positional<tarv::Text>("file-that-is-printed", "");

    explicit Subject(const char* settings) {
        print.atMostOne(even, fast);
        print.does([] {});
        program.settingsFile(settings);
    }
};

constexpr char prefix[] = "a-name-that-is-longer-than-a-short-text: ";

/// What was said, in memory that is not asked for while allocations fail.
struct Said {
    bool goesOn;
    int exitCode;
    char text[8192];
};

void note(Said& said, const tarv::Outcome& outcome) {
    said.goesOn = outcome.goesOn();
    said.exitCode = outcome.exitCode();
    std::snprintf(said.text, sizeof said.text, "%s%s", outcome.output(), outcome.errors());
}

struct Row {
    std::vector<const char*> line;
    /// What may be left out where there is no memory for it.
    const char* suggestion;
};

const Row rows[] = {
    {{"p", "--c-o-e-p=3", "--t-o-t-d=a title that is longer than a short text", "pr", "--even=4", "a"}, ""},
    {{"p", "-vvv", "print-all-pages", "--fast", "a-file-with-a-name-that-is-long-enough"}, ""},
    {{"p", "--paper-siez=a4", "print"}, "Did you mean '--paper-size'?\n"},
    {{"p", "prnt-all-pages"}, "Did you mean 'print-all-pages'?\n"},
    {{"p", "pr", "--even=3"}, ""},
    {{"p", "pr", "--help"}, ""},
    {{"p", "--version"}, ""},
    {{"p", "tarvoption=describe"}, ""},
    {{"p", "tarvoption=completion=bash"}, ""},
};

std::string without(std::string text, const std::string& part) {
    const std::size_t at = text.find(part);
    return part.empty() || at == std::string::npos ? text : text.erase(at, part.size());
}

bool isOutOfMemory(const Said& said) {
    return !said.goesOn && said.exitCode == 2 &&
           (std::string_view(said.text) == std::string(prefix) + "out of memory\n" ||
            std::string_view(said.text) == "out of memory\n");
}

/// Lets each allocation of declarations and of a parse fail, one after the other.
void sweep(const Row& row, const char* settings, failing::Mode mode) {
    const int count = static_cast<int>(row.line.size());
    static Said expected;
    {
        Subject subject(settings);
        note(expected, subject.program.parse(count, row.line.data()));
    }
    long failures = 0;
    bool failed = true;
    for (long nth = 1; failed; ++nth) {
        SCOPED_TRACE(nth);
        const long before = failing::liveBlocks();
        static Said said;
        {
            failing::arm(nth, mode);
            Subject subject(settings);
            note(said, subject.program.parse(count, row.line.data()));
            failed = failing::disarm().failed != 0;
        }
        EXPECT_EQ(failing::liveBlocks(), before);
        failures += failed ? 1 : 0;
        const bool isWhole = std::string(said.text) == expected.text ||
                             std::string(said.text) == without(expected.text, row.suggestion);
        EXPECT_TRUE(isOutOfMemory(said) || (isWhole && said.goesOn == expected.goesOn)) << said.text;
        ASSERT_LT(nth, 5000);
    }
    EXPECT_GT(failures, 50);
}

TEST(TypedMemory, EveryAllocationMayFail) {
    const TemporaryDirectory directory;
    const std::string settings = directory.write("conf", "paper-size=letter\nprint-all-pages.even=2\n");
    for (const Row& row : rows) {
        SCOPED_TRACE(row.line.back());
        sweep(row, settings.c_str(), failing::Mode::once);
        sweep(row, settings.c_str(), failing::Mode::forGood);
    }
}

TEST(TypedMemory, AProgramIsUsedAgainBehindAParseWithoutMemory) {
    Subject subject("/nowhere");
    const char* const line[] = {"p", "--c-o-e-p=3", "pr", "a"};
    subject.program.parse(4, line);
    static Said said;
    bool failed = true;
    for (long nth = 1; failed; ++nth) {
        SCOPED_TRACE(nth);
        failing::arm(nth, failing::Mode::once);
        note(said, subject.program.parse(4, line));
        failed = failing::disarm().failed != 0;
        EXPECT_TRUE(said.goesOn || isOutOfMemory(said)) << said.text;
        note(said, subject.program.parse(4, line));
        EXPECT_TRUE(said.goesOn) << said.text;
        EXPECT_EQ(*subject.copies, 3);
    }
}

TEST(TypedMemory, AHandleWithoutMemoryDoesNothing) {
    failing::arm(1, failing::Mode::forGood);
    tarv::Program program("p");
    const auto level = program.option("level", "", 7).range(1, 9).env("X").hidden();
    tarv::Command& verb = program.verb("log", "");
    const auto flag = verb.flag("flag", "").check("on", [](bool on) { return on; });
    verb.does([] {});
    verb.atMostOne(level, flag);
    const int value = *level;
    const bool isGiven = level.given() || flag.given();
    static Said said;
    note(said, program.parse(0, nullptr));
    failing::disarm();
    EXPECT_EQ(value, 0);
    EXPECT_FALSE(isGiven);
    EXPECT_TRUE(isOutOfMemory(said));
    EXPECT_STREQ(program.problems(), "");
}

} // namespace
