#pragma once

#include <string>

/// The wording of broken rules and of suggestions. Hosts compare these texts: they stay as they are.
/// `option` is "option 'NAME'" or "action 'NAME'", `first...` the same with a capital letter.
namespace tarv_3_3::internal::messages {

inline std::string isRequired(const std::string& firstOption) {
    return firstOption + " is required";
}

inline std::string excludeEachOther(const std::string& firstOption, const std::string& option) {
    return firstOption + " and " + option + " exclude each other";
}

inline std::string oneIsRequired(const std::string& quotedNames) {
    return "One of the options " + quotedNames + " is required";
}

inline std::string goTogether(const std::string& quotedNames, const std::string& option) {
    return "The options " + quotedNames + " go together, but " + option + " is missing";
}

inline std::string needs(const std::string& firstOption, const std::string& option) {
    return firstOption + " needs " + option;
}

inline std::string didYouMean(const std::string& quotedNames) {
    return "Did you mean " + quotedNames + "?";
}

} // namespace tarv_3_3::internal::messages
