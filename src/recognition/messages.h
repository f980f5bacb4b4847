#pragma once

#include <string>

/// The wording of everything that the recognizers say when they refuse an argument. Hosts compare
/// these texts: they stay as they are, grammar and spelling included. `suffix` is what
/// `IArgumentParser::formatTokenMessage` makes of the argument.
namespace tarv_3_3::internal::messages {

inline std::string inArgument(const std::string& argument) {
    return " in argument: '" + argument + "'";
}

inline std::string unknownOption(const std::string& argument) {
    return "Unknown option '" + argument + "'";
}

inline std::string possibleOptions(const std::string& quotedNames) {
    return "Ambiguous option, possible options are: " + quotedNames;
}

inline std::string ambiguousOption(const std::string& name, const std::string& suffix,
                                   const std::string& quotedNames) {
    return "Ambiguous option '" + name + "'" + suffix + ", could be: " + quotedNames;
}

inline std::string takesNoValue(const std::string& option, const std::string& suffix) {
    return "Option '" + option + "'does not requires a value" + suffix;
}

inline std::string isBoolean(const std::string& option, const std::string& suffix) {
    return "Option '" + option + "' is boolean and should be declared in form '--option' or '--no-option'" +
           suffix;
}

inline std::string requiresValue(const std::string& option, const std::string& suffix) {
    return "Option '" + option + "' requires a value" + suffix;
}

inline std::string nextLooksLikeOption(const std::string& option, const std::string& next) {
    return "Option '" + option + "' received value from the next argument: '" + next +
           "', but it seems to be an option. Use '-option=value' declaration form"
           " or make sure that value is not missed";
}

inline std::string invalidValue(const std::string& argument, const std::string& reason) {
    return "Value validation problem in argument '" + argument + "': " + reason;
}

inline std::string vetoedValue(const std::string& value, const std::string& option,
                               const std::string& argument) {
    return "Value '" + value + "' is not valid for option '" + option + "' in argument '" + argument + "'";
}

inline std::string noValueParsed(const std::string& value, const std::string& option) {
    return "No value parsed in argument '" + value + "' for option '" + option + "'";
}

} // namespace tarv_3_3::internal::messages
