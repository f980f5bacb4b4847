#pragma once

#include <cstddef>
#include <cstdint>
#include <new>

namespace tarv_3_3::internal {

/// Memory in pieces that are freed all at once, by the destructor. The first pieces lie in a buffer of the
/// owner, the next ones in blocks from the heap.
///
/// The library takes all memory from the heap, never from the default resource of `std::pmr`. That resource
/// belongs to the host. It may refuse, or be destroyed before the library's objects.
class Arena {
public:
    Arena(std::byte* room, std::size_t size) : m_next(room), m_end(room + size), m_nextBlockSize(2 * size) {}
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;
    ~Arena();

    /// A piece of `size` bytes. `alignment` is at most that of any fundamental type.
    void* take(std::size_t size, std::size_t alignment) {
        const std::size_t padding = -reinterpret_cast<std::uintptr_t>(m_next) % alignment;
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

    /// The free part of the first buffer or of the last block.
    std::byte* m_next;
    std::byte* m_end;
    std::size_t m_nextBlockSize;
    Block* m_lastBlock = nullptr;
};

/// An arena with a first buffer of `size` bytes, so that a small owner needs no block from the heap.
template <std::size_t size>
class ArenaWithRoom : public Arena {
public:
    ArenaWithRoom() : Arena(m_room, size) {}

private:
    alignas(std::max_align_t) std::byte m_room[size];
};

/// An allocator for containers. Takes memory from an arena, or from the heap if it has none.
///
/// A copy of a container gets an allocator without an arena, since the copy may outlive it. Large pieces
/// always come from the heap: a list that grows can free them, which it cannot do in an arena.
template <class T>
class ArenaAllocator {
public:
    using value_type = T;

    ArenaAllocator() = default;
    // Implicit, so that a container can be constructed with an arena directly.
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
