#pragma once

#include <string>
#include <string_view>

#include "support/RelativePositions.h"
#include "tarv_3_3/internal/OptionData.h"

/// For the values that a result keeps.
template <class Value>
std::string textOf(const Value& value) {
    return value.text();
}

/// Stored data as one line: `level@1="5"@2` is an occurrence at 1 with the value "5" at 2,
/// `verbose@1` one without a value, `files@1@4="a"@2,"b"@3,"c"@5` two occurrences with three values
/// in all.
/// `data` is `OptionData` or what the result made of it.
template <class Data>
std::string describeGiven(std::string_view name, const Data& data, const RelativePositions& relative) {
    std::string line(name);
    for (const int position : data.positions) {
        line += "@" + std::to_string(relative(position));
    }
    const char* separator = "=";
    for (const auto& value : data.values) {
        line += separator + ("\"" + std::string(textOf(value)) + "\"@") +
                std::to_string(relative(value.position));
        separator = ",";
    }
    return line;
}

/// A default as `default="7"@6`, with a blank in front; nothing for none.
inline std::string describeDefault(std::string_view text, const tarv_3_3::variant_t& value, int position,
                                   const RelativePositions& relative) {
    if (text.empty() && value == tarv_3_3::variant_t() && position == 0) {
        return "";
    }
    return " default=\"" + std::string(text) + "\"@" + std::to_string(relative(position));
}

inline std::string describe(std::string_view name, const tarv_3_3::OptionData& data,
                            const RelativePositions& relative) {
    return describeGiven(name, data, relative) +
           describeDefault(data.defaultText, data.defaultValue, data.defaultPosition, relative);
}

/// The entry of a result.
template <class Entry>
std::string describe(const Entry& entry, const RelativePositions& relative) {
    const auto& own = entry.byDefault;
    const char* const text =
        own.text.type() == tarv_3_3::vtString ? own.text.template get<const char*>() : "";
    return describeGiven(entry.name().text, entry.group(), relative) +
           describeDefault(text, own.value, own.position, relative);
}
