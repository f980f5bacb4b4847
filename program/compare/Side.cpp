#include "compare/Side.h"

#include <algorithm>
#include <new>

namespace tarv_program {

using namespace tarv_3_3;

Side::Side(const CommandLine& line) : m_line(line), m_slots(line), m_parser(rebuild(line)) {
    for (std::size_t place = 0; place < line.options.size(); ++place) {
        if (!line.options[place].isSlot()) {
            for (const std::string& name : line.options[place].names) {
                m_places[name].push_back(place);
            }
        }
    }
    for (const std::size_t place : m_slots.places()) {
        m_places.emplace(line.options[place].primaryName(), std::vector<std::size_t>{place});
    }
}

Meaning Side::meaningOf(const std::string& typed) const {
    const std::string argument = "--" + typed;
    const char* const argv[] = {"", argument.c_str()};
    const Explanation* const explanation = explain(m_parser.get(), 2, argv);
    if (explanation == nullptr) {
        throw std::bad_alloc();
    }
    const ExplainedArgument& found = explainedAt(*explanation, 0);
    Meaning meaning;
    if (found.role == explainedNamed && found.nameEnd == argument.size()) {
        meaning.kind = Meaning::one;
        meaning.place = static_cast<std::size_t>(found.place);
        meaning.name = found.name;
        meaning.isNegated = found.isNegated != 0;
    } else if (found.role == explainedAmbiguous) {
        meaning.kind = Meaning::several;
        meaning.candidates.assign(found.candidates, found.candidates + found.candidateCount);
    } else if (found.role == explainedPositional) {
        meaning.kind = Meaning::positional;
    }
    release(explanation);
    return meaning;
}

std::size_t Side::placeOf(const std::vector<std::string>& names) const {
    for (const std::string& name : names) {
        // The first that has a name is the one that exact questions find.
        if (!placesOf(name).empty()) {
            return placesOf(name).front();
        }
    }
    return nowhere;
}

const std::vector<std::size_t>& Side::placesOf(const std::string& name) const {
    static const std::vector<std::size_t> none;
    const auto found = m_places.find(name);
    return found != m_places.end() ? found->second : none;
}

std::vector<std::size_t> Side::filledPlaces() const {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < m_line.options.size(); ++i) {
        if (m_line.options[i].positional == Positional::filled) {
            places.push_back(i);
        }
    }
    return places;
}

std::map<std::size_t, std::size_t> Side::wordsOf(const Explanation& explanation) const {
    std::vector<std::size_t> words;
    for (unsigned i = 0; i < explanation.argumentCount; ++i) {
        // What takes all arguments without a name stands behind the others.
        if (explainedAt(explanation, i).place == static_cast<int>(m_line.options.size())) {
            words.push_back(i);
        }
    }
    const std::vector<std::size_t> places = m_slots.placesOf(words.size());
    std::map<std::size_t, std::size_t> all;
    for (std::size_t i = 0; i < words.size(); ++i) {
        all[words[i]] = places[i];
    }
    return all;
}

Sides::Sides(const CommandLine& olderLine, const CommandLine& newerLine)
    : older(olderLine), newer(newerLine) {
    for (std::size_t place = 0; place < olderLine.options.size(); ++place) {
        m_twins.push_back(findTwin(place));
    }
}

// Of several with the same name, the first is the first one's twin, and so on.
std::size_t Sides::findTwin(std::size_t place) const {
    if (older.option(place).isSlot()) {
        return findFilledTwin(place);
    }
    for (const std::string& name : older.option(place).names) {
        const std::vector<std::size_t>& before = older.placesOf(name);
        const std::vector<std::size_t>& now = newer.placesOf(name);
        if (!now.empty()) {
            const auto rank =
                static_cast<std::size_t>(std::find(before.begin(), before.end(), place) - before.begin());
            return now[std::min(rank, now.size() - 1)];
        }
    }
    return older.option(place).positional == Positional::filled ? findFilledTwin(place) : Side::nowhere;
}

// By its name, or else by its order among those whose names the other side does not have.
std::size_t Sides::findFilledTwin(std::size_t place) const {
    const auto namesake = [](const Side& side, const Option& option) {
        const std::vector<std::size_t> places = side.filledPlaces();
        const auto found = std::find_if(places.begin(), places.end(), [&](std::size_t other) {
            return side.option(other).primaryName() == option.primaryName();
        });
        return found != places.end() ? *found : Side::nowhere;
    };
    const std::size_t found = namesake(newer, older.option(place));
    if (found != Side::nowhere) {
        return found;
    }
    std::size_t rank = 0;
    for (const std::size_t other : older.filledPlaces()) {
        rank += other < place && namesake(newer, older.option(other)) == Side::nowhere ? 1 : 0;
    }
    for (const std::size_t other : newer.filledPlaces()) {
        if (namesake(older, newer.option(other)) == Side::nowhere && rank-- == 0) {
            return other;
        }
    }
    return Side::nowhere;
}

} // namespace tarv_program
