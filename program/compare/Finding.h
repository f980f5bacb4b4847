#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarv_program {

/// Something that worked and does not work any more, or does something else now.
struct Finding {
    /// What it concerns: "name", "verb", "value", "line", "default", "environment", "settings".
    std::string kind;
    /// A command line that shows it, as it would be typed.
    std::string command;
    std::string was;
    std::string now;
    /// How many shorter ways to type the same are broken in the same way.
    std::size_t shorter = 0;
};

struct Comparison {
    std::vector<Finding> breaks;
    /// Breaks that somebody has accepted.
    std::vector<Finding> accepted;
    std::vector<std::string> additions;
    /// What nobody can judge from a description.
    std::vector<std::string> unjudged;
};

} // namespace tarv_program
