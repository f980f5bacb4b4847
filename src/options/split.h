#pragma once

#include <string>

#include "tarv_3_3/export.h"

namespace tarv_3_3 {

/// Outcome of an operation; 0 is success.
using result_t = int;

/// Splits a comma-separated list and appends its words to `pieces`, a `std::vector` of
/// strings or `Names`. Always returns 0.
///
/// The character behind a comma is never a separator. So "a,,b" gives "a" and ",b", and "a," gives "a" and a
/// word of one character, the terminating zero. An empty text gives no words. A text that begins with a comma
/// gives an empty first word.
template <class Words>
TARV_API result_t split(std::string text, Words& pieces);

} // namespace tarv_3_3
