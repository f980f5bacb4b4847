#include <algorithm>
#include <exception>
#include <string>
#include <vector>

#include "description/declarationFacts.h"
#include "description/joinedLetters.h"
#include "description/messages.h"
#include "description/nameDistance.h"
#include "description/terminalText.h"
#include "options/findOption.h"
#include "parser/BasicParser.h"
#include "recognition/SpaceClassifier.h"
#include "recognition/tokenSyntax.h"
#include "tarv_3_3/description.h"

namespace tarv_3_3 {

namespace {

using internal::NameDistance;

/// If more names are equally near, none is suggested.
constexpr std::size_t maxShown = 3;
/// Longer names are not compared: the cost grows with the square of the length.
constexpr std::size_t longestName = 100;
/// Up to this length, letters behind one dash are more likely several options than one name.
constexpr std::size_t fewLetters = 3;

struct Candidate {
    std::string name;
    NameDistance distance;
};

// Allows no edit in two letters: too little would be left to compare.
std::size_t maxEdits(std::string_view typed) {
    return typed.size() / 3;
}

void keepNearer(Candidate& best, std::string_view typed, const std::string& name) {
    if (name.size() > longestName || typed.size() > name.size() + maxEdits(typed)) {
        return;
    }
    const NameDistance distance = internal::nameDistance(typed, name);
    if (distance < best.distance) {
        best = {name, distance};
    }
}

Candidate nearestName(std::string_view typed, const OptionDescription& option) {
    Candidate best;
    for (const std::string& name : option.m_names) {
        keepNearer(best, typed, name);
        if (option.m_type == vtBool) {
            keepNearer(best, typed, std::string(negation) + name);
        }
    }
    return best;
}

// Of each option that may be suggested, the nearest name, if no name of another option needs fewer edits.
// Names with the fewest letters cut come first. If a name needs no edit, it is the only one.
std::vector<Candidate> nearestNames(std::string_view typed, const std::vector<OptionDescription>& options) {
    std::vector<Candidate> found;
    std::size_t fewest = maxEdits(typed);
    for (const OptionDescription& option : options) {
        Candidate candidate = nearestName(typed, option);
        if (candidate.distance.edits == 0) {
            return {std::move(candidate)};
        }
        if (candidate.distance.edits > fewest || !internal::maySuggest(option)) {
            continue;
        }
        if (candidate.distance.edits < fewest) {
            fewest = candidate.distance.edits;
            found.clear();
        }
        found.push_back(std::move(candidate));
    }
    std::stable_sort(found.begin(), found.end(), [](const Candidate& left, const Candidate& right) {
        return left.distance < right.distance;
    });
    return found;
}

std::vector<std::string> suggestions(std::string_view argument,
                                     const std::vector<OptionDescription>& options) {
    const Token token = splitToken(argument, SpaceClassifier());
    const std::string_view typed = token.nameIn(argument);
    if (typed.size() < 2 || typed.size() > longestName) {
        return {};
    }
    const std::vector<Candidate> nearest = nearestNames(typed, options);
    if (!nearest.empty() && nearest.front().distance.edits == 0) {
        return {};
    }
    const bool mayBeLetters = token.nameStart == dashLength(argument) && argument.size() <= longestName;
    const std::string letters = mayBeLetters ? internal::separatedLetters(argument, token, options) : "";
    std::vector<std::string> shown;
    if (nearest.size() <= maxShown && (letters.empty() || typed.size() > fewLetters)) {
        for (const Candidate& candidate : nearest) {
            shown.push_back("--" + candidate.name);
        }
    }
    if (!letters.empty()) {
        shown.push_back(letters);
    }
    return shown;
}

std::string sentence(const std::vector<std::string>& shown) {
    std::string list;
    for (const std::string& text : shown) {
        list.append(list.empty() ? "" : &text == &shown.back() ? " or " : ", ");
        list.append("'").append(internal::terminalText(text)).append("'");
    }
    return internal::messages::didYouMean(list);
}

} // namespace

const char* suggest(IParser* parser, const char* argument) {
    BasicParser* const own = internal::ownParser(parser);
    if (own == nullptr || argument == nullptr || dashLength(argument) == 0) {
        return nullptr;
    }
    try {
        const std::vector<std::string> shown = suggestions(argument, own->registry().m_options);
        return shown.empty() ? nullptr : own->keep(sentence(shown));
    } catch (const std::exception&) {
        return nullptr;
    }
}

} // namespace tarv_3_3
