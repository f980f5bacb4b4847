#pragma once

#include <string>
#include <string_view>

#include "tarv_3_3/export.h"

namespace tarv_3_3 {

class SpaceClassifier;

/// The length in bytes of the dash that begins at byte `pos` of `text`: 1 for '-', 3 for the figure
/// dash, the en dash, the em dash, the horizontal bar and the swung dash, 0 when there is none.
TARV_API unsigned long getDashLength(const std::string& text, unsigned long pos);

/// Whether a text begins with '-', which the other dashes are not.
inline bool beginsWithHyphen(std::string_view text) {
    return !text.empty() && text.front() == '-';
}

/// An argument cut into pieces, which point into it.
struct Token {
    std::string_view name;
    /// Empty when there is none.
    std::string_view value;
    bool hasValue;
};

/// Cuts an argument into its name and its value. Up to two leading dashes are skipped; the first
/// '=' or white space behind them, whichever comes first, ends the name. Behind '=' everything is
/// value; white space before the value is skipped whole. White space is what the global locale says.
Token splitToken(std::string_view arg, const SpaceClassifier& classifier);

/// The same into strings, asking the global locale itself. Returns whether there is a value; if not, `value`
/// is left alone.
TARV_API bool splitOptionValue(const std::string& arg, std::string* name, std::string* value);

} // namespace tarv_3_3
