#pragma once

#include "tarv_3_3/export.h"
#include "tarv_3_3/status.h"
#include "tarv_3_3/variant.h"

namespace tarv_3_3 {

/// One value of an option, as a handler is shown it and as a query returns it.
/// A plain record: copy it freely; copies share the text of `value`.
struct TARV_API Value {
    /// The value as it stood on the command line, an abbreviated allowed value completed; not
    /// owned. From a query it is kept by the result until that is destroyed; in `onValueParse` it
    /// is valid during the call only. Null when there is no text.
    const char* text;
    /// A `ValueStatus`.
    int status;
    /// Position index: orders everything that was stored in the process. `noPosition` when none.
    int position;
    /// The converted value, of the option's kind; null for an option that takes no value, and where
    /// a positional option got an empty argument, which has no text either.
    variant_t value;

    /// An empty record: no text, `valueMissing`, `noPosition`, the null kind.
    Value() : text(nullptr), status(valueMissing), position(noPosition) {}
    /// A found value; the pointer is stored as given.
    Value(const char* textOfValue, const variant_t& typedValue, int positionIndex)
        : text(textOfValue), status(valueFound), position(positionIndex), value(typedValue) {}

    /// `as<const char*>()`, the only one there is: the text when `status` is `valueFound`, else null.
    template <class T>
    T as() const;
};

/// @cond
template <>
TARV_API const char* Value::as<const char*>() const;
/// @endcond

} // namespace tarv_3_3
