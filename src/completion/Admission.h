#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "options/OptionDescription.h"
#include "reading/Reader.h"

namespace tarv_3_3 {

/// Which declarations may still be given, behind those that are: only one action, only what goes with it,
/// and nothing that a rule excludes.
class Admission {
public:
    explicit Admission(const BasicParser& parser);

    /// Takes notice of an argument of the line.
    void note(const ReadArgument& argument);

    /// What may follow is asked when all arguments are noted.
    void settle();
    bool isGiven(std::size_t index) const { return m_states[index] != State::notGiven; }
    bool maySwitchOff(std::size_t index) const { return m_maySwitchOff[index]; }
    bool mayStand(std::size_t index) const { return m_maySwitchOff[index] && !m_isExcluded[index]; }

private:
    enum class State : char { notGiven, given, off };

    void admitByActions();
    bool goesWithAllGiven(const OptionDescription& action,
                          const std::set<std::set<std::string>>& givenTags) const;
    void excludeByRules();

    const BasicParser& m_parser;
    const std::vector<OptionDescription>& m_options;
    std::vector<State> m_states;
    std::vector<bool> m_maySwitchOff;
    std::vector<bool> m_isExcluded;
    /// The first action given.
    std::size_t m_action = ReadArgument::nowhere;
};

} // namespace tarv_3_3
