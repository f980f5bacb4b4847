#pragma once

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "completion/Shell.h"

namespace tarv_3_3 {

/// The question of a script: what may replace the last of these words?
struct Question {
    Shell shell = Shell::unknown;
    /// Without quotes, the program first; at least two.
    std::vector<std::string> words;
    /// Bash replaces only the end of the word at the cursor. `kept` is the part before that, without quotes,
    /// and `openQuote` the quote that is open there, or 0. Other shells replace the whole word: empty.
    std::string kept;
    char openQuote = 0;
};

/// Reads a question to the end of `input`. None when it is incomplete, or longer than any command line: more
/// than 16 MiB or a million words.
std::optional<Question> readQuestion(std::FILE* input, Shell shell);

} // namespace tarv_3_3
