#pragma once

#include <string>
#include <string_view>

namespace seek {

/// The text with every control character as \xHH, so that the name of a file can neither steer the
/// terminal that it is shown on nor pass for two lines. Those that UTF-8 spells with two bytes are
/// escaped as well; all else, a backslash included, stays.
std::string escapeControls(std::string_view text);

} // namespace seek
