#include "compare/names.h"

#include <map>
#include <set>
#include <tuple>
#include <unordered_set>

#include "compare/NameQuestion.h"
#include "compare/abbreviations.h"
#include "model/mends.h"
#include "text/shellQuoted.h"

namespace tarv_program {

namespace {

/// Whose name it is: the place of the option on the newer side, and whether it turns a switch off.
using Owner = std::tuple<std::size_t, bool>;

std::string said(const Meaning& meaning) {
    if (meaning.kind == Meaning::nothing) {
        return "is unknown";
    }
    if (meaning.kind == Meaning::positional) {
        return "is a positional argument";
    }
    if (meaning.kind == Meaning::one) {
        return "means " + shellQuoted("--" + meaning.name);
    }
    std::string text;
    for (const std::string& name : meaning.candidates) {
        text += (text.empty() ? "is ambiguous: " : ", ") + shellQuoted("--" + name);
    }
    return text;
}

class NameComparison {
public:
    NameComparison(const Sides& sides, Examples& examples, Comparison& comparison)
        : m_sides(sides), m_examples(examples), m_comparison(comparison), m_older(sides.older.line()),
          m_newer(sides.newer.line()) {
        std::map<std::string, std::multiset<Owner>> before;
        std::map<std::string, std::multiset<Owner>> now;
        collect(sides.older, before, [&](std::size_t place) { return sides.twin(place); });
        collect(sides.newer, now, [](std::size_t place) { return place; });
        for (const auto& [name, owners] : before) {
            m_table.add(name);
            const auto found = now.find(name);
            const bool isGone = std::get<0>(*owners.begin()) == Side::nowhere;
            if (isGone || found == now.end() || found->second != owners) {
                m_touched.add(name);
            }
        }
        for (const auto& [name, owners] : now) {
            if (before.count(name) == 0) {
                m_table.add(name);
                m_touched.add(name);
            }
        }
    }

    void compareAll() {
        std::set<std::string> done;
        for (std::size_t place = 0; place < m_sides.older.line().options.size(); ++place) {
            for (const std::string& name : m_sides.older.option(place).typedNames()) {
                const NameTable::Row* const touched = m_touched.find(name);
                if (touched != nullptr && done.insert(name).second) {
                    compare(place, name, *touched);
                }
            }
        }
    }

private:
    template <class PlaceOf>
    static void collect(const Side& side, std::map<std::string, std::multiset<Owner>>& owners,
                        PlaceOf placeOf) {
        for (std::size_t place = 0; place < side.line().options.size(); ++place) {
            if (side.option(place).isSlot()) {
                continue;
            }
            for (const std::string& name : side.option(place).names) {
                // A switch is turned off by whatever begins so, its own name included.
                const bool isSwitch = side.option(place).isSwitch();
                owners[name].emplace(placeOf(place), isSwitch && name.substr(0, 3) == "no-");
                if (isSwitch) {
                    owners["no-" + name].emplace(placeOf(place), true);
                }
            }
        }
    }

    void compare(std::size_t place, const std::string& name, const NameTable::Row& touched) {
        // What each abbreviation does now, and the longest one that does it.
        std::map<std::string, Finding> found;
        std::map<std::string, std::string> longest;
        const bool isDone =
            forEachAbbreviation(name, *m_table.find(name), touched,
                                [&](const Abbreviations& typed) { ask(name, typed, found, longest); });
        if (!isDone) {
            throw Failure("the name '" + name + "' can be abbreviated in too many ways to compare them");
        }
        for (auto& [now, finding] : found) {
            finding.command = m_examples.shown(m_examples.argumentsOf(place, longest[now]));
            finding.shorter -= 1;
            m_comparison.breaks.push_back(finding);
        }
    }

