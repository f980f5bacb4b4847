#pragma once

#include <string>

#include "model/CommandLine.h"
#include "model/askProgram.h"

namespace tarv_program {

/// What a file holds. Throws `Failure` when it cannot be read, or is too large for a script or a
/// description.
std::string contentsOf(const std::string& path);

/// The same of standard input, which messages call `standardInputName`.
std::string contentsOfStandardInput();
inline constexpr char standardInputName[] = "<stdin>";

/// What is between the last slash and the ending of a description's name: "seek" for "old/seek.json".
std::string programName(const std::string& path);

/// The description that `source` names: a file or a pipe with JSON, a program by its path, or one in PATH. A
/// file in the current folder that does not begin as a description does is refused, unless the path has a
/// slash. The program is run with the one argument tarvoption=describe; any other answer than a description
/// is refused. The name of the command line is that of the program, or of the file where it says none.
CommandLine loadDescription(const std::string& source, const Limits& limits = Limits());

/// The JSON of the same, read and found good.
std::string loadJson(const std::string& source, const Limits& limits = Limits());

} // namespace tarv_program
