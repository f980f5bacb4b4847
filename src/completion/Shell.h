#pragma once

namespace tarv_3_3 {

/// A shell that asks. One that is not known is answered with nothing.
enum class Shell { bash, zsh, fish, unknown };

} // namespace tarv_3_3
