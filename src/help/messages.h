#pragma once

#include <string>

/// The fixed wording of help. Hosts compare these texts: they stay as they are, the missing blank
/// included.
namespace tarv_3_3::internal::messages {

constexpr char unknownErrorHandled[] = "Unknown error handled.";

inline std::string helpNotAvailable(const std::string& name) {
    return "Help for " + name + " not available.Please use one of the following topics:\n";
}

} // namespace tarv_3_3::internal::messages
