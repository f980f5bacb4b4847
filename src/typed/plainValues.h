#pragma once

#include "typed/Taking.h"

namespace tarv_3_3::typed::engine {

/// Makes a value of a type that the library knows all of. False when the text is none, which is noted.
bool makePlain(Taking& taking, const char* text, PlainValue& value);

/// Stores a value that was made where the host reads it.
void storePlain(const Option& option, const PlainValue& value);

/// Notes how the initial value is shown.
void showPlainDefault(Option& option);

} // namespace tarv_3_3::typed::engine
