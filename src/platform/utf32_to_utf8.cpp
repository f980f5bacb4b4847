#include "platform/utf32_to_utf8.h"

namespace MERO_2_16::strings {

namespace {

constexpr char32_t replacementCharacter = 0xFFFD;

bool isScalarValue(char32_t codePoint) {
    const bool isSurrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    return codePoint <= 0x10FFFF && !isSurrogate;
}

void appendByte(ustring8& bytes, char32_t byte) {
    bytes += static_cast<char>(static_cast<unsigned char>(byte));
}

void appendContinuation(ustring8& bytes, char32_t bits) {
    appendByte(bytes, 0x80 | (bits & 0x3F));
}

void appendEncoded(ustring8& bytes, char32_t codePoint) {
    if (codePoint < 0x80) {
        appendByte(bytes, codePoint);
    } else if (codePoint < 0x800) {
        appendByte(bytes, 0xC0 | (codePoint >> 6));
        appendContinuation(bytes, codePoint);
    } else if (codePoint < 0x10000) {
        appendByte(bytes, 0xE0 | (codePoint >> 12));
        appendContinuation(bytes, codePoint >> 6);
        appendContinuation(bytes, codePoint);
    } else {
        appendByte(bytes, 0xF0 | (codePoint >> 18));
        appendContinuation(bytes, codePoint >> 12);
        appendContinuation(bytes, codePoint >> 6);
        appendContinuation(bytes, codePoint);
    }
}

} // namespace

ustring8 utf32_to_utf8(const ustring32& text) {
    ustring8 bytes;
    for (const char32_t codePoint : text) {
        appendEncoded(bytes, isScalarValue(codePoint) ? codePoint : replacementCharacter);
    }
    return bytes;
}

} // namespace MERO_2_16::strings
