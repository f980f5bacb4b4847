#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>
#include <string_view>
#include <vector>

#include "platform/Arena.h"
#include "platform/hashOf.h"

namespace tarv_3_3::internal {

/// A hash map from texts to values, with open addressing and linear probing. It only grows, and its entries
/// keep their addresses. The destructors of values are not called.
template <class Value>
class TextMap {
public:
    /// The entries lie in `memory`.
    explicit TextMap(Arena& memory) : m_memory(memory), m_slots(memory) {}
    TextMap(const TextMap&) = delete;
    TextMap& operator=(const TextMap&) = delete;
    ~TextMap() = default;

    struct Entry {
        std::size_t hash;
        std::size_t size;
        Value value;

        /// The text and a terminating zero.
        const char* bytes() const { return reinterpret_cast<const char*>(this + 1); }

        HashedText text() const { return {std::string_view(bytes(), size), hash}; }
    };

    /// The entry of `text`, made with `Value()` if there is none.
    Entry& insert(const HashedText& text) {
        if (m_room == 0) {
            grow();
        }
        Entry*& slot = m_slots[slotOf(text)];
        if (slot == nullptr) {
            slot = makeEntry(text);
            --m_room;
        }
        return *slot;
    }

    /// Null when there is none.
    const Entry* find(const HashedText& text) const {
        return !m_slots.empty() ? m_slots[slotOf(text)] : nullptr;
    }

    /// The total number of slots that searches for all entries skip. A measure of how well the hash spreads.
    std::size_t distances() const {
        const std::size_t mask = m_slots.size() - 1;
        std::size_t sum = 0;
        for (std::size_t slot = 0; slot < m_slots.size(); ++slot) {
            sum += m_slots[slot] != nullptr ? (slot - m_slots[slot]->hash) & mask : 0;
        }
        return sum;
    }

private:
    static constexpr std::size_t firstSlots = 64;

    // The slot of the entry. If there is none, the free slot where it would be added.
    std::size_t slotOf(const HashedText& text) const {
        const std::size_t mask = m_slots.size() - 1;
        std::size_t slot = text.hash & mask;
        while (m_slots[slot] != nullptr && !isEntryOf(*m_slots[slot], text)) {
            slot = (slot + 1) & mask;
        }
        return slot;
    }

    // Where an entry that differs from all others goes.
    std::size_t freeSlot(std::size_t hash) const {
        const std::size_t mask = m_slots.size() - 1;
        std::size_t slot = hash & mask;
        while (m_slots[slot] != nullptr) {
            slot = (slot + 1) & mask;
        }
        return slot;
    }

    static bool isEntryOf(const Entry& entry, const HashedText& text) {
        return entry.hash == text.hash && entry.size == text.text.size() &&
               std::memcmp(entry.bytes(), text.text.data(), text.text.size()) == 0;
    }

    // Not inlined, so that the other insertions need not save registers for it.
    [[gnu::noinline]] void grow() {
        Slots slots(std::max(firstSlots, 2 * m_slots.size()), m_slots.get_allocator());
        m_slots.swap(slots);
        for (Entry* const entry : slots) {
            if (entry != nullptr) {
                m_slots[freeSlot(entry->hash)] = entry;
            }
        }
        m_room = (m_slots.size() - slots.size()) / 4 * 3;
    }

    Entry* makeEntry(const HashedText& text) {
        const std::size_t size = text.text.size();
        void* const memory = m_memory.take(sizeof(Entry) + size + 1, alignof(Entry));
        auto* const entry = new (memory) Entry{text.hash, size, Value()};
        auto* const bytes = reinterpret_cast<char*>(entry + 1);
        std::memcpy(bytes, text.text.data(), size);
        bytes[size] = '\0';
        return entry;
    }

    using Slots = std::vector<Entry*, ArenaAllocator<Entry*>>;

    Arena& m_memory;
    /// Their number is a power of two. A free slot is null.
    Slots m_slots;
    /// How many entries fit in before the slots have to grow. A quarter of the slots stays free, which keeps
    /// searches short.
    std::size_t m_room = 0;
};

} // namespace tarv_3_3::internal
