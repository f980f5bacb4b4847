#pragma once

namespace tarv_3_3::internal {

/// A set of texts with the memory that they lie in. What it is, only the library knows.
class TextSet;

} // namespace tarv_3_3::internal
