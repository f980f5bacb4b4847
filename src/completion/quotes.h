#pragma once

#include <string>
#include <string_view>

namespace tarv_3_3 {

/// A word without the quotes that bash removes. Variables and the like are not expanded.
struct Unquoted {
    std::string text;
    /// The quote that is still open at the end, 0 when none is.
    char openQuote = 0;
};

Unquoted unquote(std::string_view word);

/// `text`, quoted so that bash takes it literally. It is to stand behind `openQuote`, which bash closes
/// itself, or outside quotes when that is 0.
std::string quote(std::string_view text, char openQuote);

} // namespace tarv_3_3
