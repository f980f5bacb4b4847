#pragma once

#include <cstddef>
#include <string_view>

namespace tarv_3_3::internal {

/// The length in bytes of the UTF-8 character that a text begins with. 0 when it begins with none, with a
/// surrogate or with an overlong form, and when it is empty.
std::size_t utf8Length(std::string_view text);

/// Whether a UTF-8 character is a control character: U+0000 to U+001F, or U+007F to U+009F.
bool isControl(std::string_view character);

} // namespace tarv_3_3::internal
