#pragma once

#include <string>

#include "completion/question.h"
#include "tarv_3_3/completion.h"

namespace tarv_3_3 {

/// What the scripts read, each line ended by a newline:
///
///     tarv-complete 1 FILES      none, file or directory
///     HEAD                       what stands before the file name
///     PATH                       the beginning of the file name, without quotes
///     COMMON                     what several candidates have in common; empty: nothing that is not typed
///     CANDIDATE<TAB>DESCRIPTION  each; no description: empty
///
/// For bash, HEAD, COMMON and the candidates are what takes the place of the end of the word, quotes
/// included. Candidates that a terminal might obey are left out, and where the file name is one, the
/// answer is empty: the script does then as if the program did not know it.
std::string makeAnswer(const Question& question, const Completion& completion);

} // namespace tarv_3_3
