#pragma once

namespace tarv_3_3::internal {

/// A set of texts with the memory that they lie in. Defined inside the library.
class TextSet;

} // namespace tarv_3_3::internal
