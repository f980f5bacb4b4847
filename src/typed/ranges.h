#pragma once

#include <string>

#include "typed/Option.h"

namespace tarv_3_3::typed::engine {

///@{
/// A number as a value of the option is typed.
std::string showNumber(const Option& option, long long number);
std::string showNumber(const Option& option, unsigned long long number);
std::string showNumber(const Option& option, double number);
///@}

/// Whether the numbers of an option are kept as signed or unsigned whole ones, or as real ones.
enum class NumberForm { none, asSigned, asUnsigned, asReal };
NumberForm numberForm(const Option& option);

/// The greatest number of its type, as far as a signed one holds it.
long long greatestSigned(const Shape& shape);

/// Whether the host set bounds that are closer than those of the type.
bool hasRange(const Option& option);

///@{
/// The bounds that hold: those of the host, else those of the type. Empty where there is none.
std::string leastText(const Option& option);
std::string mostText(const Option& option);
///@}

/// "from 1 to 99"; empty where there are no bounds.
std::string rangeText(const Option& option);

} // namespace tarv_3_3::typed::engine
