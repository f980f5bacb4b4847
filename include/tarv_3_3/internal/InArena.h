#pragma once

#include <cstddef>
#include <memory_resource>

namespace tarv_3_3::internal {

/// The part of `InArena` that outlives the container in it.
template <std::size_t firstBlock>
class Arena {
protected:
    std::pmr::monotonic_buffer_resource m_arena{firstBlock};
};

/// A standard container with an arena of its own, for what only grows and goes all at once: few
/// allocations, and nothing is given back before the end. The first block has `firstBlock` bytes and
/// is taken when something is stored; every further one is larger.
template <class Container, std::size_t firstBlock = 1024>
class InArena : private Arena<firstBlock>, public Container {
public:
    InArena() : Container(&this->m_arena) {}
    InArena(const InArena&) = delete;
    InArena& operator=(const InArena&) = delete;
};

} // namespace tarv_3_3::internal
