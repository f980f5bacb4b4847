#include "compare/compare.h"

#include <algorithm>
#include <set>
#include <tuple>

#include "compare/Examples.h"
#include "compare/Side.h"
#include "compare/facts.h"
#include "compare/lines.h"
#include "compare/names.h"
#include "compare/values.h"
#include "compare/verbs.h"
#include "model/verbs.h"
#include "text/shellQuoted.h"

namespace tarv_program {

namespace {

/// What a newer version of the format adds may decide what is accepted.
constexpr unsigned knownMinorVersion = 1;

/// What a break is, without the verb that it was found behind.
using Break = std::tuple<std::string, std::string, std::string>;

// What goes with all verbs is compared with each, since there it may be ambiguous. What breaks in the same
// way without any was said already.
void dropWhatIsKnown(std::vector<Finding>& breaks, std::size_t first, std::set<Break>& known) {
    const auto isKnown = [&](const Finding& finding) {
        return known.count({finding.kind, finding.was, finding.now}) != 0;
    };
    breaks.erase(std::remove_if(breaks.begin() + static_cast<std::ptrdiff_t>(first), breaks.end(), isKnown),
                 breaks.end());
    for (std::size_t i = first; i < breaks.size(); ++i) {
        known.emplace(breaks[i].kind, breaks[i].was, breaks[i].now);
    }
}

void dropKnownAdditions(std::vector<std::string>& additions, std::size_t first, const std::string& command,
                        std::set<std::string>& known) {
    const auto withoutCommand = [&](const std::string& text) { return text.substr(command.size()); };
    const auto isKnown = [&](const std::string& text) { return known.count(withoutCommand(text)) != 0; };
    additions.erase(
        std::remove_if(additions.begin() + static_cast<std::ptrdiff_t>(first), additions.end(), isKnown),
        additions.end());
    for (std::size_t i = first; i < additions.size(); ++i) {
        known.insert(withoutCommand(additions[i]));
    }
}

void dropRepeated(std::vector<std::string>& texts) {
    std::set<std::string> seen;
    texts.erase(std::remove_if(texts.begin(), texts.end(),
                               [&](const std::string& text) { return !seen.insert(text).second; }),
                texts.end());
}

/// What was said of the levels above.
struct Known {
    std::set<Break> breaks;
    std::set<std::string> additions;
};

void compareLevel(const CommandLine& older, const CommandLine& newer, const std::vector<std::string>& command,
                  Known known, Comparison& comparison) {
    const std::size_t firstBreak = comparison.breaks.size();
    const std::size_t firstAddition = comparison.additions.size();
    const Sides sides(older, newer);
    Examples examples(sides.older, command);
    compareNames(sides, examples, comparison);
    for (const char* const name : {"help", "version"}) {
        compareLastResort(sides, older, newer, name, examples, comparison);
    }
    compareValues(sides, examples, comparison);
    compareLines(sides, examples, comparison);
    compareFacts(sides, examples, comparison);
    listNewNames(sides, examples, comparison);
    dropWhatIsKnown(comparison.breaks, firstBreak, known.breaks);
    dropKnownAdditions(comparison.additions, firstAddition, shellQuoted(command), known.additions);
    for (const VerbPair& verb : compareVerbs(older, newer, command, comparison)) {
        std::vector<std::string> longer = command;
        longer.push_back(verb.older->names.front());
        compareLevel(within(older, *verb.older), within(newer, *verb.newer), longer, known, comparison);
    }
}

} // namespace

Comparison compare(const CommandLine& older, const CommandLine& newer) {
    for (const CommandLine* const line : {&older, &newer}) {
        if (line->minorVersion > knownMinorVersion) {
            throw Failure("the description of " + line->names.front() + " has version 1." +
                          std::to_string(line->minorVersion) + ", of which not all is known here");
        }
    }
    Comparison comparison;
    compareLevel(withRequiredAsRules(older), withRequiredAsRules(newer), {older.names.front()}, Known(),
                 comparison);
    dropRepeated(comparison.unjudged);
    return comparison;
}

} // namespace tarv_program
