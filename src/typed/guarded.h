#pragma once

#include <exception>

#include "typed/Command.h"

namespace tarv_3_3::typed::engine {

/// Does what an exported function does; exhausted memory, which is all that is thrown below them, is noted
/// with the program. Null, which exhausted memory left behind, does nothing.
template <class Act>
void guarded(Command* command, Act act) {
    if (command == nullptr) {
        return;
    }
    try {
        act();
    } catch (const std::exception&) {
        command->program().isOutOfMemory = true;
    }
}

template <class Act>
void guarded(Option* option, Act act) {
    guarded(option != nullptr ? option->owner : nullptr, act);
}

} // namespace tarv_3_3::typed::engine
