#include "platform/ucout.h"

#include <ios>
#include <ostream>

namespace MERO_2_16::strings::gh2 {

// std::cout, without <iostream>. That header would make every process that loads the library construct all
// standard streams.
extern std::ostream standardOutput __asm__("_ZSt4cout");

std::ostream& ucout() {
    static const std::ios_base::Init streamsAreReady;
    return standardOutput;
}

} // namespace MERO_2_16::strings::gh2
