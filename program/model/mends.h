#pragma once

#include <string>

#include "model/CommandLine.h"

namespace tarv_program {

/// What a program that mends its command line before it is parsed may make of an argument that the parser
/// does not take: the name of the mend, as its description lists it; "help" or "version" for the names of
/// last resort that such a program has. "" where the argument is what it is.
std::string mendOf(const CommandLine& line, const std::string& argument);

} // namespace tarv_program
