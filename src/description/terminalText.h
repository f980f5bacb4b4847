#pragma once

#include <string>
#include <string_view>

namespace tarv_3_3::internal {

/// A text that is safe to show in single quotes on a terminal. Each byte of a quote, a backslash or a control
/// character, and each byte that is not UTF-8, becomes an escape such as "\x1b".
std::string terminalText(std::string_view text);

} // namespace tarv_3_3::internal
