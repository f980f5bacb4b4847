#pragma once

#include <string>

namespace MERO_2_16::strings {

/// Bytes, UTF-8 wherever they are text.
using ustring8 = std::string;

/// Code points.
using ustring32 = std::u32string;

} // namespace MERO_2_16::strings
