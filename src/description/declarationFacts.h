#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "options/OptionDescription.h"

namespace tarv_3_3 {

class BasicParser;
class IParser;

namespace internal {

/// The library's own parser behind an interface; null for null and for any other.
BasicParser* ownParser(IParser* parser);

/// Whether help and suggestions leave the option out unless they are asked for it.
bool isHidden(const OptionDescription& option);

/// Whether a suggestion may name the option: neither hidden nor positional ones.
bool maySuggest(const OptionDescription& option);

/// `value`, which should be of the option's kind, as the text that would be typed for it. Unlike help,
/// it gives a number as many digits as it needs to be read back the same.
std::string typedText(const OptionDescription& option, const variant_t& value);

/// The option's default in the same way; none for an option that takes no value.
std::optional<std::string> typedDefault(const OptionDescription& option);

} // namespace internal

} // namespace tarv_3_3
