#include "options/findOption.h"

#include <algorithm>
#include <string_view>

#include "options/OptionDescription.h"

namespace tarv_3_3 {

namespace {

constexpr std::string_view negation = "no-";

bool contains(const std::vector<std::string>& names, std::string_view wanted) {
    return std::find(names.begin(), names.end(), wanted) != names.end();
}

} // namespace

int findOption(const std::string& name, unsigned long& index, const std::vector<OptionDescription>& options) {
    const std::string_view wanted = name;
    const bool mayBeNegated = wanted.substr(0, negation.size()) == negation;
    const std::string_view behindNegation = mayBeNegated ? wanted.substr(negation.size()) : wanted;
    for (const OptionDescription& option : options) {
        const bool isNegated = mayBeNegated && option.m_type == vtBool;
        if (contains(option.m_names, wanted) || (isNegated && contains(option.m_names, behindNegation))) {
            index = static_cast<unsigned long>(&option - options.data());
            return 0;
        }
    }
    return 1;
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
