#include "completion/Admission.h"

#include <algorithm>

#include "parser/BasicParser.h"
#include "parser/Remarks.h"
#include "tarv_3_3/description.h"

namespace tarv_3_3 {

Admission::Admission(const BasicParser& parser)
    : m_parser(parser), m_options(parser.registry().m_options), m_states(m_options.size(), State::notGiven),
      m_maySwitchOff(m_options.size(), true), m_isExcluded(m_options.size(), false) {}

void Admission::add(const ReadArgument& argument) {
    if (argument.index == ReadArgument::nowhere || argument.role == ArgumentRole::value) {
        return;
    }
    m_states[argument.index] = argument.isNegated ? State::off : State::given;
    if (m_action == ReadArgument::nowhere && m_options[argument.index].m_kind == Action) {
        m_action = argument.index;
    }
}

void Admission::settle() {
    if (m_parser.registry().m_hasActions) {
        admitByActions();
    }
    excludeByRules();
}

// While no action is given, every action is possible that goes with all modifiers given, and so is every
// modifier of a possible action.
void Admission::admitByActions() {
    std::set<std::set<std::string>> givenTags;
    for (std::size_t index = 0; index < m_options.size(); ++index) {
        if (isGiven(index) && m_options[index].m_kind != Action && !m_options[index].m_tags.empty()) {
            givenTags.insert(m_options[index].m_tags);
        }
    }
    std::set<std::string> possibleTags;
    for (std::size_t index = 0; index < m_options.size(); ++index) {
        const OptionDescription& option = m_options[index];
        if (option.m_kind == Action) {
            m_maySwitchOff[index] =
                m_action == ReadArgument::nowhere ? goesWithAllGiven(option, givenTags) : index == m_action;
            if (m_maySwitchOff[index]) {
                possibleTags.insert(option.m_tags.begin(), option.m_tags.end());
            }
        }
    }
    for (std::size_t index = 0; index < m_options.size(); ++index) {
        const OptionDescription& option = m_options[index];
        if (option.m_kind != Action && !option.m_tags.empty()) {
            m_maySwitchOff[index] = m_parser.isIntersected(possibleTags, option.m_tags);
        }
    }
}

bool Admission::goesWithAllGiven(const OptionDescription& action,
                                 const std::set<std::set<std::string>>& givenTags) const {
    return std::all_of(givenTags.begin(), givenTags.end(), [&](const std::set<std::string>& tags) {
        return m_parser.isIntersected(action.m_tags, tags);
    });
}

// A switch that was turned off counts as not given, and may always be turned off.
void Admission::excludeByRules() {
    if (m_parser.remarks() == nullptr) {
        return;
    }
    for (const internal::Remarks::Rule& rule : m_parser.remarks()->rules) {
        const auto isOn = [&](std::size_t index) { return m_states[index] == State::given; };
        const auto first = std::find_if(rule.indexes.begin(), rule.indexes.end(), isOn);
        const bool isForOne = rule.kind == ruleAtMostOne || rule.kind == ruleExactlyOne;
        if (isForOne && first != rule.indexes.end()) {
            for (const std::size_t index : rule.indexes) {
                m_isExcluded[index] = m_isExcluded[index] || index != *first;
            }
        }
    }
}

} // namespace tarv_3_3
