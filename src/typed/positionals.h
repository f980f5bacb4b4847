#pragma once

#include <cstddef>
#include <vector>

#include "typed/CommandLine.h"

namespace tarv_3_3::typed::engine {

/// The positional arguments of a command, in the order declared.
std::vector<Option*> positionalsOf(const Command& command);

/// How many of `count` words each of them takes: first what each needs, in their order, then what each may
/// have. Words may be left over.
std::vector<std::size_t> shares(const std::vector<Option*>& positionals, std::size_t count);

/// Gives the words of a line, which are places in it, to the positional arguments of a command.
void distribute(const Command& command, const std::vector<std::size_t>& words, CommandLine& line);

} // namespace tarv_3_3::typed::engine
