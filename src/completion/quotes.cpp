#include "completion/quotes.h"

namespace tarv_3_3 {

namespace {

// The characters that a backslash escapes in double quotes. A newline is another one, but it cannot be typed
// in a word that is completed.
constexpr std::string_view escapedInDoubleQuotes = "\"\\$`";
constexpr std::string_view specialOutsideQuotes = " \t\n\"'\\$`&;|<>(){}[]*?!#~^";

bool isOneOf(char byte, std::string_view bytes) {
    return bytes.find(byte) != std::string_view::npos;
}

/// How many bytes at `index` open a quote, with the `$` that may stand in front of it; 0 if none do.
std::size_t openingLength(std::string_view word, std::size_t index) {
    const std::size_t dollar = word[index] == '$' ? 1 : 0;
    const bool opens = index + dollar < word.size() && isOneOf(word[index + dollar], "\"'");
    return opens ? dollar + 1 : 0;
}

} // namespace

Unquoted unquote(std::string_view word) {
    Unquoted plain;
    bool backslashEscapesAll = true;
    for (std::size_t i = 0; i < word.size(); ++i) {
        const char byte = word[i];
        const std::size_t opening = plain.openQuote == 0 ? openingLength(word, i) : 0;
        if (opening != 0) {
            i += opening - 1;
            plain.openQuote = word[i];
            backslashEscapesAll = opening == 2 && word[i] == '\'';
        } else if (plain.openQuote != 0 && byte == plain.openQuote) {
            plain.openQuote = 0;
            backslashEscapesAll = true;
        } else if (byte == '\\' && i + 1 < word.size() &&
                   (backslashEscapesAll ||
                    (plain.openQuote == '"' && isOneOf(word[i + 1], escapedInDoubleQuotes)))) {
            plain.text += word[++i];
        } else {
            plain.text += byte;
        }
    }
    return plain;
}

std::string quote(std::string_view text, char openQuote) {
    if (openQuote == '\'') {
        std::string quoted;
        for (const char byte : text) {
            quoted.append(byte == '\'' ? "'\\'" : "").append(1, byte);
        }
        return quoted;
    }
    const std::string_view special = openQuote == '"' ? escapedInDoubleQuotes : specialOutsideQuotes;
    std::string quoted;
    for (const char byte : text) {
        quoted.append(isOneOf(byte, special) ? "\\" : "").append(1, byte);
    }
    return quoted;
}

} // namespace tarv_3_3
