#include "description/joinedLetters.h"

#include "description/declarationFacts.h"
#include "options/findOption.h"
#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3::internal {

namespace {

const OptionDescription* optionOfLetter(char letter, const std::vector<OptionDescription>& options) {
    const std::size_t index = indexOfExactName(std::string_view(&letter, 1), options);
    return index < options.size() && maySuggest(options[index]) ? &options[index] : nullptr;
}

bool takesValue(const OptionDescription& option) {
    return option.m_type != vtNull && option.m_type != vtBool;
}

bool converts(const OptionDescription& option, const std::string& value) {
    Garbage texts;
    return option.fromString(value.c_str(), &texts).type() != vtNull;
}

// The value behind a letter: the rest of the letters, or the value of the token.
std::string valueBehind(std::string_view argument, std::size_t letter, const Token& token) {
    const bool isLast = letter + 1 == token.nameEnd;
    return std::string(isLast ? token.valueIn(argument) : argument.substr(letter + 1));
}

} // namespace

std::string separatedLetters(std::string_view argument, const Token& token,
                             const std::vector<OptionDescription>& options) {
    std::string separated;
    for (std::size_t letter = token.nameStart; letter < token.nameEnd; ++letter) {
        const OptionDescription* const option = optionOfLetter(argument[letter], options);
        if (option == nullptr) {
            return "";
        }
        separated.append(separated.empty() ? "-" : " -").append(1, argument[letter]);
        if (!takesValue(*option)) {
            continue;
        }
        const std::string value = valueBehind(argument, letter, token);
        if (value.empty()) {
            return separated;
        }
        return converts(*option, value) ? separated.append("=").append(value) : "";
    }
    return token.hasValue ? "" : separated;
}

} // namespace tarv_3_3::internal
