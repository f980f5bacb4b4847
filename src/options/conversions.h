#pragma once

#include <string>

#include "tarv_3_3/export.h"
#include "tarv_3_3/variant.h"

namespace tarv_3_3 {

class Garbage;

/// Converts a text to a value. Numbers are read as a default-constructed stream of the classic
/// locale reads them, whatever the process's locale is.
///
/// `execute<T>` stores the value in `result` and returns true, or returns false and leaves it null:
///
/// - `bool`, `int32_t`, `int64_t`: the whole text must be the value; white space around it is
///   allowed. A bool is 0 or 1.
/// - `uint64_t`: hexadecimal with a "0x" in front or an "h" behind, else decimal; what follows the
///   number is ignored, and a minus sign wraps. An empty text is no number.
/// - `const char*`: any text; `garbage` keeps a copy.
class TARV_API OperationFromString {
public:
    OperationFromString(Garbage* garbageOfParser, const char* textToConvert);

    template <class T>
    bool execute();

    Garbage* garbage;
    const char* input;
    variant_t result;
};

/// Reads `text` as one value of `T` under the whole-text rule above; false when it is none.
template <class T>
bool convertWholeText(const char* text, T& value);

/// Converts a value to the text that `garbage` keeps; `execute<const char*>` is for texts, which
/// are taken as they are.
class TARV_API OperationToString {
public:
    OperationToString(Garbage* garbageOfParser, const variant_t& valueToConvert);

    template <class T>
    bool execute();

    Garbage* garbage;
    const char* result = nullptr;
    variant_t input;
};

/// The name of a kind of value, for help and messages.
class TARV_API OperatorGetTypeName {
public:
    template <class T>
    bool execute();

    std::string result;
};

} // namespace tarv_3_3
