#pragma once

#include <string_view>

namespace tarv_3_3 {

/// As the first argument, it switches the trace on.
inline constexpr std::string_view logSwitch = "tarvoption=tarvlogenable=1";

/// Ends the named options.
inline constexpr std::string_view endMarkerText = "--";

} // namespace tarv_3_3
