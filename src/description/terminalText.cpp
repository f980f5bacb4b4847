#include "description/terminalText.h"

#include <algorithm>

#include "description/utf8.h"

namespace tarv_3_3::internal {

namespace {

constexpr std::string_view hexadecimal = "0123456789abcdef";

bool isFit(std::string_view character) {
    return !isControl(character) && character != "'" && character != "\"" && character != "\\";
}

void appendBytes(std::string& shown, std::string_view bytes) {
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        shown.append("\\x").append(1, hexadecimal[code / 16]).append(1, hexadecimal[code % 16]);
    }
}

} // namespace

std::string terminalText(std::string_view text) {
    std::string shown;
    while (!text.empty()) {
        const std::size_t length = utf8Length(text);
        const std::string_view character = text.substr(0, std::max<std::size_t>(length, 1));
        if (length != 0 && isFit(character)) {
            shown.append(character);
        } else {
            appendBytes(shown, character);
        }
        text.remove_prefix(character.size());
    }
    return shown;
}

} // namespace tarv_3_3::internal
