#pragma once

#include <cstddef>
#include <memory_resource>
#include <string_view>
#include <vector>

namespace tarv_3_3::internal {

/// The same for equal texts, and seldom for others. It is no secret: texts can be made to collide.
std::size_t hashOf(std::string_view text);

/// A text and its hash, which every set may be asked with.
struct HashedText {
    template <class Text>
    HashedText(const Text& plainText) : text(plainText), hash(hashOf(text)) {}
    HashedText(std::string_view knownText, std::size_t knownHash) : text(knownText), hash(knownHash) {}

    std::string_view text;
    std::size_t hash;
};

/// A set of texts that only grows, and keeps them where they are. To look one up costs the same however
/// many there are.
class TextSet {
public:
    /// The entries go with `memory`, which takes nothing back before.
    explicit TextSet(std::pmr::monotonic_buffer_resource& memory);
    TextSet(const TextSet&) = delete;
    TextSet& operator=(const TextSet&) = delete;
    ~TextSet();

    struct Entry {
        std::size_t hash;
        std::size_t size;
        /// What the owner of the set notes down about the text; 0 at first.
        std::size_t note;

        /// The text and a terminating zero.
        const char* bytes() const { return reinterpret_cast<const char*>(this + 1); }

        HashedText text() const { return {std::string_view(bytes(), size), hash}; }
    };

    /// The entry of `text`, made if there is none.
    Entry& insert(const HashedText& text);

    /// Null when there is none.
    const Entry* find(const HashedText& text) const;

private:
    std::size_t placeOf(const HashedText& text) const;
    void grow();
    Entry* makeEntry(const HashedText& text);

    std::pmr::memory_resource& m_memory;
    /// A power of two of them, null while they are free. An entry is where its hash says, or, if that
    /// was taken, in the first free one behind.
    std::pmr::vector<Entry*> m_slots;
    std::size_t m_size = 0;
};

} // namespace tarv_3_3::internal
