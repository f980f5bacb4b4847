#include "completion/controlCharacters.h"

#include <cstddef>

namespace tarv_3_3 {

namespace {

struct Character {
    /// In bytes; 1 for a byte that is not part of UTF-8.
    std::size_t length;
    bool isControl;
};

unsigned char byteAt(std::string_view text, std::size_t place) {
    return place < text.size() ? static_cast<unsigned char>(text[place]) : 0;
}

bool isContinuation(unsigned char byte) {
    return (byte & 0xC0U) == 0x80U;
}

/// How many bytes a character takes that begins with `first` and `second`; 0 when none does. Shorter
/// forms exist for some, and surrogates and what lies behind U+10FFFF are no characters.
std::size_t lengthOf(unsigned char first, unsigned char second) {
    if (!isContinuation(second) || first < 0xC2U || first > 0xF4U) {
        return 0;
    }
    const bool isRefused = (first == 0xE0U && second < 0xA0U) || (first == 0xEDU && second > 0x9FU) ||
                           (first == 0xF0U && second < 0x90U) || (first == 0xF4U && second > 0x8FU);
    const std::size_t length = first < 0xE0U ? 2 : first < 0xF0U ? 3 : 4;
    return isRefused ? 0 : length;
}

Character characterAt(std::string_view text, std::size_t place) {
    const unsigned char first = byteAt(text, place);
    const unsigned char second = byteAt(text, place + 1);
    const std::size_t length = lengthOf(first, second);
    bool isWhole = length != 0;
    for (std::size_t i = 2; i < length; ++i) {
        isWhole = isWhole && isContinuation(byteAt(text, place + i));
    }
    if (isWhole) {
        return {length, first == 0xC2U && second < 0xA0U};
    }
    return {1, first < 0x20U || (0x7FU <= first && first < 0xA0U)};
}

} // namespace

bool hasControlCharacters(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        const Character character = characterAt(text, i);
        if (character.isControl) {
            return true;
        }
        i += character.length;
    }
    return false;
}

std::string withoutControlCharacters(std::string_view text) {
    const std::string_view line = text.substr(0, text.find('\n'));
    std::string plain;
    for (std::size_t i = 0; i < line.size();) {
        const Character character = characterAt(line, i);
        plain += character.isControl ? std::string_view(" ") : line.substr(i, character.length);
        i += character.length;
    }
    return plain;
}

} // namespace tarv_3_3
