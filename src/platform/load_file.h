#pragma once

#include "platform/string_types.h"

namespace MERO_2_16::system {

/// Reads all of the file `path` into `contents`, byte for byte, to its end: also from a pipe or a
/// kernel file that does not say its size beforehand. Returns false, `contents` undefined, when the
/// file cannot be opened or read; a directory cannot be read. Throws `std::bad_alloc` when there
/// is no memory.
bool load_file(const strings::ustring8& path, strings::ustring8& contents);

} // namespace MERO_2_16::system
