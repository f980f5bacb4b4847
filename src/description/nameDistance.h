#pragma once

#include <cstddef>
#include <limits>
#include <string_view>

namespace tarv_3_3::internal {

/// How far a typed name is from a declared one.
struct NameDistance {
    /// Letters that are missing, superfluous, other or swapped with their neighbour; a left-out word
    /// counts as one.
    std::size_t edits = std::numeric_limits<std::size_t>::max() / 2;
    /// Letters that were not typed because words were cut short.
    std::size_t cut = 0;

    friend bool operator<(NameDistance left, NameDistance right) {
        return left.edits != right.edits ? left.edits < right.edits : left.cut < right.cut;
    }
};

/// The least distance between two names, read as whole texts or word by word. Each word of `typed` may be
/// cut short, and words of `name` may be left out if all that are typed fit without an edit. Distances
/// of more than `maxEdits` edits are not told apart: some larger number of edits.
NameDistance nameDistance(std::string_view typed, std::string_view name);

} // namespace tarv_3_3::internal
