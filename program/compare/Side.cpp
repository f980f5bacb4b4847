#include "compare/Side.h"

#include <new>

#include <tarv_3_3/explain.h>

namespace tarv_program {

using namespace tarv_3_3;

Side::Side(const CommandLine& line) : m_line(line), m_parser(rebuild(line)) {
    for (std::size_t place = 0; place < line.options.size(); ++place) {
        for (const std::string& name : line.options[place].names) {
            // The first that has a name is the one that exact questions find.
            m_places.emplace(name, place);
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
        const auto found = m_places.find(name);
        if (found != m_places.end()) {
            return found->second;
        }
    }
    return nowhere;
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
        std::size_t found = newer.placeOf(older.option(place).names);
        if (found == Side::nowhere && place == older.filledPlace()) {
            found = newer.filledPlace();
        }
        m_twins.push_back(found);
    }
}

} // namespace tarv_program
