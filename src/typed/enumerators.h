#pragma once

#include <string>
#include <vector>

namespace tarv_3_3::typed::engine {

/// The names of enumerators as they are typed, from what a compiler spells of a function template with
/// these values: "[with E = Paper; E ...tarvValues = {Paper::a4, Paper::us_letter}]" has "a4" and
/// "us-letter". A '_' at the end, as in "default_", is left out.
std::vector<std::string> enumeratorNames(const char* spelling);

} // namespace tarv_3_3::typed::engine
