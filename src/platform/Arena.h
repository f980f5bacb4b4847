#pragma once

#include <cstddef>
#include <cstdint>
#include <new>

namespace tarv_3_3::internal {

/// Memory for pieces that all go at once, with the arena. It begins with room that its owner has; more comes
/// in blocks of the heap.
///
/// Everything that the library allocates comes from the heap, never from the default resource of
/// `std::pmr`: that one belongs to the host, and may refuse, or end before the library's objects do.
class Arena {
public:
    Arena(std::byte* room, std::size_t size) : m_next(room), m_end(room + size), m_nextBlockSize(2 * size) {}
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;
    ~Arena();

    /// A piece of `size` bytes. `alignment` is at most that of any fundamental type.
    void* take(std::size_t size, std::size_t alignment) {
        const std::size_t misplaced = reinterpret_cast<std::uintptr_t>(m_next) % alignment;
        const std::size_t padding = misplaced != 0 ? alignment - misplaced : 0;
        const auto left = static_cast<std::size_t>(m_end - m_next);
        if (padding > left || size > left - padding) {
            return takeFromNewBlock(size);
        }
        std::byte* const piece = m_next + padding;
        m_next = piece + size;
        return piece;
    }

private:
    /// The head of a block.
    struct alignas(std::max_align_t) Block {
        Block* previous;
    };

    void* takeFromNewBlock(std::size_t size);

    /// What is left of the room or of the last block.
    std::byte* m_next;
    std::byte* m_end;
    std::size_t m_nextBlockSize;
    Block* m_lastBlock = nullptr;
};

/// An arena whose first room lies in itself, so that a small owner needs no block.
template <std::size_t size>
class ArenaWithRoom : public Arena {
public:
    ArenaWithRoom() : Arena(m_room, size) {}

private:
    alignas(std::max_align_t) std::byte m_room[size];
};

/// Gives containers their memory: from an arena, or, without one, from the heap.
///
/// A copy of a container has no arena, since it may outlive it. Large pieces come from the heap in any
/// case: a long list that grows gives them back, which an arena would not.
template <class T>
class ArenaAllocator {
public:
    using value_type = T;

    ArenaAllocator() = default;
    // Implicit, so that a container is made with an arena, as with a resource of the standard library.
    ArenaAllocator(Arena& arena) : m_arena(&arena) {}
    template <class Other>
    ArenaAllocator(const ArenaAllocator<Other>& other) : m_arena(other.arena()) {}

    T* allocate(std::size_t count) {
        static_assert(alignof(T) <= alignof(std::max_align_t));
        const std::size_t size = count * elementSize;
        return static_cast<T*>(isFromArena(count) ? m_arena->take(size, alignof(T)) : ::operator new(size));
    }
    void deallocate(T* piece, std::size_t count) {
        if (!isFromArena(count)) {
            ::operator delete(piece);
        }
    }

    ArenaAllocator select_on_container_copy_construction() const { return {}; }

    Arena* arena() const { return m_arena; }

    friend bool operator==(const ArenaAllocator& left, const ArenaAllocator& right) {
        return left.m_arena == right.m_arena;
    }
    friend bool operator!=(const ArenaAllocator& left, const ArenaAllocator& right) {
        return !(left == right);
    }

private:
    // Elements may be pointers.
    // NOLINTNEXTLINE(bugprone-sizeof-expression)
    static constexpr std::size_t elementSize = sizeof(T);
    static constexpr std::size_t largeSize = 4096;

    bool isFromArena(std::size_t count) const {
        return m_arena != nullptr && count < largeSize / elementSize;
    }

    Arena* m_arena = nullptr;
};

} // namespace tarv_3_3::internal
