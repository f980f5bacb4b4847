#pragma once

#include <string_view>

namespace tarv_3_3 {

/// Orders names bytewise. Most names of a table differ in their first byte, which is cheaper to see
/// than a call of memcmp.
struct NameOrder {
    using is_transparent = void;

    bool operator()(std::string_view left, std::string_view right) const {
        if (left.empty() || right.empty() || left.front() == right.front()) {
            return left < right;
        }
        return static_cast<unsigned char>(left.front()) < static_cast<unsigned char>(right.front());
    }
};

} // namespace tarv_3_3
