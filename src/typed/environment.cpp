#include <cstdlib>
#include <unordered_set>

#include "typed/layers.h"

namespace tarv_3_3::typed::engine {

void readEnvironment(const Command& command, CommandLine& line) {
    std::unordered_set<const Option*> given;
    for (const Occurrence& occurrence : line.occurrences) {
        given.insert(occurrence.option);
    }
    forEachOptionAbove(command, [&](Option& option) {
        const char* const text = option.environment.empty() || given.count(&option) != 0
                                     ? nullptr
                                     : std::getenv(option.environment.c_str());
        if (text != nullptr && *text != '\0') {
            Occurrence occurrence;
            occurrence.option = &option;
            occurrence.source = fromEnvironment;
            occurrence.text = line.keep(text);
            line.occurrences.push_back(occurrence);
        }
    });
}

} // namespace tarv_3_3::typed::engine
