#include "model/mends.h"

#include <algorithm>
#include <cctype>

namespace tarv_program {

namespace {

bool isLikeNumber(const std::string& argument) {
    return argument.size() > 1 && argument[0] == '-' &&
           (std::isdigit(static_cast<unsigned char>(argument[1])) != 0 || argument[1] == '.');
}

bool hasJoinedLetters(const std::string& argument) {
    return argument.size() > 2 && argument[0] == '-' && argument[1] != '-';
}

bool repeatsALetter(const std::string& argument) {
    return hasJoinedLetters(argument) && argument.find_first_not_of(argument[1], 1) == std::string::npos;
}

bool beginsName(const std::string& argument, const std::string& name) {
    const std::size_t start = argument.find_first_not_of('-');
    return (start == 1 || start == 2) && name.compare(0, argument.size() - start, argument, start) == 0;
}

} // namespace

std::string mendOf(const CommandLine& line, const std::string& argument) {
    const struct {
        const char* name;
        bool fits;
    } known[] = {
        {"negativeNumbers", isLikeNumber(argument)},
        {"loneDash", argument == "-"},
        {"emptyValues", argument.empty()},
        {"emptyPositionals", argument.empty()},
        {"repeatedLetters", repeatsALetter(argument)},
        {"joinedLetters", hasJoinedLetters(argument)},
    };
    for (const auto& mend : known) {
        if (mend.fits && std::find(line.mends.begin(), line.mends.end(), mend.name) != line.mends.end()) {
            return mend.name;
        }
    }
    if (!line.mends.empty() && beginsName(argument, "help")) {
        return "help";
    }
    return !line.mends.empty() && !line.version.empty() && beginsName(argument, "version") ? "version" : "";
}

} // namespace tarv_program
