#include "recognition/tokenSyntax.h"

#include <algorithm>
#include <array>
#include <locale>

#include "platform/utf32_to_utf8.h"

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

// An encoder says "-1" when it fails; that must not count as a dash and a digit.
ustring8 dashText(char32_t codePoint) {
    const ustring8 text = MERO_2_16::strings::utf32_to_utf8(ustring32(1, codePoint));
    return text == "-1" ? "?" : text;
}

std::array<ustring8, dashes.size()> makeDashTexts() {
    std::array<ustring8, dashes.size()> texts;
    for (std::size_t i = 0; i < dashes.size(); ++i) {
        texts[i] = dashText(dashes[i]);
    }
    return texts;
}

} // namespace

unsigned long getDashLength(const std::string& text, unsigned long pos) {
    static const auto dashTexts = makeDashTexts();
    for (const ustring8& dash : dashTexts) {
        if (pos < text.size() && text.compare(pos, dash.size(), dash) == 0) {
            return dash.size();
        }
    }
    return 0;
}

bool splitOptionValue(const std::string& arg, std::string* name, std::string* value) {
    const std::size_t firstDash = getDashLength(arg, 0);
    const char* const start = arg.data() + firstDash + getDashLength(arg, firstDash);
    const char* const end = arg.data() + arg.size();
    const char* const equalsSign = std::find(start, end, '=');
    const std::locale locale;
    const auto& classifier = std::use_facet<std::ctype<char>>(locale);
    const char* const space = classifier.scan_is(std::ctype_base::space, start, equalsSign);
    name->assign(start, space);
    if (space != equalsSign) {
        value->assign(classifier.scan_not(std::ctype_base::space, space, end), end);
    } else if (equalsSign != end) {
        value->assign(equalsSign + 1, end);
    }
    return space != end;
}

} // namespace tarv_3_3
