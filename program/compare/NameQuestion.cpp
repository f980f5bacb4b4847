#include "compare/NameQuestion.h"

namespace tarv_program {

namespace {

CommandLine onlyOptions(const CommandLine& whole, const std::set<std::size_t>& places) {
    CommandLine line;
    line.names = whole.names;
    line.flags = whole.flags;
    for (const std::size_t place : places) {
        line.options.push_back(whole.options[place]);
    }
    return line;
}

} // namespace

NameQuestion::Part::Part(const CommandLine& whole, const std::set<std::size_t>& chosen)
    : line(onlyOptions(whole, chosen)), places(chosen.begin(), chosen.end()), side(line) {}

NameQuestion::NameQuestion(const CommandLine& line) : m_line(line) {
    for (std::size_t place = 0; place < line.options.size(); ++place) {
        const Option& option = line.options[place];
        if (option.positional == Positional::filled) {
            m_filled.insert(place);
        }
        for (const std::string& name : option.typedNames()) {
            m_places[rowOf(name)].insert(place);
        }
    }
}

Meaning NameQuestion::meaningOf(const std::string& typed) {
    const Part& part = partOf(rowOf(typed));
    Meaning meaning = part.side.meaningOf(typed);
    if (meaning.kind == Meaning::one) {
        meaning.place = part.places[meaning.place];
    }
    return meaning;
}

NameQuestion::Part& NameQuestion::partOf(const NameRow& row) {
    const auto found = m_parts.find(row);
    if (found != m_parts.end()) {
        return found->second;
    }
    std::set<std::size_t> places = m_filled;
    places.insert(m_places[row].begin(), m_places[row].end());
    return m_parts.try_emplace(row, m_line, places).first->second;
}

} // namespace tarv_program
