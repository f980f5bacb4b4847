#include "recognition/singleSteps.h"

#include <gtest/gtest.h>

#include <utility>

#include "options/OptionDescription.h"
#include "recognition/AbbreviationParser.h"

namespace tarv_3_3 {
namespace {

using Words = std::vector<std::string>;

TEST(DecomposedName, CutsAtEveryHyphenAndKeepsEmptyWords) {
    const struct {
        const char* name;
        Words words;
    } rows[] = {
        {"output-file", {"output", "file"}},
        {"output", {"output"}},
        {"a-b-c", {"a", "b", "c"}},
        {"a--b", {"a", "", "b"}},
        {"-a", {"", "a"}},
        {"a-", {"a", ""}},
        {"", {""}},
        {"-", {"", ""}},
        {"--", {"", "", ""}},
        {"a\u2013b", {"a\u2013b"}},
        {"a_b c=d", {"a_b c=d"}},
        {"No-Case", {"No", "Case"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(DecomposedName(row.name).m_words, row.words);
    }
}

TEST(DecomposedName, JoinsItsWordsToTheNameAgain) {
    for (const char* const name :
         {"output-file", "output", "a-b-c", "a--b", "-a", "a-", "", "-", "---", "\u2013-x"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(DecomposedName(name).getName(), name);
    }
}

TEST(DecomposedName, JoinsTheWordsThatItHoldsNow) {
    DecomposedName name("no-verbose");
    name.m_words = {"verb", "", "ose"};
    EXPECT_EQ(name.getName(), "verb--ose");
    name.m_words.resize(1);
    EXPECT_EQ(name.getName(), "verb");
}

TEST(DecomposedName, CopiesAreIndependent) {
    DecomposedName source("output-file");
    const DecomposedName copy(source);
    DecomposedName assigned("x");
    assigned = source;
    source.m_words[0] = "input";
    EXPECT_EQ(source.getName(), "input-file");
    EXPECT_EQ(copy.getName(), "output-file");
    EXPECT_EQ(assigned.getName(), "output-file");
}

TEST(DecomposedName, MovingHandsTheWordsOver) {
    DecomposedName source("output-file");
    DecomposedName assigned("x");
    assigned = std::move(source);
    EXPECT_EQ(assigned.getName(), "output-file");
    const DecomposedName constructed(std::move(assigned));
    EXPECT_EQ(constructed.getName(), "output-file");
}

using NameMatch = AbbreviationParser::NameMatch;

/// Neither candidates nor matches need a handler.
class AbbreviationParserMatch : public testing::Test {
protected:
    AbbreviationParser recognizer{nullptr, nullptr, 0};
};

OptionDescription named(Names names, das_variant_type_t type) {
    OptionDescription option;
    option.m_names = std::move(names);
    option.m_type = type;
    return option;
}

std::vector<std::string> namesOf(const std::vector<DecomposedName>& candidates) {
    std::vector<std::string> names;
    for (const DecomposedName& candidate : candidates) {
        names.push_back(candidate.getName());
    }
    return names;
}

TEST_F(AbbreviationParserMatch, ListsEveryNameAndBehindItTheNegatedFormOfASwitch) {
    std::vector<OptionDescription> options = {
        named({"level", "l"}, vtInt32),
        named({"verbose", "v", "talk"}, vtBool),
        named({}, vtBool),
        named({"no-color"}, vtBool),
        named({"flag"}, vtNull),
        named({"output-file"}, vtString),
    };
    std::vector<DecomposedName> candidates;
    recognizer.makeOptionNamesList(options, candidates);
    const std::vector<std::string> expected = {"level",    "l",           "verbose", "no-verbose",
                                               "v",        "no-v",        "talk",    "no-talk",
                                               "no-color", "no-no-color", "flag",    "output-file"};
    EXPECT_EQ(namesOf(candidates), expected);
    EXPECT_EQ(candidates[3].m_words, (std::vector<std::string>{"no", "verbose"}));
    EXPECT_EQ(candidates[11].m_words, (std::vector<std::string>{"output", "file"}));
}

TEST_F(AbbreviationParserMatch, AppendsTheNamesBehindThoseAlreadyListed) {
    std::vector<OptionDescription> options = {named({"level"}, vtInt32)};
    std::vector<DecomposedName> candidates = {DecomposedName("first")};
    recognizer.makeOptionNamesList(options, candidates);
    EXPECT_EQ(namesOf(candidates), (std::vector<std::string>{"first", "level"}));
}

TEST_F(AbbreviationParserMatch, ScoresEachWordOfACandidate) {
    const struct {
        const char* typed;
        const char* candidate;
        int score; // 0: no match
        bool sameWordCount;
    } rows[] = {
        {"verb", "verbose", 1, true},       {"x", "verbose", 0, true},
        {"o-file", "output-file", 3, true}, {"output", "output-file", 2, false},
        {"o-f-x", "output-file", 0, false}, {"", "", 2, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.typed) + " against " + row.candidate);
        std::vector<NameMatch> matches;
        recognizer.makeNameMatch(matches, DecomposedName(row.typed), {DecomposedName(row.candidate)});
        ASSERT_EQ(matches.size(), row.score == 0 ? 0U : 1U);
        if (row.score != 0) {
            EXPECT_EQ(matches[0].m_score, row.score);
            EXPECT_EQ(matches[0].m_sameWordCount, row.sameWordCount);
            EXPECT_EQ(matches[0].m_candidate.getName(), row.candidate);
        }
    }
}

TEST_F(AbbreviationParserMatch, AppendsMatchesInTheOrderOfTheCandidates) {
    std::vector<NameMatch> matches = {{true, 9, DecomposedName("before")}};
    recognizer.makeNameMatch(matches, DecomposedName("ver"),
                             {DecomposedName("version"), DecomposedName("level"), DecomposedName("verbose-x"),
                              DecomposedName("ver")});
    ASSERT_EQ(matches.size(), 4U);
    EXPECT_EQ(matches[0].m_candidate.getName(), "before");
    EXPECT_EQ(matches[1].m_candidate.getName(), "version");
    EXPECT_EQ(matches[2].m_candidate.getName(), "verbose-x");
    EXPECT_EQ(matches[3].m_candidate.getName(), "ver");
}

TEST_F(AbbreviationParserMatch, FindsTheOneBestCandidate) {
    const struct {
        std::vector<NameMatch> matches;
        const char* best;
    } rows[] = {
        {{{true, 1, DecomposedName("verbose")}}, "verbose"},
        {{{true, 1, DecomposedName("verbose")}, {true, 2, DecomposedName("v")}}, "v"},
        {{{true, 2, DecomposedName("v")}, {true, 1, DecomposedName("verbose")}}, "v"},
        {{{true, 1, DecomposedName("a")}, {true, 1, DecomposedName("b")}, {true, 3, DecomposedName("c-d")}},
         "c-d"},
        {{{false, 9, DecomposedName("a-b-c")}, {true, 1, DecomposedName("d")}}, "d"},
        {{{true, 1, DecomposedName("d")}, {false, 1, DecomposedName("a-b")}}, "d"},
        {{{true, 0, DecomposedName("e")}}, "e"},
        {{{true, 0, DecomposedName("e")}, {true, 1, DecomposedName("f")}}, "f"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.best);
        DecomposedName best("");
        std::string message = "untouched";
        EXPECT_EQ(recognizer.findBest(row.matches, best, message), 0);
        EXPECT_EQ(best.getName(), row.best);
        EXPECT_EQ(message, "untouched");
    }
}

TEST_F(AbbreviationParserMatch, FindsNothingWithoutACandidateOfTheSameWordCount) {
    DecomposedName best("");
    std::string message = "untouched";
    EXPECT_EQ(recognizer.findBest({}, best, message), 1);
    EXPECT_EQ(recognizer.findBest({{false, 2, DecomposedName("verbose-mode")}}, best, message), 1);
    EXPECT_EQ(message, "untouched");
}

TEST_F(AbbreviationParserMatch, FindsAnAmbiguityAndListsItInOrder) {
    const struct {
        std::vector<NameMatch> matches;
        const char* message;
    } rows[] = {
        {{{true, 1, DecomposedName("version")}, {true, 1, DecomposedName("verbose")}},
         "Ambiguous option, possible options are: 'version', 'verbose'"},
        {{{true, 0, DecomposedName("a")}, {true, 0, DecomposedName("b")}, {true, -1, DecomposedName("c")}},
         "Ambiguous option, possible options are: 'a', 'b'"},
        {{{true, 1, DecomposedName("low")},
          {true, 3, DecomposedName("out-f")},
          {false, 3, DecomposedName("out-f-x")},
          {true, 2, DecomposedName("mid")},
          {true, 3, DecomposedName("o-file")},
          {true, 3, DecomposedName("out-f")}},
         "Ambiguous option, possible options are: 'out-f', 'o-file', 'out-f'"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.message);
        DecomposedName best("");
        std::string message = "before";
        EXPECT_EQ(recognizer.findBest(row.matches, best, message), 2);
        EXPECT_EQ(message, row.message);
    }
}

TEST_F(AbbreviationParserMatch, ForgetsTheMatchesOfTheSearchBefore) {
    DecomposedName best("");
    std::string message;
    EXPECT_EQ(
        recognizer.findBest({{true, 1, DecomposedName("a")}, {true, 1, DecomposedName("b")}}, best, message),
        2);
    EXPECT_EQ(recognizer.findBest({{true, 1, DecomposedName("c")}}, best, message), 0);
    EXPECT_EQ(best.getName(), "c");
    EXPECT_EQ(recognizer.findBest({}, best, message), 1);
}

} // namespace
} // namespace tarv_3_3
