#pragma once

#include <string>

/// The wording of everything that the option model says. Hosts compare these texts: they stay as
/// they are, grammar and spelling included.
namespace tarv_3_3::internal::messages {

/// A declaration repeats a name; for the trace, followed by the names as the host gave them.
constexpr char nameAlreadyRegistered[] =
    "Tried to register an option with a name, which is alread registered: ";

inline std::string cannotParseValue(const std::string& option, const std::string& text,
                                    const std::string& typeName) {
    return "Option '" + option + "' can not parse '" + text + "' value, requires a type '" + typeName +
           "' here.";
}

inline std::string ambiguousValue(const std::string& option, const std::string& allowedValues) {
    return "Ambiguous value for option '" + option + "'. Possible values follows: " + allowedValues;
}

inline std::string valueNotAllowed(const std::string& option, const std::string& text,
                                   const std::string& allowedValues) {
    return "Option '" + option + "' does not allow value '" + text +
           "'. Possible values follows: " + allowedValues;
}

} // namespace tarv_3_3::internal::messages
