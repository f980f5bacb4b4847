#include "completion/commonBeginning.h"

#include <algorithm>

namespace tarv_3_3 {

namespace {

std::string_view sharedStart(std::string_view left, std::string_view right) {
    const auto* const end = std::mismatch(left.begin(), left.end(), right.begin(), right.end()).first;
    return left.substr(0, static_cast<std::size_t>(end - left.begin()));
}

// Does not cut a character of several bytes.
std::string_view withoutCutCharacter(std::string_view start, std::string_view whole) {
    std::size_t end = start.size();
    while (end > 0 && end < whole.size() && (static_cast<unsigned char>(whole[end]) & 0xC0U) == 0x80U) {
        --end;
    }
    return start.substr(0, end);
}

/// Takes the first word off a name.
std::string_view takeWord(std::string_view& name) {
    const std::string_view word = name.substr(0, name.find('-'));
    name.remove_prefix(std::min(name.size(), word.size() + 1));
    return word;
}

template <class Text>
std::string lengthen(std::string_view typed, const std::vector<Text>& texts) {
    if (texts.empty()) {
        return std::string(typed);
    }
    const std::string_view whole = texts.front();
    std::string_view shared = whole;
    for (const Text& text : texts) {
        shared = sharedStart(shared, text);
    }
    shared = withoutCutCharacter(shared, whole);
    return std::string(sharedStart(shared, typed).size() == typed.size() ? shared : typed);
}

} // namespace

std::string commonBeginning(std::string_view typed, const std::vector<std::string>& texts) {
    return lengthen(typed, texts);
}

std::string commonWords(std::string_view typed, const std::vector<std::string>& names) {
    std::vector<std::string_view> rests(names.begin(), names.end());
    std::vector<std::string_view> words(names.size());
    std::string common;
    for (std::string_view left = typed;;) {
        const bool isLast = left.find('-') == std::string_view::npos;
        std::transform(rests.begin(), rests.end(), words.begin(), takeWord);
        common += lengthen(takeWord(left), words);
        if (isLast) {
            return commonBeginning(common, names);
        }
        common += '-';
    }
}

} // namespace tarv_3_3
