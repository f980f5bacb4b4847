#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarv_3_3 {

/// The longest beginning that all of `texts` have in common, if it begins with `typed`; else `typed`, also
/// when there are no texts.
std::string commonBeginning(std::string_view typed, const std::vector<std::string>& texts);

/// The same for an abbreviated name, word by word: each typed word is lengthened to what the same words of
/// all `names` begin with. Each of `names` has as many words or more.
std::string commonWords(std::string_view typed, const std::vector<std::string>& names);

} // namespace tarv_3_3
