#pragma once

#include "model/CommandLine.h"

namespace tarv_program {

/// The command line of a verb: its own options, and in front of them those of the command line that it
/// belongs to, which also decides what is mended.
CommandLine within(const CommandLine& owner, const CommandLine& verb);

/// The same command line, in which every option that is said to be required is so by a rule, verbs included.
CommandLine withRequiredAsRules(CommandLine line);

/// The names of the verbs as options, so that a parser can be asked what an abbreviation of one means.
CommandLine verbsAsOptions(const CommandLine& line);

} // namespace tarv_program
