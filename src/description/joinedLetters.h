#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "options/OptionDescription.h"
#include "recognition/tokenSyntax.h"

namespace tarv_3_3::internal {

/// Writes an argument such as "-vl3", cut by `token`, in the form that the library takes: "-v -l=3". Empty
/// unless every letter is the name of an option that may be suggested, and the last option takes the value
/// behind the letters, if there is one.
std::string separatedLetters(std::string_view argument, const Token& token,
                             const std::vector<OptionDescription>& options);

} // namespace tarv_3_3::internal
