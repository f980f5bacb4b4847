#pragma once

#include "compare/Examples.h"
#include "compare/Finding.h"
#include "compare/Side.h"

namespace tarv_program {

/// Finds values, and every abbreviation of an allowed one, that an option of the older side took and that it
/// refuses or takes for something else on the newer side.
void compareValues(const Sides& sides, Examples& examples, Comparison& comparison);

} // namespace tarv_program
