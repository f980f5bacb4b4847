#include "options/findOption.h"

#include <algorithm>
#include <cstring>

namespace tarv_3_3 {

namespace {

// Most names of the same length differ in their first byte.
bool equal(const std::string& name, std::string_view wanted) {
    return name.size() == wanted.size() && (wanted.empty() || name.front() == wanted.front()) &&
           std::memcmp(name.data(), wanted.data(), wanted.size()) == 0;
}

bool contains(const Names& names, std::string_view wanted) {
    // A loop, since std::any_of is not inlined here: every look-up in the table would pay for its calls.
    // NOLINTNEXTLINE(readability-use-anyofallof)
    for (const std::string& name : names) {
        if (equal(name, wanted)) {
            return true;
        }
    }
    return false;
}

unsigned long indexOfSwitch(std::string_view name, const std::vector<OptionDescription>& options) {
    unsigned long index = 0;
    while (index < options.size() &&
           !(options[index].m_type == vtBool && contains(options[index].m_names, name))) {
        ++index;
    }
    return index;
}

} // namespace

int findOption(const std::string& name, unsigned long& index, const std::vector<OptionDescription>& options) {
    unsigned long found = internal::indexOfExactName(name, options);
    if (beginsWithNegation(name)) {
        found = std::min(found, indexOfSwitch(std::string_view(name).substr(negation.size()), options));
    }
    if (found == options.size()) {
        return 1;
    }
    index = found;
    return 0;
}

int findOption(const Names& names, unsigned long& index, const std::vector<OptionDescription>& options) {
    for (const std::string& name : names) {
        if (findOption(name, index, options) == 0) {
            return 0;
        }
    }
    return 1;
}

namespace internal {

std::size_t indexOfExactName(std::string_view name, const std::vector<OptionDescription>& options) {
    std::size_t index = 0;
    while (index < options.size() && !contains(options[index].m_names, name)) {
        ++index;
    }
    return index;
}

} // namespace internal

} // namespace tarv_3_3
