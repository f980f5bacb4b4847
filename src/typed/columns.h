#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace tarv_3_3::typed::engine {

/// How many columns a text takes on a terminal.
std::size_t columnsOf(std::string_view text);

/// Cuts a text into lines of at most `width` columns: at blanks, at line feeds, beside characters of two
/// columns, and within a word that is longer than a line. A character stays whole, with the marks that
/// combine with it. The lines are parts of the text.
std::vector<std::string_view> wrapColumns(std::string_view text, std::size_t width);

} // namespace tarv_3_3::typed::engine
