#include "typed/optionHelp.h"

#include <string_view>

#include "typed/CommandLine.h"
#include "typed/messages.h"
#include "typed/ranges.h"

namespace tarv_3_3::typed::engine {

namespace {

const char* kindName(const Option& option) {
    switch (option.shape().kind) {
    case kindSigned:
    case kindUnsigned:
    case kindReal:
        return "NUMBER";
    case kindChoice:
        return "WORD";
    case kindByte:
        return "CHAR";
    case kindSize:
        return "SIZE";
    case kindDuration:
        return "TIME";
    case kindText:
        break;
    default:
        return "VALUE";
    }
    return option.shape().isPath != 0 ? "FILE" : option.choices.empty() ? "TEXT" : "WORD";
}

bool isOnByDefault(const Option& option) {
    return option.isSwitch() && !option.defaults.empty() && option.defaults.front() == "on";
}

std::string joined(const std::vector<std::string>& words, std::string_view separator) {
    std::string text;
    for (const std::string& word : words) {
        text.append(text.empty() ? "" : separator).append(word);
    }
    return text;
}

void add(std::vector<std::string>& facts, const char* label, const std::string& fact) {
    if (!fact.empty()) {
        facts.push_back(label + fact);
    }
}

std::vector<std::string> namesInHelp(const std::vector<Option*>& options) {
    std::vector<std::string> names;
    for (const Option* option : options) {
        if (option != nullptr && !option->isHidden) {
            names.push_back(option->isPositional() ? argumentName(*option) : dashed(option->name()));
        }
    }
    return names;
}

// How many arguments a list takes, where that is more than its synopsis shows.
std::string countText(const Option& option) {
    if (!option.isMany() || (option.least <= 1 && option.most == 0)) {
        return "";
    }
    const std::string least = std::to_string(option.least);
    const std::string most = std::to_string(option.most);
    return option.most == 0              ? "at least " + least + " times"
           : option.least == option.most ? least + " times"
           : option.least == 0           ? "at most " + most + " times"
                                         : least + " to " + most + " times";
}

std::vector<std::string> factsOf(const Option& option) {
    std::vector<std::string> facts;
    add(facts, "with ", messages::listOf(namesInHelp(option.actions), " or "));
    add(facts, "", countText(option));
    add(facts, option.choices.size() > 1 ? "one of " : "", joined(option.choices, ", "));
    add(facts, "", hasRange(option) ? rangeText(option) : "");
    for (const std::string& must : option.musts) {
        add(facts, "", must);
    }
    add(facts, "needs ", messages::listOf(namesInHelp(option.needed), " and "));
    add(facts, "", option.isRequired && !option.isPositional() ? "required" : "");
    if (!option.isSwitch() && !option.isRequired) {
        const std::string separator(1, option.separator != '\0' ? option.separator : ' ');
        add(facts, "default: ", joined(option.defaults, separator));
    }
    add(facts, "environment: ", option.environment);
    if (option.isDeprecated) {
        add(facts, "", "deprecated" + (option.insteadOfIt.empty() ? "" : ", use " + option.insteadOfIt));
    }
    return facts;
}

} // namespace

std::string valueName(const Option& option) {
    const std::string name = option.valueName.empty() ? kindName(option) : option.valueName;
    const bool isSplit = option.isMany() && option.separator != '\0';
    return isSplit ? name + option.separator + "..." : name;
}

std::string namesSynopsis(const std::vector<std::string>& names, const char* prefix) {
    std::string letters;
    std::string words;
    for (const std::string& name : names) {
        const bool isLetter = name.size() == 1 && *prefix == '\0';
        std::string& list = isLetter ? letters : words;
        list.append(list.empty() ? "" : ", ").append(isLetter ? "-" : "--").append(prefix).append(name);
    }
    return letters.empty() ? "    " + words : words.empty() ? letters : letters + ", " + words;
}

std::string optionSynopsis(const Option& option) {
    std::string synopsis = namesSynopsis(option.names, isOnByDefault(option) ? "no-" : "");
    return option.takesValue() ? synopsis.append("=").append(valueName(option)) : synopsis;
}

std::string argumentSynopsis(const Option& option) {
    const bool isNeeded = option.isRequired || option.least > 0;
    const std::string name = argumentName(option);
    return (isNeeded ? name : "[" + name + "]") + (option.isMany() ? "..." : "");
}

std::string ruleText(const GroupRule& rule) {
    const std::vector<std::string> names = namesInHelp(rule.options);
    if (names.size() < 2) {
        return "";
    }
    const std::string list = messages::listOf(names, " and ");
    switch (rule.kind) {
    case atMostOne:
        return "At most one of " + list + ".";
    case atLeastOne:
        return "At least one of " + list + " is required.";
    case exactlyOne:
        return "Exactly one of " + list + " is required.";
    default:
        return list + " go together.";
    }
}

std::string optionText(const Option& option) {
    const std::string facts = joined(factsOf(option), "; ");
    if (facts.empty()) {
        return option.text;
    }
    return option.text + (option.text.empty() ? "(" : " (") + facts + ")";
}

} // namespace tarv_3_3::typed::engine
