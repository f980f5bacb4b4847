#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace tarv_3_3::internal {

/// What a host said of its declarations that no parse reads. Declarations go by their index in the
/// registry, which they keep.
struct Remarks {
    /// Key and value, in the order in which the keys were first used.
    using Notes = std::vector<std::pair<std::string, std::string>>;

    struct Rule {
        int kind;
        std::vector<std::size_t> indexes;
    };

    /// By index; shorter than the registry when nothing was said of the last ones.
    std::vector<Notes> notes;
    std::vector<Rule> rules;
};

} // namespace tarv_3_3::internal
