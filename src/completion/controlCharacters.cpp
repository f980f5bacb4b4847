#include "completion/controlCharacters.h"

#include <cstddef>

#include "description/utf8.h"

namespace tarv_3_3 {

namespace {

struct Character {
    /// In bytes; 1 for a byte that is not part of UTF-8.
    std::size_t length;
    bool isControl;
};

/// The first of a text that is not empty.
Character firstOf(std::string_view text) {
    const std::size_t length = internal::utf8Length(text);
    if (length != 0) {
        return {length, internal::isControl(text.substr(0, length))};
    }
    // The byte is not ASCII here.
    return {1, static_cast<unsigned char>(text.front()) < 0xA0U};
}

} // namespace

bool hasControlCharacters(std::string_view text) {
    while (!text.empty()) {
        const Character character = firstOf(text);
        if (character.isControl) {
            return true;
        }
        text.remove_prefix(character.length);
    }
    return false;
}

std::string withoutControlCharacters(std::string_view text) {
    std::string_view line = text.substr(0, text.find('\n'));
    std::string plain;
    while (!line.empty()) {
        const Character character = firstOf(line);
        plain += character.isControl ? std::string_view(" ") : line.substr(0, character.length);
        line.remove_prefix(character.length);
    }
    return plain;
}

} // namespace tarv_3_3
