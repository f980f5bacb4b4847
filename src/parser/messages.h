#pragma once

#include <string>

/// The wording of everything that the parse driver says. Hosts compare these texts: they stay as
/// they are, grammar and spelling included.
namespace tarv_3_3::internal::messages {

constexpr char unidentifiedProblem[] = "Unidentified problem detected.";
constexpr char noActionDefined[] = "No action defined.";

inline std::string unknownArgument(const std::string& argument) {
    return "Unknown option: " + argument;
}

inline std::string twoActions(const std::string& laterAction, const std::string& earlierAction) {
    return "Action '-" + laterAction + "' and action '-" + earlierAction +
           "' were defined, but only one action possible.";
}

inline std::string optionNotAccepted(const std::string& action, const std::string& option) {
    return "Action '-" + action + "' doesn't accept option '-" + option + "'";
}

inline std::string unreadableOptionFile(const std::string& path) {
    return "Error reading option file '" + path + "'";
}

} // namespace tarv_3_3::internal::messages
