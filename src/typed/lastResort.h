#pragma once

#include <string>
#include <string_view>

#include "typed/CommandLine.h"

namespace tarv_3_3::typed::engine {

/// What a name that fits nothing declared asks for: a beginning of "help" or, where the program has a
/// version, of "version".
Wish wishOf(std::string_view name, const Command& program);

} // namespace tarv_3_3::typed::engine
