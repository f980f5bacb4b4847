#include "description/utf8.h"

namespace tarv_3_3::internal {

namespace {

unsigned char byteAt(std::string_view text, std::size_t index) {
    return index < text.size() ? static_cast<unsigned char>(text[index]) : 0;
}

bool isWithin(unsigned char byte, unsigned char least, unsigned char most) {
    return byte >= least && byte <= most;
}

// The length of a character, which its first byte tells, and the range of its second byte. The range excludes
// overlong forms, surrogates and numbers above U+10FFFF.
struct Lead {
    std::size_t length;
    unsigned char least;
    unsigned char most;
};

Lead leadOf(unsigned char first) {
    if (isWithin(first, 0xC2, 0xDF)) {
        return {2, 0x80, 0xBF};
    }
    if (isWithin(first, 0xE0, 0xEF)) {
        return {3, static_cast<unsigned char>(first == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(first == 0xED ? 0x9F : 0xBF)};
    }
    if (isWithin(first, 0xF0, 0xF4)) {
        return {4, static_cast<unsigned char>(first == 0xF0 ? 0x90 : 0x80),
                static_cast<unsigned char>(first == 0xF4 ? 0x8F : 0xBF)};
    }
    return {0, 0, 0};
}

} // namespace

std::size_t utf8Length(std::string_view text) {
    if (text.empty()) {
        return 0;
    }
    const unsigned char first = byteAt(text, 0);
    if (first < 0x80) {
        return 1;
    }
    const Lead lead = leadOf(first);
    if (lead.length == 0 || !isWithin(byteAt(text, 1), lead.least, lead.most)) {
        return 0;
    }
    for (std::size_t index = 2; index < lead.length; ++index) {
        if (!isWithin(byteAt(text, index), 0x80, 0xBF)) {
            return 0;
        }
    }
    return lead.length;
}

bool isControl(std::string_view character) {
    const unsigned char first = byteAt(character, 0);
    return first < 0x20 || first == 0x7F || (first == 0xC2 && byteAt(character, 1) < 0xA0);
}

} // namespace tarv_3_3::internal
