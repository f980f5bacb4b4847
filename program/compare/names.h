#pragma once

#include "compare/Examples.h"
#include "compare/Finding.h"
#include "compare/Side.h"

namespace tarv_program {

/// Finds every name, and every abbreviation of one, that gave an option on the older side and gives none,
/// several or another one on the newer side. Of each name the longest way to type it is shown for each thing
/// that it does now.
void compareNames(const Sides& sides, Examples& examples, Comparison& comparison);

/// Finds every beginning of `name`, "help" or "version", that asked for it and does something else now, or
/// nothing. Programs that have these by themselves look at what they declare first. `older` and `newer` say
/// what a program has by itself.
void compareLastResort(const Sides& sides, const CommandLine& older, const CommandLine& newer,
                       const std::string& name, const Examples& examples, Comparison& comparison);

/// Lists the options and the names that only the newer side has.
void listNewNames(const Sides& sides, const Examples& examples, Comparison& comparison);

} // namespace tarv_program
