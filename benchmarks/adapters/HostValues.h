#pragma once

#include "harness/Answer.h"

#include <vector>

namespace bench {

/// What a host keeps itself where nothing else does: the texts given for every option.
class HostValues {
public:
    void resize(std::size_t options);
    void add(std::size_t option, const char* value) { m_values[option].push_back(value); }
    void clear();

    /// Converts and splits them.
    void read(const std::vector<Option>& options, Answer& answer) const;

private:
    std::vector<std::vector<const char*>> m_values;
};

} // namespace bench
