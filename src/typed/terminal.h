#pragma once

#include <cstddef>

namespace tarv_3_3::typed::engine {

/// How help is shown.
struct HelpStyle {
    std::size_t width;
    bool isBold;
};

/// The width that COLUMNS says; else that of the terminal, if standard output is one and help goes there;
/// else 80. Bold on a terminal, but not where NO_COLOR is set, nor on a "dumb" one.
HelpStyle helpStyle(bool isPrinted);

} // namespace tarv_3_3::typed::engine
