#pragma once

#include <string>
#include <vector>

namespace tarv_program {

/// A word as it can be typed in a shell, in quotes only where they are needed. Control characters and bytes
/// beyond ASCII that are no letters of UTF-8 are written as bash reads them, $'\x1b', so that no text from
/// outside reaches a terminal as it is.
std::string shellQuoted(const std::string& word);

/// Words with blanks between them.
std::string shellQuoted(const std::vector<std::string>& words);

/// A message that may hold texts from outside, fit for a terminal: control characters are written as "\x1b".
std::string visible(const std::string& message);

} // namespace tarv_program
