#include "tarv_3_3/internal/TextSet.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>

namespace tarv_3_3::internal {

namespace {

constexpr std::size_t firstSlots = 64;

__extension__ using DoubleWord = unsigned __int128;

// A table looks at the low bits. The high half of the product, folded in, brings the high bits of `word`
// there.
std::uint64_t mix(std::uint64_t word) {
    constexpr std::uint64_t oddAndIrregular = 0x9E3779B97F4A7C15;
    const DoubleWord product = DoubleWord(word) * oddAndIrregular;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

template <class Word>
Word load(const char* bytes) {
    Word word;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

// Up to seven bytes, each of them at least once.
std::uint64_t loadShort(std::string_view text) {
    if (text.size() >= 4) {
        const std::uint64_t front = load<std::uint32_t>(text.data());
        return front << 32 | load<std::uint32_t>(text.data() + text.size() - 4);
    }
    std::uint64_t word = 0;
    for (const char byte : text) {
        word = word << 8 | static_cast<unsigned char>(byte);
    }
    return word;
}

bool isEntryOf(const TextSet::Entry& entry, const HashedText& text) {
    return entry.hash == text.hash && entry.size == text.text.size() &&
           std::memcmp(entry.bytes(), text.text.data(), text.text.size()) == 0;
}

} // namespace

// Eight bytes at a time, the last ones perhaps twice. The hash of the C++ library takes three times as
// many steps for the length of a name, and every name and value is looked up again and again.
std::size_t hashOf(std::string_view text) {
    if (text.size() < 8) {
        return mix(text.size() ^ mix(loadShort(text)));
    }
    std::uint64_t hash = text.size();
    for (std::size_t i = 0; i + 8 < text.size(); i += 8) {
        hash = mix(hash ^ load<std::uint64_t>(text.data() + i));
    }
    return mix(hash ^ load<std::uint64_t>(text.data() + text.size() - 8));
}

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
