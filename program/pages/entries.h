#pragma once

#include "pages/Page.h"

namespace tarv_program {

/// What is said of an option. `line` is the command line that it belongs to.
Entry entryOf(const Option& option, const CommandLine& line);

/// What the value is called: what its note says, its allowed values, or its kind.
Runs valueRuns(const Option& option);

/// A sentence for a rule over several options.
std::string sentenceOf(const Rule& rule);

} // namespace tarv_program
