#pragma once

#include <string>

#include "tarv_3_3/export.h"

namespace tarv_3_3 {

/// The length in bytes of the dash that begins at byte `pos` of `text`: 1 for '-', 3 for the figure
/// dash, the en dash, the em dash, the horizontal bar and the swung dash, 0 when there is none.
TARV_API unsigned long getDashLength(const std::string& text, unsigned long pos);

/// Cuts an argument into its name and its value. Up to two leading dashes are skipped; the first
/// '=' or white space behind them, whichever comes first, ends the name. Behind '=' everything is
/// value; white space before the value is skipped whole. White space is what the global locale says.
/// Returns whether there was such an end; if not, the rest is the name and `value` is left alone.
TARV_API bool splitOptionValue(const std::string& arg, std::string* name, std::string* value);

} // namespace tarv_3_3
