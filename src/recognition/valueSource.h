#pragma once

#include <string>
#include <string_view>

#include "recognition/tokenSyntax.h"
#include "tarv_3_3/variant.h"

namespace tarv_3_3 {

/// Where a named option gets its value from, or why it gets none.
enum class ValueSource {
    /// It takes none.
    none,
    /// A switch: from its name.
    name,
    /// From the same argument.
    sameArgument,
    nextArgument,
    // From here on, the argument is refused.
    /// It takes none, and the argument has one.
    unwanted,
    /// A switch, and the argument has a value.
    unwantedBySwitch,
    /// There is no next argument.
    missing,
    nextIsEmpty,
    nextLooksLikeOption
};

inline bool isRefused(ValueSource source) {
    return source >= ValueSource::unwanted;
}

/// `value` is what the argument itself has, empty when nothing; `next` is the argument behind it, null when
/// there is none.
inline ValueSource valueSource(das_variant_type_t kind, std::string_view value, const std::string* next) {
    if (kind == vtNull) {
        return value.empty() ? ValueSource::none : ValueSource::unwanted;
    }
    if (kind == vtBool) {
        return value.empty() ? ValueSource::name : ValueSource::unwantedBySwitch;
    }
    if (!value.empty()) {
        return ValueSource::sameArgument;
    }
    if (next == nullptr) {
        return ValueSource::missing;
    }
    if (next->empty()) {
        return ValueSource::nextIsEmpty;
    }
    return beginsWithHyphen(*next) ? ValueSource::nextLooksLikeOption : ValueSource::nextArgument;
}

} // namespace tarv_3_3
