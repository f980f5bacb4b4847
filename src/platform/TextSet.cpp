#include "tarv_3_3/internal/TextSet.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace tarv_3_3::internal {

namespace {

constexpr std::size_t firstSlots = 64;

bool isEntryOf(const TextSet::Entry& entry, const HashedText& text) {
    return entry.hash == text.hash && entry.size == text.text.size() &&
           std::memcmp(entry.bytes(), text.text.data(), text.text.size()) == 0;
}

} // namespace

TextSet::TextSet(std::pmr::monotonic_buffer_resource& memory) : m_memory(memory), m_slots(&memory) {}

TextSet::~TextSet() = default;

TextSet::Entry& TextSet::insert(const HashedText& text) {
    // A quarter of the slots stays free, so that few entries are far from their place.
    if (4 * m_size >= 3 * m_slots.size()) {
        grow();
    }
    Entry*& slot = m_slots[placeOf(text)];
    if (slot == nullptr) {
        slot = makeEntry(text);
        ++m_size;
    }
    return *slot;
}

const TextSet::Entry* TextSet::find(const HashedText& text) const {
    return m_size != 0 ? m_slots[placeOf(text)] : nullptr;
}

// Where the text is, or would be.
std::size_t TextSet::placeOf(const HashedText& text) const {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t place = text.hash & mask;
    while (m_slots[place] != nullptr && !isEntryOf(*m_slots[place], text)) {
        place = (place + 1) & mask;
    }
    return place;
}

void TextSet::grow() {
    std::pmr::vector<Entry*> slots(std::max(firstSlots, 2 * m_slots.size()), &m_memory);
    m_slots.swap(slots);
    for (Entry* const entry : slots) {
        if (entry != nullptr) {
            m_slots[placeOf(entry->text())] = entry;
        }
    }
}

TextSet::Entry* TextSet::makeEntry(const HashedText& text) {
    const std::size_t size = text.text.size();
    void* const memory = m_memory.allocate(sizeof(Entry) + size + 1, alignof(Entry));
    auto* const entry = new (memory) Entry{text.hash, size, 0};
    auto* const bytes = reinterpret_cast<char*>(entry + 1);
    std::memcpy(bytes, text.text.data(), size);
    bytes[size] = '\0';
    return entry;
}

} // namespace tarv_3_3::internal
