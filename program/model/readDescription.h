#pragma once

#include <string>

#include "model/CommandLine.h"

namespace tarv_program {

/// Whether a text begins as a description does, with a brace behind white space.
bool looksLikeDescription(const std::string& text);

/// Reads a description in JSON, the format tarv-description, version 1. Members that are not known are
/// passed over. Throws `Failure` with `source` and the place in it for anything else: "seek.json:
/// declarations[3].kind: ...".
CommandLine readDescription(const std::string& json, const std::string& source);

} // namespace tarv_program
