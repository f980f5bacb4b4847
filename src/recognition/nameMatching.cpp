#include "recognition/nameMatching.h"

#include <algorithm>

#include "options/findOption.h"

namespace tarv_3_3 {

namespace {

// "no", the first word of every negated candidate.
constexpr std::string_view negativeWord = negation.substr(0, negation.size() - 1);

NameScore scoreNegated(std::string_view typed, std::string_view name) {
    if (!mayBeNegated(typed)) {
        return {false, 0};
    }
    const std::size_t wordEnd = typed.find('-');
    const NameScore rest = scoreName(typed.substr(wordEnd + 1), name);
    return {rest.sameWordCount, rest.score + (wordEnd == negativeWord.size() ? 2 : 1)};
}

} // namespace

std::string NameCandidate::text() const {
    std::string text(isNegated ? negation : std::string_view());
    return text.append(name);
}

// Compares both names byte by byte. At the end of a typed word, skips the rest of the candidate's word.
NameScore scoreName(std::string_view typed, std::string_view name) {
    if (typed == name) {
        return {true, 2 * static_cast<std::int32_t>(1 + std::count(typed.begin(), typed.end(), '-'))};
    }
    std::int32_t score = 0;
    std::size_t at = 0;
    for (std::size_t i = 0; i <= typed.size(); ++i, ++at) {
        const bool isLastWord = i == typed.size();
        if (!isLastWord && typed[i] != '-') {
            if (at == name.size() || name[at] != typed[i]) {
                return {false, 0};
            }
            continue;
        }
        const std::size_t wordEnd = std::min(name.find('-', at), name.size());
        score += at == wordEnd ? 2 : 1;
        at = wordEnd;
        if (isLastWord == (wordEnd < name.size())) {
            // One of the names has more words. If it is the candidate, the score so far stands.
            return {false, isLastWord ? score : 0};
        }
    }
    return {true, score};
}

NameScore scoreCandidate(std::string_view typed, const NameCandidate& candidate) {
    return candidate.isNegated ? scoreNegated(typed, candidate.name) : scoreName(typed, candidate.name);
}

bool mayBeNegated(std::string_view typed) {
    const std::size_t wordEnd = typed.find('-');
    return wordEnd <= negativeWord.size() && typed.substr(0, wordEnd) == negativeWord.substr(0, wordEnd);
}

// An empty word abbreviates every word, so any byte fits. The words of a negated candidate are shifted by one
// against those of its name, so any name fits.
Names::Pattern patternOf(std::string_view typed) {
    if (typed.empty() || mayBeNegated(typed)) {
        return Names::anything;
    }
    const std::size_t wordEnd = typed.find('-');
    if (wordEnd == std::string_view::npos) {
        return {Names::bitOf(typed.front()), Names::noWord};
    }
    const bool isSecondEmpty = wordEnd + 1 == typed.size() || typed[wordEnd + 1] == '-';
    return {Names::bitOf(typed.front()), isSecondEmpty ? Names::anyByte : Names::bitOf(typed[wordEnd + 1])};
}

} // namespace tarv_3_3
