#include "compare/OlderLines.h"

#include <algorithm>

#include <tarv_3_3/description.h>

#include "compare/LineQuestion.h"

namespace tarv_program {

using namespace tarv_3_3;

OlderLines::OlderLines(const Side& side, Examples& examples) : m_side(side), m_examples(examples) {
    for (std::size_t place = 0; place < side.line().options.size(); ++place) {
        if (side.option(place).isAction) {
            m_actions.push_back(place);
        }
    }
    for (const Rule& rule : side.line().rules) {
        m_rules.emplace_back();
        for (const std::string& name : rule.names) {
            m_rules.back().push_back(side.placeOf({name}));
        }
    }
}

std::optional<std::vector<std::string>> OlderLines::with(const std::set<std::size_t>& places) {
    return accepted(places, std::nullopt);
}

std::optional<std::vector<std::string>> OlderLines::withWords(std::size_t count) {
    return accepted({}, count);
}

// With an action where none of the line's own is enough.
std::optional<std::vector<std::string>> OlderLines::accepted(const std::set<std::size_t>& places,
                                                             std::optional<std::size_t> wordCount) {
    auto arguments = ask(places, wordCount);
    for (std::size_t i = 0; i < m_actions.size() && !arguments; ++i) {
        std::set<std::size_t> more = places;
        more.insert(m_actions[i]);
        arguments = ask(more, wordCount);
    }
    return arguments;
}

std::optional<std::vector<std::string>> OlderLines::ask(std::set<std::size_t> places,
                                                        std::optional<std::size_t> wordCount) {
    addWhatIsNeeded(places);
    std::set<std::size_t> filled;
    for (const std::size_t place : m_side.slots().places()) {
        if (places.erase(place) != 0) {
            filled.insert(place);
        }
    }
    const std::optional<std::size_t> count = wordCount ? wordCount : m_examples.wordCount(filled);
    if (!count) {
        return std::nullopt;
    }
    const std::vector<std::string> arguments = argumentsOf(places, *count);
    return askLine(m_side, arguments).isAccepted ? std::optional(arguments) : std::nullopt;
}

// What one rule adds may be what another one asks about.
void OlderLines::addWhatIsNeeded(std::set<std::size_t>& places) const {
    for (bool isChanged = true; isChanged;) {
        isChanged = false;
        for (std::size_t i = 0; i < m_rules.size(); ++i) {
            isChanged = addOnce(places, m_rules[i], m_side.line().rules[i].kind) || isChanged;
        }
    }
}

bool OlderLines::addOnce(std::set<std::size_t>& places, const std::vector<std::size_t>& rule,
                         int kind) const {
    const std::size_t before = places.size();
    const bool isAnyGiven =
        std::any_of(rule.begin(), rule.end(), [&](std::size_t place) { return places.count(place) != 0; });
    const bool needsOne = kind == ruleAtLeastOne || kind == ruleExactlyOne;
    const bool needsAll = kind == ruleRequired || (kind == ruleAllOrNone && isAnyGiven) ||
                          (kind == ruleNeeds && places.count(rule.front()) != 0);
    if (needsAll) {
        places.insert(rule.begin(), rule.end());
    } else if (needsOne && !isAnyGiven) {
        places.insert(rule.front());
    }
    places.erase(Side::nowhere);
    return places.size() != before;
}

std::vector<std::string> OlderLines::argumentsOf(const std::set<std::size_t>& places, std::size_t wordCount) {
    std::vector<std::string> arguments;
    for (const std::size_t place : places) {
        const std::vector<std::string> more = m_examples.argumentsOf(place);
        const bool isAction = m_side.option(place).isAction;
        arguments.insert(isAction ? arguments.begin() : arguments.end(), more.begin(), more.end());
    }
    const std::vector<std::string> words = m_examples.words(wordCount);
    arguments.insert(arguments.end(), words.begin(), words.end());
    return arguments;
}

} // namespace tarv_program
