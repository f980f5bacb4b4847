#pragma once

#include <string>
#include <string_view>

namespace tarv_3_3 {

/// Whether `text` has control characters, which a terminal may obey instead of showing them: those of ASCII,
/// those from U+0080 to U+009F, and the bytes 0x80 to 0x9F where they are not part of UTF-8.
bool hasControlCharacters(std::string_view text);

/// The first line of `text`, with a blank in place of every control character.
std::string withoutControlCharacters(std::string_view text);

} // namespace tarv_3_3
