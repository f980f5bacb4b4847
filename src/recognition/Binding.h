#pragma once

#include <memory>
#include <string>

#include "options/OptionDescription.h"
#include "tarv_3_3/internal/OptionData.h"

namespace tarv_3_3::internal {

/// Who is told of events while a recognizer is in use.
enum class Listeners {
    /// Nobody: what is declared, and the global locale, stay as they are in the middle of an argument.
    none,
    /// Somebody, who may do anything meanwhile.
    some
};

/// What the recognizers of one parse have in common, since one of them binds at a time. Its lists and texts
/// keep their memory from one occurrence to the next. A parse that a handler starts has one of its own.
struct Binding {
    explicit Binding(Listeners whoListens) : listeners(whoListens) {}

    bool hasListeners() const { return listeners == Listeners::some; }

    Listeners listeners;
    /// A copy of the record that an argument is bound to, where a listener may refine that record.
    std::unique_ptr<OptionDescription> record;
    /// The occurrence being bound.
    OptionData occurrence;
    /// A piece of a list, where it needs a zero behind it.
    std::string piece;
};

} // namespace tarv_3_3::internal
