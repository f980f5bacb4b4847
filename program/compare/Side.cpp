#include "compare/Side.h"

#include <algorithm>
#include <new>

#include <tarv_3_3/explain.h>

namespace tarv_program {

using namespace tarv_3_3;

Side::Side(const CommandLine& line) : m_line(line), m_parser(rebuild(line)) {
    for (std::size_t place = 0; place < line.options.size(); ++place) {
        for (const std::string& name : line.options[place].names) {
            m_places[name].push_back(place);
        }
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

std::size_t Side::filledPlace() const {
    for (std::size_t i = 0; i < m_line.options.size(); ++i) {
        if (m_line.options[i].positional == Positional::filled) {
            return i;
        }
    }
    return nowhere;
}

Sides::Sides(const CommandLine& olderLine, const CommandLine& newerLine)
    : older(olderLine), newer(newerLine) {
    for (std::size_t place = 0; place < olderLine.options.size(); ++place) {
        m_twins.push_back(findTwin(place));
    }
}

// Of several with the same name, the first is the first one's twin, and so on.
std::size_t Sides::findTwin(std::size_t place) const {
    for (const std::string& name : older.option(place).names) {
        const std::vector<std::size_t>& before = older.placesOf(name);
        const std::vector<std::size_t>& now = newer.placesOf(name);
        if (!now.empty()) {
            const auto rank =
                static_cast<std::size_t>(std::find(before.begin(), before.end(), place) - before.begin());
            return now[std::min(rank, now.size() - 1)];
        }
    }
    return place == older.filledPlace() ? newer.filledPlace() : Side::nowhere;
}

} // namespace tarv_program
