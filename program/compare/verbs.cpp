#include "compare/verbs.h"

#include "compare/Examples.h"
#include "compare/Side.h"
#include "compare/names.h"
#include "model/verbs.h"

namespace tarv_program {

namespace {

// Verbs are compared as options are, and are typed without dashes.
std::string withoutDashes(std::string text) {
    for (std::size_t at = text.find(" --"); at != std::string::npos; at = text.find(" --", at)) {
        text.erase(at + 1, 2);
    }
    return text;
}

} // namespace

std::vector<VerbPair> compareVerbs(const CommandLine& older, const CommandLine& newer,
                                   const std::vector<std::string>& command, Comparison& comparison) {
    if (older.verbs.empty() && newer.verbs.empty()) {
        return {};
    }
    const CommandLine before = verbsAsOptions(older);
    const CommandLine now = verbsAsOptions(newer);
    const Sides sides(before, now);
    Examples examples(sides.older, command);
    Comparison found;
    compareNames(sides, examples, found);
    if (command.size() == 1) {
        compareLastResort(sides, older, newer, "help", examples, found);
    }
    listNewNames(sides, examples, found);
    for (Finding& finding : found.breaks) {
        finding.kind = "verb";
        finding.command = withoutDashes(finding.command);
        finding.was = withoutDashes(finding.was);
        finding.now = withoutDashes(finding.now);
        comparison.breaks.push_back(finding);
    }
    for (const std::string& addition : found.additions) {
        comparison.additions.push_back(withoutDashes(addition));
    }
    std::vector<VerbPair> pairs;
    for (std::size_t place = 0; place < older.verbs.size(); ++place) {
        if (sides.twin(place) != Side::nowhere) {
            pairs.push_back({&older.verbs[place], &newer.verbs[sides.twin(place)]});
        }
    }
    return pairs;
}

} // namespace tarv_program
