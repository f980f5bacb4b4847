#include "recognition/tokenSyntax.h"

#include <array>

#include "platform/utf32_to_utf8.h"
#include "recognition/SpaceClassifier.h"

namespace tarv_3_3 {

namespace {

using MERO_2_16::strings::ustring32;
using MERO_2_16::strings::ustring8;

constexpr std::array<char32_t, 6> dashes = {
    0x002D, // hyphen-minus
    0x2012, // figure dash
    0x2013, // en dash
    0x2014, // em dash
    0x2015, // horizontal bar
    0x2053, // swung dash
};

/// The UTF-8 of a dash. Nothing of it is destroyed: a host may parse in the destructor of a static object.
struct DashText {
    char bytes[4] = {};
    std::size_t size = 0;

    std::string_view view() const { return {bytes, size}; }
};

// The text "-1" counts as "?" here, as a whole text to parse does. No dash of the table is encoded so.
DashText dashText(char32_t codePoint) {
    const ustring8 text = MERO_2_16::strings::utf32_to_utf8(ustring32(1, codePoint));
    DashText dash;
    dash.size = (text == "-1" ? ustring8("?") : text).copy(dash.bytes, sizeof dash.bytes);
    return dash;
}

std::array<DashText, dashes.size()> makeDashTexts() {
    std::array<DashText, dashes.size()> texts;
    for (std::size_t i = 0; i < dashes.size(); ++i) {
        texts[i] = dashText(dashes[i]);
    }
    return texts;
}

} // namespace

unsigned long unicodeDashLength(std::string_view text) {
    static const auto dashTexts = makeDashTexts();
    for (const DashText& dash : dashTexts) {
        if (text.substr(0, dash.size) == dash.view()) {
            return dash.size;
        }
    }
    return 0;
}

Token splitToken(std::string_view arg, const SpaceClassifier& classifier) {
    const std::size_t firstDash = dashLength(arg);
    const std::size_t start = firstDash + dashLength(arg.substr(firstDash));
    std::size_t end = start;
    while (end < arg.size() && arg[end] != '=' && !classifier.isSpace(arg[end])) {
        ++end;
    }
    std::size_t valueStart = end;
    if (end < arg.size() && arg[end] == '=') {
        ++valueStart;
    } else {
        while (valueStart < arg.size() && classifier.isSpace(arg[valueStart])) {
            ++valueStart;
        }
    }
    return {start, end, valueStart, end < arg.size()};
}

} // namespace tarv_3_3
