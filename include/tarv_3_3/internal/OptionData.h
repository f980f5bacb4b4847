#pragma once

#include <memory_resource>
#include <string>
#include <vector>

#include "tarv_3_3/variant.h"

namespace tarv_3_3 {

/// One value that was given to an option.
struct OptionValue {
    /// As it stood in the argument, an abbreviated allowed value completed.
    std::string text;
    variant_t value;
    int position;
};

/// What a result knows about one option name. Its lists take their memory from the allocator that
/// the object is made with.
struct OptionData {
    using allocator_type = std::pmr::polymorphic_allocator<char>;

    OptionData() = default;
    explicit OptionData(const allocator_type& allocator) : positions(allocator), values(allocator) {}
    OptionData(const OptionData& other, const allocator_type& allocator)
        : positions(other.positions, allocator), values(other.values, allocator),
          defaultText(other.defaultText), defaultValue(other.defaultValue),
          defaultPosition(other.defaultPosition) {}

    /// The position index of each occurrence, in the order stored.
    std::pmr::vector<int> positions;
    /// The values of all occurrences, in the order stored.
    std::pmr::vector<OptionValue> values;
    /// The default as text; empty when there is none.
    std::string defaultText;
    variant_t defaultValue;
    int defaultPosition = 0;
};

} // namespace tarv_3_3
