#pragma once

#include <cstddef>
#include <cstring>

/// The place of a virtual operation in the vtable, counted from 0. Hosts that were compiled against
/// an older library call by this number.
template <class Operation>
std::size_t virtualSlot(Operation operation) {
    // The C++ ABI of Linux: a pointer to a virtual member is one more than its offset in the vtable.
    std::size_t offsetPlusOne;
    std::memcpy(&offsetPlusOne, &operation, sizeof offsetPlusOne);
    return (offsetPlusOne - 1) / sizeof(void*);
}
