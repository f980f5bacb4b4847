#pragma once

#include "compare/Finding.h"
#include "model/CommandLine.h"

namespace tarv_program {

/// What of the command lines that `older` accepts `newer` refuses or understands in another way, with all
/// verbs. Both answer for themselves: parsers made of them are asked.
/// Throws `Failure` for a description that says more than this program knows.
Comparison compare(const CommandLine& older, const CommandLine& newer);

} // namespace tarv_program
