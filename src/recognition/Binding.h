#pragma once

#include <memory>
#include <string>

#include "options/OptionDescription.h"
#include "tarv_3_3/internal/OptionData.h"

namespace tarv_3_3::internal {

/// Whether somebody is told of events while a recognizer is in use.
enum class Listeners {
    /// Nobody. So no declaration and no global locale changes while an argument is bound.
    none,
    /// Somebody, who may change both in an event.
    some
};

/// Working memory for binding an argument, which the recognizers of one parse share. Its lists and texts keep
/// their capacity from one argument to the next. A parse that a handler starts has one of its own.
struct Binding {
    explicit Binding(Listeners whoListens) : listeners(whoListens) {}

    bool hasListeners() const { return listeners == Listeners::some; }

    Listeners listeners;
    /// A copy of the record that an argument is bound to, where a listener may refine that record.
    std::unique_ptr<OptionDescription> record;
    /// The occurrence being bound.
    OptionData occurrence;
    /// A copy of one element of a list, as a zero-terminated text.
    std::string piece;
};

} // namespace tarv_3_3::internal
