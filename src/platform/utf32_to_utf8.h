#pragma once

#include "platform/string_types.h"

namespace MERO_2_16::strings {

/// Encodes the code points of `text`. What is no Unicode scalar value (a surrogate, or beyond
/// U+10FFFF) becomes U+FFFD.
ustring8 utf32_to_utf8(const ustring32& text);

} // namespace MERO_2_16::strings
