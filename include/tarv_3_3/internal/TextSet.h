#pragma once

#include <cstddef>
#include <memory_resource>
#include <string_view>
#include <vector>

namespace tarv_3_3::internal {

/// A set of texts that only grows, and keeps them where they are until its end. To look one up costs
/// the same however many there are.
class TextSet {
public:
    TextSet();
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
    };

    /// The entry of `text`, made if there is none.
    Entry& insert(std::string_view text);

    /// Null when there is none.
    const Entry* find(std::string_view text) const;

private:
    std::size_t placeOf(std::string_view text, std::size_t hash) const;
    void grow();
    Entry* makeEntry(std::string_view text, std::size_t hash);

    std::pmr::monotonic_buffer_resource m_memory;
    /// A power of two of them, null while they are free. An entry is where its hash says, or, if that
    /// was taken, in the first free one behind.
    std::pmr::vector<Entry*> m_slots;
    std::size_t m_size = 0;
};

} // namespace tarv_3_3::internal
