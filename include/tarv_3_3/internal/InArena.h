#pragma once

#include <memory_resource>

namespace tarv_3_3::internal {

/// The part of `InArena` that outlives the container in it.
class Arena {
protected:
    std::pmr::monotonic_buffer_resource m_arena;
};

/// A standard container with an arena of its own, for what only grows and goes all at once: few
/// allocations, and nothing is given back before the end.
template <class Container>
class InArena : private Arena, public Container {
public:
    InArena() : Container(&m_arena) {}
    InArena(const InArena&) = delete;
    InArena& operator=(const InArena&) = delete;
};

} // namespace tarv_3_3::internal
