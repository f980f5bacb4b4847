#pragma once

#include <string>

#include "description/JsonWriter.h"
#include "typed/Option.h"

namespace tarv_3_3::typed::engine {

/// What lists of texts are made of.
inline const std::string& itself(const std::string& text) {
    return text;
}

/// Writes the record of an option, an action or a positional argument.
void describeOption(internal::JsonWriter& json, const Option& option);

} // namespace tarv_3_3::typed::engine
