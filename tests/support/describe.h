#pragma once

#include <string>
#include <string_view>

#include "support/RelativePositions.h"
#include "tarv_3_3/internal/OptionData.h"

inline std::string textOf(const tarv_3_3::OptionValue& value) {
    return value.text;
}

/// For the values that a result keeps.
template <class Value>
std::string textOf(const Value& value) {
    return value.text();
}

/// Stored data as one line: `level@1="5"@2` is an occurrence at 1 with the value "5" at 2,
/// `verbose@1` one without a value, `files@1@4="a"@2,"b"@3,"c"@5` two occurrences with three values
/// in all. A default follows as `default="7"@6`.
/// `data` is `OptionData` or what the result made of it.
template <class Data>
std::string describe(std::string_view name, const Data& data, const RelativePositions& relative) {
    std::string line(name);
    for (const int position : data.positions) {
        line += "@" + std::to_string(relative(position));
    }
    const char* separator = "=";
    for (const auto& value : data.values) {
        line += separator + ("\"" + textOf(value) + "\"@") + std::to_string(relative(value.position));
        separator = ",";
    }
    const bool noDefault =
        data.defaultText.empty() && data.defaultValue == tarv_3_3::variant_t() && data.defaultPosition == 0;
    if (!noDefault) {
        line += " default=\"" + data.defaultText + "\"@" + std::to_string(relative(data.defaultPosition));
    }
    return line;
}
