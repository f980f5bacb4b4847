#include "options/findOption.h"

#include <algorithm>

#include "options/OptionDescription.h"

namespace tarv_3_3 {

int findOption(const std::string& name, unsigned long& index, const std::vector<OptionDescription>& options) {
    const auto found = std::find_if(options.begin(), options.end(),
                                    [&](const OptionDescription& option) { return option.answersTo(name); });
    if (found == options.end()) {
        return 1;
    }
    index = static_cast<unsigned long>(found - options.begin());
    return 0;
}

int findOption(const std::vector<std::string>& names, unsigned long& index,
               const std::vector<OptionDescription>& options) {
    for (const std::string& name : names) {
        if (findOption(name, index, options) == 0) {
            return 0;
        }
    }
    return 1;
}

} // namespace tarv_3_3
