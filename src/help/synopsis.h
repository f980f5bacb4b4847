#pragma once

#include <string>

namespace tarv_3_3 {

class OptionDescription;

/// The line that shows how an option is written: its names, the last synonym first, then the form
/// of its value, what is allowed, and the default, as in "-l, -level=1 | 2 | 3 (2)".
std::string makeSynopsis(const OptionDescription& option);

} // namespace tarv_3_3
