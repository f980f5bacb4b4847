#pragma once

#include "harness/Workload.h"

#include <string>
#include <string_view>
#include <vector>

namespace bench {

/// What a host reads after a parse: the value of every declared option, at `Option::slot` of its
/// kind. All of it is allocated beforehand, so that reading costs what the library costs. Texts
/// belong to the library that was read.
struct Answer {
    std::vector<char> switches;
    std::vector<int> integers;
    std::vector<double> numbers;
    std::vector<std::string_view> texts;
    /// The lists, the positional one included.
    std::vector<std::vector<std::string_view>> lists;

    explicit Answer(const Workload& workload);

    /// Forgets every value and keeps the memory.
    void clear();

    /// One line for every option. Libraries agree when these texts are equal.
    std::string canonicalText(const std::vector<Option>& options) const;
};

/// Appends the parts of `text` to `parts`, for libraries that leave this to their hosts.
void splitAtCommas(std::string_view text, std::vector<std::string_view>& parts);

} // namespace bench
