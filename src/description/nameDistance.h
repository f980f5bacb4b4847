#pragma once

#include <cstddef>
#include <limits>
#include <string_view>

namespace tarv_3_3::internal {

/// How far a typed name is from a declared one.
struct NameDistance {
    /// The number of letters that are missing, superfluous, different or swapped with their neighbour. A
    /// missing word counts as one.
    std::size_t edits = std::numeric_limits<std::size_t>::max() / 2;
    /// The number of letters that abbreviated words lack.
    std::size_t cut = 0;

    friend bool operator<(NameDistance left, NameDistance right) {
        return left.edits != right.edits ? left.edits < right.edits : left.cut < right.cut;
    }
};

/// The least distance between two names, compared as whole texts or word by word. Each word of `typed` may be
/// abbreviated. Words of `name` may be missing if all typed words fit without an edit.
NameDistance nameDistance(std::string_view typed, std::string_view name);

} // namespace tarv_3_3::internal
