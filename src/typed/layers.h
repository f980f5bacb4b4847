#pragma once

#include "typed/CommandLine.h"

namespace tarv_3_3::typed::engine {

/// Adds what the environment says of options that the command line does not give.
void readEnvironment(const Command& command, CommandLine& line);

/// Adds what settings files say of options that nobody stronger gives. All lines are checked, those for
/// other verbs as well.
void readSettings(Command& program, CommandLine& line);

} // namespace tarv_3_3::typed::engine
