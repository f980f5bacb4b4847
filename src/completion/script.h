#pragma once

#include <string>

#include "completion/Shell.h"

namespace tarv_3_3 {

/// What is said instead of a script that cannot be made.
inline constexpr char noScript[] =
    "There are completion scripts for bash, zsh and fish, and for programs whose names have only letters, "
    "digits, '_', '.', '+' and '-'.\n";

/// The completion script of the program that was started as `path`, which is `argv[0]`: the file name
/// counts. Empty for an unknown shell, and for a name that the shells might not take for a plain word:
/// other than letters, digits, '_', '.', '+' and '-', which does not begin it.
std::string makeScript(Shell shell, const char* path);

} // namespace tarv_3_3
