#pragma once

#include "compare/Examples.h"
#include "compare/Finding.h"
#include "compare/Side.h"

namespace tarv_program {

/// Compares what no command line shows: defaults, environment variables, settings and option files, what is
/// mended; and lists what nobody can judge.
void compareFacts(const Sides& sides, Examples& examples, Comparison& comparison);

} // namespace tarv_program
