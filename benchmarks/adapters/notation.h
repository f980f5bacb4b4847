#pragma once

#include "harness/Workload.h"

#include <algorithm>
#include <string>

namespace bench {

/// How `Candidate::declared` writes the names, where several libraries agree.

/// "output-file"
inline std::string nameAlone(const Option& option) {
    return option.name;
}

/// "output-file,o"
inline std::string nameAndAlias(const Option& option) {
    return option.alias ? option.name + ',' + option.alias : option.name;
}

/// "output_file"
inline std::string underscoredName(const Option& option) {
    std::string name = option.name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

} // namespace bench
