#pragma once

#include <string>
#include <vector>

#include "lint/checkCall.h"
#include "model/CommandLine.h"

namespace tarv_program {

/// A script, and what is to be said of the calls of a program in it, in their order.
struct LintedScript {
    std::string path;
    std::string contents;
    std::vector<Diagnostic> diagnostics;
};

/// Reads a script with shfmt; nothing of it is run. `names` are those that the program is called by. Throws
/// `Failure` when the script cannot be read, or shfmt is not installed.
LintedScript lintScript(const CommandLine& program, const std::vector<std::string>& names,
                        const std::string& path);

/// The same with a script from standard input.
LintedScript lintStandardInput(const CommandLine& program, const std::vector<std::string>& names);

/// What is to be said of the calls in a script with this syntax tree. `treeOfScript` reads scripts that stand
/// in arguments.
std::vector<Diagnostic> lintTree(const CommandLine& program, const std::vector<std::string>& names,
                                 const std::string& tree, const std::string& script,
                                 const TreeOf& treeOfScript);

/// As compilers say it: "FILE:LINE:COLUMN: warning: ...", one a line.
std::string reportOf(const LintedScript& script);

/// The script with everything mended that can be. Other bytes stay as they are.
std::string mended(const LintedScript& script);

/// What `mended` changes, as a unified difference; "" when nothing.
std::string differenceOf(const LintedScript& script);

/// Replaces the script by what `mended` says, at once: whoever reads it meanwhile, or after a failure, finds
/// the old or the new one. The mode stays. A symbolic link stays, too, and what it leads to is replaced.
/// Throws `Failure`, for one when the script was changed since it was read.
void replaceScript(const LintedScript& script);

} // namespace tarv_program
