#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "options/OptionDescription.h"
#include "recognition/tokenSyntax.h"

namespace tarv_3_3::internal {

/// An argument such as "-vl3", whose pieces `token` knows, written as the library takes it: "-v -l=3".
/// Empty unless every letter is the name of an option that may be suggested, and the value behind the
/// letters, if there is one, is one that the last of them takes.
std::string separatedLetters(std::string_view argument, const Token& token,
                             const std::vector<OptionDescription>& options);

} // namespace tarv_3_3::internal
