#pragma once

#include <cstddef>
#include <string_view>

namespace tarv_3_3 {

class SpaceClassifier;

/// `dashLength` of a text that does not begin in ASCII.
unsigned long unicodeDashLength(std::string_view text);

/// The length in bytes of the dash that begins a text: 1 for '-', 3 for the figure dash, the en dash, the em
/// dash, the horizontal bar and the swung dash, 0 when there is none. Nearly every argument begins in ASCII,
/// of which one character is a dash.
inline unsigned long dashLength(std::string_view text) {
    if (text.empty()) {
        return 0;
    }
    const bool isAscii = static_cast<unsigned char>(text.front()) < 0x80;
    return isAscii ? static_cast<unsigned long>(text.front() == '-') : unicodeDashLength(text);
}

/// Whether a text begins with '-', which the other dashes are not.
inline bool beginsWithHyphen(std::string_view text) {
    return !text.empty() && text.front() == '-';
}

/// Where the pieces of an argument are, in bytes.
struct Token {
    std::size_t nameStart = 0;
    std::size_t nameEnd = 0;
    /// The end of the argument when there is no value.
    std::size_t valueStart = 0;
    bool hasValue = false;

    ///@{
    /// The piece of `arg`, which must be the argument that was cut. A default-constructed token has an empty
    /// name. Throws `std::out_of_range` when `arg` ends before the piece begins.
    std::string_view nameIn(std::string_view arg) const { return arg.substr(nameStart, nameEnd - nameStart); }
    std::string_view valueIn(std::string_view arg) const { return arg.substr(valueStart); }
    ///@}
};

/// Cuts an argument into its name and its value. Up to two leading dashes are skipped; the first
/// '=' or white space behind them, whichever comes first, ends the name. Behind '=' everything is
/// value; white space before the value is skipped whole. White space is what the global locale says.
Token splitToken(std::string_view arg, const SpaceClassifier& classifier);

} // namespace tarv_3_3
