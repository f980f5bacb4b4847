#pragma once

#include <string>
#include <vector>

#include "compare/Finding.h"
#include "model/CommandLine.h"

namespace tarv_program {

/// A verb that both sides have.
struct VerbPair {
    const CommandLine* older;
    const CommandLine* newer;
};

/// Finds every name and abbreviation of a verb that does something else now, and lists new verbs. Returns the
/// verbs that are left.
std::vector<VerbPair> compareVerbs(const CommandLine& older, const CommandLine& newer,
                                   const std::vector<std::string>& command, Comparison& comparison);

} // namespace tarv_program
