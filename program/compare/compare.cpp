#include "compare/compare.h"

#include "compare/Examples.h"
#include "compare/Side.h"
#include "compare/facts.h"
#include "compare/lines.h"
#include "compare/names.h"
#include "compare/values.h"
#include "compare/verbs.h"
#include "model/verbs.h"

namespace tarv_program {

namespace {

/// What a newer version of the format adds may decide what is accepted.
constexpr unsigned knownMinorVersion = 1;

void compareLevel(const CommandLine& older, const CommandLine& newer, const std::vector<std::string>& command,
                  Comparison& comparison) {
    const Sides sides(older, newer);
    Examples examples(sides.older, command);
    compareNames(sides, examples, comparison);
    compareValues(sides, examples, comparison);
    compareLines(sides, examples, comparison);
    compareFacts(sides, examples, comparison);
    listNewNames(sides, examples, comparison);
    for (const VerbPair& verb : compareVerbs(older, newer, command, comparison)) {
        std::vector<std::string> longer = command;
        longer.push_back(verb.older->names.front());
        compareLevel(within(older, *verb.older), within(newer, *verb.newer), longer, comparison);
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
    compareLevel(withRequiredAsRules(older), withRequiredAsRules(newer), {older.names.front()}, comparison);
    return comparison;
}

} // namespace tarv_program
