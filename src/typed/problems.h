#pragma once

#include <string>
#include <vector>

#include "typed/Command.h"

namespace tarv_3_3::typed::engine {

/// What is wrong with the declarations of a program and all of its verbs, each with the name of what it
/// concerns.
std::vector<std::string> findProblems(const Command& program);

} // namespace tarv_3_3::typed::engine
