#include "recognition/NameMatcher.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "options/RegisteredOptionStorage.h"
#include "options/findOption.h"
#include "recognition/AbbreviationParser.h"
#include "recognition/RandomNames.h"
#include "support/roundsOf.h"
#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {
namespace {

std::string found(const std::string& name, std::int64_t index) {
    return "found '" + name + "' at " + std::to_string(index);
}

/// What a matcher says of "--TYPED", with the index of whole names when `registry` is not null.
std::string matched(NameMatcher& matcher, const std::string& typed, RegisteredOptionStorage& table,
                    RegisteredOptionStorage* registry) {
    const std::string argument = "--" + typed;
    switch (matcher.look(argument, table.m_options, registry)) {
    case NameOutcome::found:
        return found(std::string(matcher.bestNameIn(argument)), matcher.index());
    case NameOutcome::none:
        return "none";
    case NameOutcome::ambiguous:
        break;
    }
    std::string names;
    for (const std::string& name : matcher.bestNames()) {
        names += (names.empty() ? "'" : ", '") + name + "'";
    }
    return "Ambiguous option, possible options are: " + names;
}

/// The same from the single steps, one after the other.
std::string stepped(const std::string& typed, RegisteredOptionStorage& table) {
    AbbreviationParser steps(nullptr, nullptr, 0);
    std::vector<DecomposedName> candidates;
    steps.makeOptionNamesList(table.m_options, candidates);
    std::vector<AbbreviationParser::NameMatch> matches;
    steps.makeNameMatch(matches, DecomposedName(typed), candidates);
    DecomposedName best("");
    std::string message;
    if (steps.findBest(matches, best, message) != 0) {
        return message.empty() ? "none" : message;
    }
    unsigned long index = 0;
    EXPECT_EQ(findOption(best.getName(), index, table.m_options), 0);
    return found(best.getName(), static_cast<std::int64_t>(index));
}

TEST(NameMatcher, FindsInRandomTablesWhatTheSingleStepsFind) {
    RandomNames random;
    std::map<std::string, int> outcomes;
    Garbage garbage;
    const unsigned rounds = roundsOf(2000);
    for (unsigned round = 0; round < rounds; ++round) {
        RegisteredOptionStorage table;
        table.m_garbage = &garbage;
        for (unsigned left = random.pick(20); left > 0; --left) {
            const bool isSwitch = random.nextBool();
            IOption& option =
                table.option(random.next().c_str(), nullptr, "", false, isSwitch ? vtBool : vtString, "");
            if (random.nextBool() && option.m_status == declarationStored) {
                option.synonym(random.next().c_str());
            }
        }
        NameMatcher matcher;
        for (int i = 0; i < 10; ++i) {
            const std::string typed = random.next();
            SCOPED_TRACE("table " + std::to_string(round) + ", typed '" + typed + "'");
            const std::string expected = stepped(typed, table);
            ASSERT_EQ(matched(matcher, typed, table, nullptr), expected);
            ASSERT_EQ(matched(matcher, typed, table, &table), expected);
            ++outcomes[expected.substr(0, 5)];
        }
    }
    for (const char* const outcome : {"found", "none", "Ambig"}) {
        EXPECT_GT(outcomes[outcome], static_cast<int>(rounds / 4)) << outcome;
    }
}

} // namespace
} // namespace tarv_3_3
