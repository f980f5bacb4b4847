#pragma once

#include <tarv_3_3/typed.h>

namespace tarv_program {

/// Declares what the program does: a verb for each, with what it runs. Bodies throw `Failure` for what ends
/// with exit code 2.
void declareVerbs(tarv_3_3::typed::Program& tool);

} // namespace tarv_program
