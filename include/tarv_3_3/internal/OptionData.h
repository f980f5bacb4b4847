#pragma once

#include <string>
#include <vector>

#include "tarv_3_3/variant.h"

namespace tarv_3_3 {

/// One value that was given to an option.
struct OptionValue {
    /// As it stood in the argument, an abbreviated allowed value completed; may be left empty where `value`
    /// is the same text.
    std::string text;
    variant_t value;
    int position;
};

/// The text of a value, wherever it is kept.
inline const char* textOf(const OptionValue& value) {
    const bool isInVariant = value.text.empty() && value.value.type() == vtString;
    return isInVariant ? value.value.get<const char*>() : value.text.c_str();
}

/// What an argument says about an option, on its way into a result.
struct OptionData {
    /// The position index of each occurrence, in the order stored.
    std::vector<int> positions;
    /// The values of all occurrences, in the order stored.
    std::vector<OptionValue> values;
    /// The default as text; empty when there is none.
    std::string defaultText;
    variant_t defaultValue;
    int defaultPosition = 0;
};

} // namespace tarv_3_3
