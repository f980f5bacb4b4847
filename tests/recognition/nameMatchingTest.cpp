#include "recognition/nameMatching.h"

#include <gtest/gtest.h>

#include <string>

#include "recognition/RandomNames.h"

namespace tarv_3_3 {
namespace {

/// `2` for a score of 2 with the same number of words, `2, other words` else.
std::string describe(NameScore found) {
    return std::to_string(found.score) + (found.sameWordCount ? "" : ", other words");
}

TEST(ScoreName, GivesAWholeWordTwoAndAnAbbreviatedOneOne) {
    const struct {
        const char* typed;
        const char* name;
        const char* score;
    } rows[] = {
        {"verbose", "verbose", "2"},
        {"v", "verbose", "1"},
        {"", "verbose", "1"},
        {"", "", "2"},
        {"output-file", "output-file", "4"},
        {"o-file", "output-file", "3"},
        {"o-f", "output-file", "2"},
        {"-f", "output-file", "2"},
        {"o-", "output-file", "2"},
        {"-", "-", "4"},
        {"a-b-c", "a-bb-c", "5"},
        {"a--b", "a--b", "6"},
        {"a--b", "a-c-b", "5"},
        {"a-c-b", "a--b", "0, other words"},
        {"-x", "no-xray", "2"},
        {"", "-x", "2, other words"},
        {"V", "verbose", "0, other words"},
        {"erb", "verbose", "0, other words"},
        {"outputfile", "output-file", "0, other words"},
        {"o-f", "output-file-name", "2, other words"},
        {"output", "output-file", "2, other words"},
        {"o", "output-file", "1, other words"},
        {"", "output-file", "1, other words"},
        {"o-f-x", "output-file", "0, other words"},
        {"o-f-", "output-file", "0, other words"},
        {"verbosely", "verbose", "0, other words"},
        {"x", "verbose", "0, other words"},
        {"o-x", "output-file", "0, other words"},
        {"output-file-x", "output", "0, other words"},
        {"\xFF", "\xFF\xFE", "1"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.typed) + " for " + row.name);
        EXPECT_EQ(describe(scoreName(row.typed, row.name)), row.score);
    }
}

TEST(ScoreCandidate, CountsTheNoOfANegatedOneAsAWord) {
    const struct {
        const char* typed;
        const char* name;
        const char* score;
    } rows[] = {
        {"no-verbose", "verbose", "4"}, {"no-v", "verbose", "3"},     {"n-verbose", "verbose", "3"},
        {"n-v", "verbose", "2"},        {"-verbose", "verbose", "3"}, {"-", "verbose", "2"},
        {"no-o-f", "output-file", "4"}, {"no-no", "no", "4"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.typed);
        EXPECT_EQ(describe(scoreCandidate(row.typed, {row.name, true})), row.score);
    }
}

// The score counts only where the number of words is the same.
TEST(ScoreCandidate, RefusesWhatIsNoNegation) {
    const struct {
        const char* typed;
        const char* name;
    } rows[] = {
        {"verbose", "verbose"},      {"no", "no"},
        {"no", "verbose"},           {"not-verbose", "verbose"},
        {"o-verbose", "verbose"},    {"no-x", "verbose"},
        {"no-verbose-x", "verbose"}, {"no-o", "output-file"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.typed);
        EXPECT_FALSE(scoreCandidate(row.typed, {row.name, true}).sameWordCount);
    }
    EXPECT_EQ(describe(scoreCandidate("no-v", {"verbose", false})), "0, other words");
}

TEST(MayBeNegated, IsSoForAFirstWordThatAbbreviatesNo) {
    for (const char* const typed : {"no-x", "n-x", "-x", "no-", "-"}) {
        EXPECT_TRUE(mayBeNegated(typed)) << typed;
    }
    for (const char* const typed : {"", "n", "no", "nox", "nox-x", "o-x", "N-x", "x-no"}) {
        EXPECT_FALSE(mayBeNegated(typed)) << typed;
    }
}

TEST(Candidates, AreTheNamesInOrderAndForASwitchEachNegatedBehindIt) {
    const auto candidatesOf = [](das_variant_type_t type) {
        OptionDescription option;
        option.m_names = {"color", "c", "no-grey"};
        option.m_type = type;
        std::string line;
        forEachCandidate(option, [&](const NameCandidate& candidate) { line += candidate.text() + " "; });
        return line;
    };
    EXPECT_EQ(candidatesOf(vtString), "color c no-grey ");
    EXPECT_EQ(candidatesOf(vtBool), "color no-color c no-c no-grey no-no-grey ");
}

TEST(PatternOf, ExcludesNoRecordThatHasACandidateForTheTypedName) {
    RandomNames names;
    int fitting = 0;
    int excluded = 0;
    for (int i = 0; i < 20000; ++i) {
        OptionDescription option;
        option.m_names = {names.next(), names.next()};
        option.m_type = names.nextBool() ? vtBool : vtString;
        const std::string typed = names.next();
        bool fits = false;
        forEachCandidate(option, [&](const NameCandidate& candidate) {
            const NameScore found = scoreCandidate(typed, candidate);
            fits = fits || (found.sameWordCount && found.score > 0);
        });
        const bool mayFit = option.m_names.mayFit(patternOf(typed));
        ASSERT_TRUE(mayFit || !fits) << typed << " for " << option.m_names[0] << ", " << option.m_names[1];
        fitting += fits ? 1 : 0;
        excluded += mayFit ? 0 : 1;
    }
    EXPECT_GT(fitting, 1000);
    EXPECT_GT(excluded, 1000);
}

} // namespace
} // namespace tarv_3_3
