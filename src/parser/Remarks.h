#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace tarv_3_3::internal {

/// Notes and rules that a host added to its declarations. No parse reads them. Declarations are referred to
/// by their index in the registry, which does not change.
struct Remarks {
    /// Key and value, in the order in which the keys were first used.
    using Notes = std::vector<std::pair<std::string, std::string>>;

    struct Rule {
        int kind;
        std::vector<std::size_t> indexes;
    };

    /// One element for each declaration. There may be fewer, where the last declarations have no notes.
    std::vector<Notes> notes;
    std::vector<Rule> rules;
};

} // namespace tarv_3_3::internal
