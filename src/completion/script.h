#pragma once

#include <string>

#include "completion/Shell.h"

namespace tarv_3_3 {

/// The message when no script can be made.
inline constexpr char noScript[] =
    "There are completion scripts for bash, zsh and fish, and for programs whose names have only letters, "
    "digits, '_', '.', '+' and '-'.\n";

/// The completion script of the program that was started as `path`, which is `argv[0]`. It is for the file
/// name in it. Empty for an unknown shell, and for a name that shells may not take for a plain word: it must
/// consist of letters, digits, '_', '.', '+' and '-', and must not begin with '-'.
std::string makeScript(Shell shell, const char* path);

} // namespace tarv_3_3
