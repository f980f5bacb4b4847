#include "escaping.h"

namespace seek {

namespace {

// How many bytes the control character at the front has; 0 for any other one.
std::size_t controlLength(std::string_view text) {
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < 0x20 || first == 0x7f) {
        return 1;
    }
    const bool isTwoBytes = first == 0xc2 && text.size() > 1;
    const auto second = static_cast<unsigned char>(isTwoBytes ? text[1] : 0);
    return 0x80 <= second && second <= 0x9f ? 2 : 0;
}

} // namespace

std::string escapeControls(std::string_view text) {
    const char digits[] = "0123456789abcdef";
    std::string escaped;
    while (!text.empty()) {
        const std::size_t length = controlLength(text);
        for (const char byte : text.substr(0, length)) {
            const auto value = static_cast<unsigned char>(byte);
            escaped.append({'\\', 'x', digits[value >> 4U], digits[value & 0xfU]});
        }
        if (length == 0) {
            escaped.push_back(text[0]);
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return escaped;
}

} // namespace seek
