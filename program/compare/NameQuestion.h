#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "compare/Side.h"
#include "compare/abbreviations.h"

namespace tarv_program {

/// What abbreviations mean to a command line. A parser looks at all its options for each, so one is asked
/// that knows those alone which can be meant: the options that have a name in the row of the abbreviation,
/// and what takes arguments without a name.
class NameQuestion {
public:
    explicit NameQuestion(const CommandLine& line);

    /// As `Side::meaningOf`, for a way to type some name of this or another command line.
    Meaning meaningOf(const std::string& typed);

private:
    struct Part {
        Part(const CommandLine& whole, const std::set<std::size_t>& chosen);

        CommandLine line;
        /// The place in the whole command line of each option.
        std::vector<std::size_t> places;
        Side side;
    };

    Part& partOf(const NameRow& row);

    const CommandLine& m_line;
    std::map<NameRow, std::set<std::size_t>> m_places;
    std::set<std::size_t> m_filled;
    std::map<NameRow, Part> m_parts;
};

} // namespace tarv_program
