#pragma once

#include <string>
#include <string_view>

namespace tarv_3_3::internal {

/// A text as it may stand in single quotes on a terminal: quotes, backslashes, control characters and
/// bytes that are no UTF-8 become "\x1b", byte by byte.
std::string terminalText(std::string_view text);

} // namespace tarv_3_3::internal
