#include "typed/suggestions.h"

#include "tarv_3_3/description.h"
#include "typed/levelParser.h"

namespace tarv_3_3::typed::engine {

std::string suggestOption(const Command& command, const std::string& argument) {
    const LevelParser level = makeLevelParser(command);
    declareLastResort(*level.parser, command);
    const char* const sentence = suggest(level.parser.get(), argument.c_str());
    return sentence != nullptr ? sentence : "";
}

// Verbs are typed without dashes.
std::string suggestVerb(const Command& command, const std::string& word) {
    const std::unique_ptr<BasicParser> verbs = makeVerbParser(command);
    const char* const found = suggest(verbs.get(), ("--" + word).c_str());
    std::string sentence = found != nullptr ? found : "";
    for (std::size_t at = sentence.find("'--"); at != std::string::npos; at = sentence.find("'--", at)) {
        sentence.erase(at + 1, 2);
    }
    return sentence;
}

} // namespace tarv_3_3::typed::engine
