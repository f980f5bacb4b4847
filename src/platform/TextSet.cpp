#include "tarv_3_3/internal/TextSet.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <new>

namespace tarv_3_3::internal {

namespace {

constexpr std::size_t firstBlock = 2048;
constexpr std::size_t firstSlots = 64;

std::size_t hashOf(std::string_view text) {
    return std::hash<std::string_view>()(text);
}

bool isEntryOf(const TextSet::Entry& entry, std::string_view text, std::size_t hash) {
    return entry.hash == hash && entry.size == text.size() &&
           std::memcmp(entry.bytes(), text.data(), text.size()) == 0;
}

} // namespace

TextSet::TextSet() : m_memory(firstBlock), m_slots(&m_memory) {}

TextSet::~TextSet() = default;

TextSet::Entry& TextSet::insert(std::string_view text) {
    // A quarter of the slots stays free, so that few entries are far from their place.
    if (4 * m_size >= 3 * m_slots.size()) {
        grow();
    }
    const std::size_t hash = hashOf(text);
    Entry*& slot = m_slots[placeOf(text, hash)];
    if (slot == nullptr) {
        slot = makeEntry(text, hash);
        ++m_size;
    }
    return *slot;
}

const TextSet::Entry* TextSet::find(std::string_view text) const {
    return m_size != 0 ? m_slots[placeOf(text, hashOf(text))] : nullptr;
}

// Where the text is, or would be.
std::size_t TextSet::placeOf(std::string_view text, std::size_t hash) const {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t place = hash & mask;
    while (m_slots[place] != nullptr && !isEntryOf(*m_slots[place], text, hash)) {
        place = (place + 1) & mask;
    }
    return place;
}

void TextSet::grow() {
    std::pmr::vector<Entry*> slots(std::max(firstSlots, 2 * m_slots.size()), &m_memory);
    m_slots.swap(slots);
    for (Entry* const entry : slots) {
        if (entry != nullptr) {
            m_slots[placeOf(std::string_view(entry->bytes(), entry->size), entry->hash)] = entry;
        }
    }
}

TextSet::Entry* TextSet::makeEntry(std::string_view text, std::size_t hash) {
    void* const memory = m_memory.allocate(sizeof(Entry) + text.size() + 1, alignof(Entry));
    auto* const entry = new (memory) Entry{hash, text.size(), 0};
    auto* const bytes = reinterpret_cast<char*>(entry + 1);
    std::memcpy(bytes, text.data(), text.size());
    bytes[text.size()] = '\0';
    return entry;
}

} // namespace tarv_3_3::internal
