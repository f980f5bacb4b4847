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
    std::optional<std::vector<std::string>> with(const std::set<std::size_t>& places);

    /// The same, with this number of arguments without a name and no option that is not needed.
    std::optional<std::vector<std::string>> withWords(std::size_t count);

    const std::vector<std::size_t>& actions() const { return m_actions; }

private:
    void addWhatIsNeeded(std::set<std::size_t>& places) const;
    bool addOnce(std::set<std::size_t>& places, const std::vector<std::size_t>& rule, int kind) const;
    std::optional<std::vector<std::string>> accepted(const std::set<std::size_t>& places,
                                                     std::optional<std::size_t> wordCount);
    std::optional<std::vector<std::string>> ask(std::set<std::size_t> places,
                                                std::optional<std::size_t> wordCount);
    std::vector<std::string> argumentsOf(const std::set<std::size_t>& places, std::size_t wordCount);

    const Side& m_side;
    Examples& m_examples;
    std::vector<std::size_t> m_actions;
    /// The places that each rule names.
    std::vector<std::vector<std::size_t>> m_rules;
};

} // namespace tarv_program