    void ask(const std::string& name, const Abbreviations& typed, std::map<std::string, Finding>& found,
             std::map<std::string, std::string>& longest) {
        // Names share their ambiguous abbreviations, which are asked about once.
        if (m_ambiguous.count(typed.longest) != 0) {
            return;
        }
        const Meaning before = m_older.meaningOf(typed.longest);
        if (before.kind != Meaning::one || before.name != name) {
            if (before.kind == Meaning::several) {
                m_ambiguous.insert(typed.longest);
            }
            return;
        }
        const Meaning now = m_newer.meaningOf(typed.longest);
        if (now.kind == Meaning::one && now.place == m_sides.twin(before.place) &&
            now.isNegated == before.isNegated) {
            return;
        }
        // Help and the version need no declaration in programs that have them by themselves.
        const std::string mend =
            now.kind == Meaning::nothing ? mendOf(m_sides.newer.line(), "--" + typed.longest) : "";
        const bool isShown = mend == "help" || mend == "version";
        if (isShown && mend == m_sides.older.option(before.place).primaryName()) {
            return;
        }
        const std::string what = isShown ? "shows the " + mend : said(now);
        Finding& finding = found[what];
        finding.kind = "name";
        finding.was = "means " + shellQuoted("--" + name);
        finding.now = what;
        finding.shorter += typed.count;
        std::string& shown = longest[what];
        shown = typed.longest.size() > shown.size() ? typed.longest : shown;
    }

    const Sides& m_sides;
    Examples& m_examples;
    Comparison& m_comparison;
    NameQuestion m_older;
    NameQuestion m_newer;
    /// What was ambiguous on the older side.
    std::unordered_set<std::string> m_ambiguous;
    /// Of both sides.
    NameTable m_table;
    /// Those that are not the same option's on both sides.
    NameTable m_touched;
};

} // namespace

void compareNames(const Sides& sides, Examples& examples, Comparison& comparison) {
    NameComparison(sides, examples, comparison).compareAll();
}

void compareLastResort(const Sides& sides, const CommandLine& older, const CommandLine& newer,
                       const std::string& name, const Examples& examples, Comparison& comparison) {
    // What each beginning does now; the longest one shows it.
    std::map<std::string, Finding> found;
    for (std::string typed = name; !typed.empty(); typed.pop_back()) {
        const auto asks = [&](const Side& side, const CommandLine& program) {
            return side.meaningOf(typed).kind == Meaning::nothing && mendOf(program, "--" + typed) == name;
        };
        if (!asks(sides.older, older) || asks(sides.newer, newer)) {
            continue;
        }
        const std::string what = said(sides.newer.meaningOf(typed));
        const bool isLongest = found.count(what) == 0;
        Finding& finding = found[what];
        if (isLongest) {
            finding = {"name", examples.shown({"--" + typed}), "shows the " + name, what};
        } else {
            ++finding.shorter;
        }
    }
    for (const auto& [now, finding] : found) {
        comparison.breaks.push_back(finding);
    }
}

void listNewNames(const Sides& sides, const Examples& examples, Comparison& comparison) {
    std::set<std::size_t> twins;
    std::set<std::string> names;
    for (std::size_t place = 0; place < sides.older.line().options.size(); ++place) {
        twins.insert(sides.twin(place));
        if (!sides.older.option(place).isSlot()) {
            names.insert(sides.older.option(place).names.begin(), sides.older.option(place).names.end());
        }
    }
    for (std::size_t place = 0; place < sides.newer.line().options.size(); ++place) {
        const Option& option = sides.newer.option(place);
        if (option.isSlot()) {
            if (twins.count(place) == 0) {
                comparison.additions.push_back(examples.shown({option.shownName()}));
            }
            continue;
        }
        for (const std::string& name : option.names) {
            if (names.count(name) == 0) {
                const bool isNew = twins.count(place) == 0;
                comparison.additions.push_back(examples.shown({"--" + name}) +
                                               (isNew ? "" : ", a name for --" + option.primaryName()));
            }
        }
    }
}

} // namespace tarv_program
