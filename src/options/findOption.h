#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "options/OptionDescription.h"
#include "tarv_3_3/export.h"

namespace tarv_3_3 {

/// The prefix of a switch's name that turns it off.
inline constexpr std::string_view negation = "no-";

inline bool beginsWithNegation(std::string_view name) {
    return name.size() >= negation.size() && std::memcmp(name.data(), negation.data(), negation.size()) == 0;
}

/// Finds the first record that has exactly the name `name`, or is a switch and has the name behind
/// "no-". Returns 0 with its index in `index`, or 1 with `index` untouched.
TARV_API int findOption(const std::string& name, unsigned long& index,
                        const std::vector<OptionDescription>& options);

/// The same for the first of `names` that is found; 1 when none is.
TARV_API int findOption(const Names& names, unsigned long& index,
                        const std::vector<OptionDescription>& options);

namespace internal {

/// The index of the first record that has exactly the name `name`; the number of options when none has.
std::size_t indexOfExactName(std::string_view name, const std::vector<OptionDescription>& options);

} // namespace internal

} // namespace tarv_3_3
