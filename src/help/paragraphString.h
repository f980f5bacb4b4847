#pragma once

#include <string>

#include "tarv_3_3/export.h"

namespace tarv_3_3 {

/// Lays `text` out as lines that begin in column `indent`, columns counted in bytes from 0, and
/// hold at most `width - 1` bytes of text each. Every line ends with a newline.
///
/// The first line begins with `lead`. A lead shorter than `indent` is padded to that column; behind
/// a longer one come a blank and as much text as fits before column `indent + width - 1`, which may
/// be none.
///
/// Lines break at blanks and at the newlines of `text`; a longer word is cut. Blanks and newlines at
/// the start of a line are dropped, so blank lines vanish, while a text that ends in them yields one
/// last line of nothing but the indent. An empty text yields nothing, not even the lead.
TARV_API std::string paragraphString(std::string text, std::string lead, unsigned long indent,
                                     unsigned long width);

} // namespace tarv_3_3
