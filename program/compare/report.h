#pragma once

#include <string>

#include "compare/Finding.h"

namespace tarv_program {

/// The line of a baseline that accepts a break: its kind, the command line that shows it, and what that does
/// now.
std::string baselineLine(const Finding& finding);

/// Moves the breaks that a baseline accepts to `Comparison::accepted`. Each line of `baseline` is one that
/// `baselineLine` made; blank ones and those that begin with '#' do not count.
void acceptBreaks(Comparison& comparison, const std::string& baseline);

std::string reportAsText(const Comparison& comparison);
std::string reportAsJson(const Comparison& comparison);
std::string reportAsBaseline(const Comparison& comparison);

} // namespace tarv_program
