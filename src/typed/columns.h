#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarv_3_3::typed::engine {

/// The length of the first character in bytes; a byte that is no UTF-8 is one by itself.
std::size_t characterLength(std::string_view text);

/// How many columns a text takes on a terminal.
std::size_t columnsOf(std::string_view text);

/// Cuts a text into lines of at most `width` columns: at blanks, at line feeds, beside characters of two
/// columns, and within a word that is longer than a line. A character stays whole, with the marks that
/// combine with it.
std::vector<std::string> wrapColumns(std::string_view text, std::size_t width);

} // namespace tarv_3_3::typed::engine
