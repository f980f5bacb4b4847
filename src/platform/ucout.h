#pragma once

#include <iosfwd>

namespace MERO_2_16::strings::gh2 {

/// The standard output stream of the process: `std::cout` itself.
std::ostream& ucout();

} // namespace MERO_2_16::strings::gh2
