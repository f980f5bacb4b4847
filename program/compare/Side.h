#pragma once

#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include <tarv_3_3/explain.h>

#include "model/CommandLine.h"
#include "model/Slots.h"
#include "model/rebuild.h"

namespace tarv_program {

/// What a name means when it is typed.
struct Meaning {
    enum Kind { nothing, one, several, positional };
    Kind kind = nothing;
    /// Of one: the option's place, and the whole name, "no-" included.
    std::size_t place = 0;
    std::string name;
    bool isNegated = false;
    /// Of several.
    std::vector<std::string> candidates;
};

/// One of two command lines that are compared, and a parser made of it, which answers what is accepted.
class Side {
public:
    explicit Side(const CommandLine& line);

    const CommandLine& line() const { return m_line; }
    const Option& option(std::size_t place) const { return m_line.options[place]; }
    tarv_3_3::IParser& parser() const { return *m_parser; }

    /// What "--" and `typed` means.
    Meaning meaningOf(const std::string& typed) const;

    static constexpr auto nowhere = Slots::nowhere;
    /// The option that has exactly one of these names; the first names count most. One whose name nobody
    /// types is found where no other has it.
    std::size_t placeOf(const std::vector<std::string>& names) const;

    /// The options that have exactly this name, in their order: synonyms may repeat one.
    const std::vector<std::size_t>& placesOf(const std::string& name) const;

    /// The options that positional arguments fill.
    std::vector<std::size_t> filledPlaces() const;
    const Slots& slots() const { return m_slots; }
    /// Which option each positional argument of an explained line goes to, `nowhere` for one too many, by the
    /// place of the argument. Nothing where an option has no count: then it takes all of them.
    std::map<std::size_t, std::size_t> wordsOf(const tarv_3_3::Explanation& explanation) const;

private:
    const CommandLine& m_line;
    const Slots m_slots;
    Parser m_parser;
    std::unordered_map<std::string, std::vector<std::size_t>> m_places;
};

/// An older and a newer side, and which options are the same ones.
class Sides {
public:
    Sides(const CommandLine& older, const CommandLine& newer);

    /// The place on the newer side of an option of the older one.
    std::size_t twin(std::size_t place) const { return m_twins[place]; }

    const Side older;
    const Side newer;

private:
    std::size_t findTwin(std::size_t place) const;
    std::size_t findFilledTwin(std::size_t place) const;

    std::vector<std::size_t> m_twins;
};

} // namespace tarv_program
