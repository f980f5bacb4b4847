#pragma once

#include <string>

#include "typed/Command.h"

namespace tarv_3_3::typed::engine {

/// A program and all of its verbs, one inside the other, as JSON; `share/tarv/description.schema.json` is
/// its schema.
std::string describeProgram(const Command& program);

} // namespace tarv_3_3::typed::engine
