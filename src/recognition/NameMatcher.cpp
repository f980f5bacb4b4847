#include "recognition/NameMatcher.h"

#include "options/OptionDescription.h"
#include "options/RegisteredOptionStorage.h"

namespace tarv_3_3 {

NameOutcome NameMatcher::look(const std::string& argument, const std::vector<OptionDescription>& options,
                              RegisteredOptionStorage* registry) {
    m_index = -1;
    forget();
    if (argument.size() < 2 || dashLength(argument) == 0) {
        m_token = Token();
        return NameOutcome::none;
    }
    m_token = splitToken(argument, m_classifier);
    const std::string_view name = m_token.nameIn(argument);
    if (registry != nullptr && findWholeName(name, *registry)) {
        return NameOutcome::found;
    }
    keepBest(name, options);
    const NameOutcome found = outcome();
    // One best name means one record: another record with that name would have tied with this one.
    if (found == NameOutcome::ambiguous) {
        m_index = -1;
    }
    return found;
}

// A candidate that equals the typed name has the highest score possible, and only another equal one ties with
// it. So if there is just one, the table need not be searched.
bool NameMatcher::findWholeName(std::string_view typed, RegisteredOptionStorage& registry) {
    std::size_t found = 0;
    m_isWhole = registry.findOnly(typed, found);
    if (m_isWhole) {
        m_index = static_cast<std::int64_t>(found);
    }
    return m_isWhole;
}

// Keeps the candidates of the highest score, in one pass over the table.
void NameMatcher::keepBest(std::string_view typed, const std::vector<OptionDescription>& options) {
    const Names::Pattern pattern = patternOf(typed);
    for (const OptionDescription& option : options) {
        if (option.m_names.mayFit(pattern)) {
            forEachCandidate(option, [&](const NameCandidate& candidate) {
                if (isBest(scoreCandidate(typed, candidate))) {
                    keep(candidate.text());
                    m_index = &option - options.data();
                }
            });
        }
    }
}

void NameMatcher::forget() {
    m_isWhole = false;
    m_bestNames.clear();
    m_bestScore = 0;
}

// Whether a candidate is to be kept; drops those that it beats.
bool NameMatcher::isBest(NameScore found) {
    if (!found.sameWordCount || found.score < m_bestScore) {
        return false;
    }
    if (found.score > m_bestScore) {
        m_bestNames.clear();
        m_bestScore = found.score;
    }
    return true;
}

} // namespace tarv_3_3
