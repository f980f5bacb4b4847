#pragma once

#include <string>

#include "completion/question.h"
#include "tarv_3_3/completion.h"

namespace tarv_3_3 {

/// What the scripts read, each line ended by a newline:
///
///     tarv-complete 1 FILES      none, file or directory
///     HEAD                       the part of the word before the file name
///     PATH                       the beginning of the file name, without quotes
///     COMMON                     the word, lengthened to what all candidates begin with; empty if it stays
///     CANDIDATE<TAB>DESCRIPTION  one line for each candidate; the description may be empty
///
/// For bash, HEAD, COMMON and the candidates replace only the end of the word, with quotes. Candidates with
/// control characters are left out. If the file name has one, the answer is empty, and the script does as if
/// the program did not know the word.
std::string makeAnswer(const Question& question, const Completion& completion);

} // namespace tarv_3_3
