#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarv_3_3 {

/// `typed`, lengthened as far as all of `texts` begin alike; `typed` where they do not even begin so, and
/// where there are none.
std::string commonBeginning(std::string_view typed, const std::vector<std::string>& texts);

/// The same for a name cut short: each typed word is lengthened as far as that of all `names` is alike.
/// They have as many words or more.
std::string commonWords(std::string_view typed, const std::vector<std::string>& names);

} // namespace tarv_3_3
