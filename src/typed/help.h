#pragma once

#include <string>

#include "typed/Command.h"
#include "typed/terminal.h"

namespace tarv_3_3::typed::engine {

/// The help of a command.
std::string renderHelp(const Command& command, const HelpStyle& style);

} // namespace tarv_3_3::typed::engine
