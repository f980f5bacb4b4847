#pragma once

#include "dovel2/variant.h"

// The value type under the names that hosts use.
namespace tarv_3_3 {

using dovel2::das_variant_type_t;
using dovel2::variant_t;
using dovel2::vtBool;
using dovel2::vtDouble;
using dovel2::vtInt32;
using dovel2::vtInt64;
using dovel2::vtNull;
using dovel2::vtString;
using dovel2::vtUInt32;
using dovel2::vtUInt64;

} // namespace tarv_3_3
