#pragma once

#include "typed/CommandLine.h"

namespace tarv_3_3::typed::engine {

/// Writes what was given into the states that handles point to; all others are not given.
void noteGiven(Command& program, const CommandLine& line);

/// Takes back what a weaker source gives and a stronger one excludes.
void dropExcluded(CommandLine& line);

/// Complains of the first rule that is broken: actions, what is required, what is needed, groups.
void checkRules(CommandLine& line);

} // namespace tarv_3_3::typed::engine
