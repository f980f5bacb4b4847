#include <algorithm>
#include <cstdlib>

#include "typed/layers.h"

namespace tarv_3_3::typed::engine {

namespace {

bool isGiven(const Option& option, const CommandLine& line) {
    return std::any_of(line.occurrences.begin(), line.occurrences.end(),
                       [&](const Occurrence& occurrence) { return occurrence.option == &option; });
}

} // namespace

void readEnvironment(const Command& command, CommandLine& line) {
    forEachOptionAbove(command, [&](Option& option) {
        const char* const text =
            option.environment.empty() ? nullptr : std::getenv(option.environment.c_str());
        if (text == nullptr || *text == '\0' || isGiven(option, line)) {
            return;
        }
        Occurrence occurrence;
        occurrence.option = &option;
        occurrence.source = fromEnvironment;
        occurrence.text = line.keep(text);
        line.occurrences.push_back(occurrence);
    });
}

} // namespace tarv_3_3::typed::engine
