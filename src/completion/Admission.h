#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "options/OptionDescription.h"
#include "reading/Reader.h"

namespace tarv_3_3 {

/// Tells which declarations a command line may still give, after those that it gives already: only one
/// action, only what goes with it, and nothing that a rule excludes.
class Admission {
public:
    explicit Admission(const BasicParser& parser);

    /// Adds an argument of the line.
    void add(const ReadArgument& argument);

    /// To be called when all arguments are added, and before the questions below.
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
