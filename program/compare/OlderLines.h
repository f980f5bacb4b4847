#pragma once

#include <optional>
#include <set>
#include <vector>

#include "compare/Examples.h"
#include "compare/Side.h"

namespace tarv_program {

/// Makes command lines that the older side accepts.
class OlderLines {
public:
    OlderLines(const Side& side, Examples& examples);

    /// The arguments of a command line that gives these options, what their rules ask for besides, and an
    /// action where one is needed; none where no such line is accepted.
    std::optional<std::vector<std::string>> with(std::set<std::size_t> places);

    const std::vector<std::size_t>& actions() const { return m_actions; }

private:
    void addWhatIsNeeded(std::set<std::size_t>& places) const;
    bool addOnce(std::set<std::size_t>& places, const std::vector<std::size_t>& rule, int kind) const;
    std::vector<std::string> argumentsOf(const std::set<std::size_t>& places);

    const Side& m_side;
    Examples& m_examples;
    std::vector<std::size_t> m_actions;
    std::vector<std::size_t> m_neededPositionals;
    /// The places that each rule names.
    std::vector<std::vector<std::size_t>> m_rules;
};

} // namespace tarv_program
