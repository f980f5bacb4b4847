#pragma once

#include "compare/Examples.h"
#include "compare/Finding.h"
#include "compare/Side.h"

namespace tarv_program {

/// Finds whole command lines that the older side accepted and the newer one refuses, or understands in
/// another way: without arguments, each option alone and with each action, what stands without a name and how
/// much of it, and what each rule of either side forbids.
void compareLines(const Sides& sides, Examples& examples, Comparison& comparison);

} // namespace tarv_program
