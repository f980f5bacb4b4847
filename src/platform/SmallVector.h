#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>

#include "platform/Arena.h"

namespace tarv_3_3::internal {

/// A vector that only grows. Its first element lies in the object itself, more of them where `ArenaAllocator`
/// puts them. The move constructor of an element must not throw.
template <class T>
class SmallVector {
public:
    /// `memory` must outlive the vector.
    explicit SmallVector(Arena& memory) : m_allocator(memory) {}

    /// The copy uses the same memory.
    SmallVector(const SmallVector& other) : m_allocator(other.m_allocator) {
        reserve(other.m_size);
        std::uninitialized_copy(other.begin(), other.end(), m_elements);
        m_size = other.m_size;
    }
    SmallVector& operator=(const SmallVector&) = delete;
    ~SmallVector() {
        std::destroy_n(m_elements, m_size);
        release();
    }

    bool empty() const { return m_size == 0; }
    std::size_t size() const { return m_size; }
    const T* begin() const { return m_elements; }
    const T* end() const { return m_elements + m_size; }
    const T& front() const { return *m_elements; }
    const T& back() const { return m_elements[m_size - 1]; }
    const T& operator[](std::size_t index) const { return m_elements[index]; }

    /// Adds an element that is made of `parts`, none of which may lie in this vector.
    template <class... Parts>
    void emplace_back(Parts&&... parts) {
        makeRoom(1);
        new (m_elements + m_size) T(std::forward<Parts>(parts)...);
        ++m_size;
    }

    /// Makes room for `more` elements. The capacity at least doubles, so that many calls for few elements
    /// each move an element only a few times.
    void makeRoom(std::size_t more) {
        if (m_capacity - m_size < more) {
            reserve(std::max(2 * m_capacity, m_size + more));
        }
    }

private:
    T* room() { return reinterpret_cast<T*>(m_room); }

    void reserve(std::size_t capacity) {
        if (capacity <= m_capacity) {
            return;
        }
        T* const elements = m_allocator.allocate(capacity);
        std::uninitialized_move_n(m_elements, m_size, elements);
        std::destroy_n(m_elements, m_size);
        release();
        m_elements = elements;
        m_capacity = capacity;
    }

    void release() {
        if (m_elements != room()) {
            m_allocator.deallocate(m_elements, m_capacity);
        }
    }

    ArenaAllocator<T> m_allocator;
    T* m_elements = room();
    std::size_t m_size = 0;
    std::size_t m_capacity = 1;
    alignas(T) std::byte m_room[sizeof(T)];
};

} // namespace tarv_3_3::internal
