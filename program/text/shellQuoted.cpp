#include "text/shellQuoted.h"

#include <cstdio>

namespace tarv_program {

namespace {

constexpr char plainCharacters[] =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-_=+,./:@%^";

bool isControl(char byte) {
    return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F;
}

// How many bytes of well-formed UTF-8 beyond ASCII, and beyond the control characters there, begin at `at`.
std::size_t letterLength(const std::string& word, std::size_t at) {
    const auto lead = static_cast<unsigned char>(word[at]);
    const std::size_t length = lead < 0xC2 || lead > 0xF4 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (length == 0 || at + length > word.size()) {
        return 0;
    }
    const auto second = static_cast<unsigned char>(word[at + 1]);
    const unsigned least = lead == 0xC2 || lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned greatest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    if (second < least || second > greatest) {
        return 0;
    }
    for (std::size_t i = 2; i < length; ++i) {
        if ((static_cast<unsigned char>(word[at + i]) & 0xC0) != 0x80) {
            return 0;
        }
    }
    return length;
}

// Whether a word has bytes that cannot be shown.
bool needsEscapes(const std::string& word) {
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (isControl(word[i])) {
            return true;
        }
        if (static_cast<unsigned char>(word[i]) >= 0x80) {
            const std::size_t length = letterLength(word, i);
            if (length == 0) {
                return true;
            }
            i += length - 1;
        }
    }
    return false;
}

std::string codeOf(char byte) {
    char digits[8];
    std::snprintf(digits, sizeof digits, "\\x%02x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
    return digits;
}

std::string escaped(const std::string& word) {
    std::string text = "$'";
    for (const char byte : word) {
        if (isControl(byte) || static_cast<unsigned char>(byte) >= 0x80) {
            text += codeOf(byte);
        } else {
            text.append(byte == '\'' || byte == '\\' ? "\\" : "").append(1, byte);
        }
    }
    return text + "'";
}

} // namespace

std::string shellQuoted(const std::string& word) {
    if (needsEscapes(word)) {
        return escaped(word);
    }
    if (!word.empty() && word.find_first_not_of(plainCharacters) == std::string::npos) {
        return word;
    }
    std::string text = "'";
    for (const char byte : word) {
        text += byte == '\'' ? std::string("'\\''") : std::string(1, byte);
    }
    return text + "'";
}

std::string shellQuoted(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        text.append(text.empty() ? "" : " ").append(shellQuoted(word));
    }
    return text;
}

std::string visible(const std::string& message) {
    std::string text;
    for (std::size_t i = 0; i < message.size(); ++i) {
        const std::size_t length =
            static_cast<unsigned char>(message[i]) < 0x80 ? 1 : letterLength(message, i);
        if (length == 0 || isControl(message[i])) {
            text += codeOf(message[i]);
        } else {
            text.append(message, i, length);
            i += length - 1;
        }
    }
    return text;
}

} // namespace tarv_program
