#pragma once

#include <string>
#include <utility>
#include <vector>

#include "options/OptionDescription.h"
#include "recognition/IArgumentParser.h"
#include "tarv_3_3/Value.h"
#include "tarv_3_3/internal/OptionData.h"

inline tarv_3_3::OptionDescription optionNamed(tarv_3_3::Names names,
                                               tarv_3_3::das_variant_type_t type = tarv_3_3::vtString) {
    tarv_3_3::OptionDescription option;
    option.m_names = std::move(names);
    option.m_type = type;
    return option;
}

/// One or more occurrences at the given positions, with text values at theirs.
inline tarv_3_3::OptionData occurrences(const std::vector<int>& positions,
                                        const std::vector<std::pair<const char*, int>>& values = {}) {
    tarv_3_3::OptionData data;
    data.positions.assign(positions.begin(), positions.end());
    for (const auto& [text, position] : values) {
        data.values.push_back({text, tarv_3_3::variant_t(text), position});
    }
    return data;
}

/// One occurrence with text values, at the next position indices of the process.
inline tarv_3_3::OptionData nextOccurrence(const std::vector<const char*>& values = {}) {
    using tarv_3_3::IArgumentParser;
    tarv_3_3::OptionData data;
    data.positions.push_back(IArgumentParser::getNewPositionIndex());
    for (const char* const text : values) {
        data.values.push_back({text, tarv_3_3::variant_t(text), IArgumentParser::getNewPositionIndex()});
    }
    return data;
}

/// The answer to a query: `"5"@3` for a value, `@3` for an occurrence without one, `missing`, or
/// `status 3`. An answer without a value that carries one all the same says so.
inline std::string describe(const tarv_3_3::Value& value) {
    if (value.status == 0) {
        const std::string text = value.text != nullptr ? "\"" + std::string(value.text) + "\"" : "";
        return text + "@" + std::to_string(value.position);
    }
    const bool empty =
        value.text == nullptr && value.position == 2147483647 && value.value.type() == tarv_3_3::vtNull;
    const std::string status = value.status == 1 ? "missing" : "status " + std::to_string(value.status);
    return empty ? status : status + ", but not empty";
}
