#pragma once

#include "tarv_3_3/Value.h"
#include "tarv_3_3/export.h"

namespace tarv_3_3 {

/// Is told what a parse finds, while it finds it. Derive from it, override what matters, and hand
/// an object to `IParser::addHandler`.
///
/// The object stays the host's and must live until it is removed or the parser is destroyed; it is
/// never deleted through this class. Names and arguments are kept by the parser: the pointers stay
/// valid until the parser is destroyed. A handler may add or remove handlers, itself included; one
/// that was removed is not called any more. It may declare options and refine the last one: arguments
/// that are recognised later are bound so. When a handler throws, an exception derived from
/// `std::exception` ends the parse with `parseUnidentified`, any other reaches the caller of the
/// parse; the parser stays usable.
class TARV_API EventHandler {
public:
    /// An option was recognised; `name` is its first name. The result is ignored.
    /// A positional argument announces the parser's first declaration, whichever option takes it.
    virtual bool onOptionParse(const char* name);

    /// A value was converted and is about to be stored for the option `name`, once for every
    /// element of a list. Returning false refuses it: the parse ends with `parseVetoed`, and no
    /// further handler is asked about this value.
    virtual bool onValueParse(const char* name, const Value& value);

    /// No declaration takes `argument`. Every handler is asked. Under `flagRejectUnknown` the
    /// argument is an error, unless a handler returns false; without the flag it is dropped.
    virtual bool onUknownArgument(const char* argument);
};

} // namespace tarv_3_3
