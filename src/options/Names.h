#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "platform/Arena.h"
#include "tarv_3_3/export.h"

namespace tarv_3_3 {

/// The names of one option, the primary one first. They keep a set of the bytes that their first and second
/// words begin with. A search in a large table tests that set first, and compares the names of few records.
class TARV_API Names {
public:
    using allocator_type = internal::ArenaAllocator<std::string>;
    using List = std::vector<std::string, allocator_type>;
    using value_type = std::string;
    using iterator = List::const_iterator;
    using const_iterator = List::const_iterator;

    Names() = default;
    explicit Names(const allocator_type& allocator) : m_names(allocator) {}
    Names(Names&& other, const allocator_type& allocator)
        : m_names(std::move(other.m_names), allocator), m_firstBytes(other.m_firstBytes) {}
    Names(std::initializer_list<std::string> names) : m_names(names) {
        for (const std::string& name : names) {
            addFirstBytes(name);
        }
    }

    allocator_type get_allocator() const { return m_names.get_allocator(); }
    void reserve(std::size_t count) { m_names.reserve(count); }

    /// Adds the name that a string is made of.
    template <class... Parts>
    void emplace_back(Parts&&... parts) {
        addFirstBytes(m_names.emplace_back(std::forward<Parts>(parts)...));
    }
    void push_back(std::string name) { emplace_back(std::move(name)); }

    bool empty() const { return m_names.empty(); }
    std::size_t size() const { return m_names.size(); }
    const std::string& front() const { return m_names.front(); }
    const std::string& operator[](std::size_t index) const { return m_names[index]; }
    /// Throws `std::out_of_range` when there is none.
    const std::string& at(std::size_t index) const { return m_names.at(index); }
    const_iterator begin() const { return m_names.begin(); }
    const_iterator end() const { return m_names.end(); }

    /// Two sets of bytes as bits: those that the first words of names begin with, and those that the second
    /// words begin with. Four bytes share each of the 64 bits, so a set may hold bytes that were not added.
    struct Pattern {
        std::uint64_t firstWord;
        std::uint64_t secondWord;
    };
    static std::uint64_t bitOf(char byte) { return std::uint64_t(1) << (static_cast<unsigned>(byte) % 64); }
    /// The bit that a name of one word sets in the second set. It is that of '-', which begins no word.
    static constexpr std::uint64_t noWord = std::uint64_t(1) << ('-' % 64);
    static constexpr std::uint64_t anyByte = ~std::uint64_t(0);
    static constexpr Pattern anything = {anyByte, anyByte};

    /// False when no name begins as `pattern` says. True means that one may.
    bool mayFit(const Pattern& pattern) const {
        return (m_firstBytes.firstWord & pattern.firstWord) != 0 &&
               (m_firstBytes.secondWord & pattern.secondWord) != 0;
    }

    friend bool operator==(const Names& left, const Names& right) { return left.m_names == right.m_names; }

private:
    // Takes the byte at which a word starts. For an empty word that is the dash behind it, or the zero behind
    // the name.
    void addFirstBytes(const std::string& name) {
        m_firstBytes.firstWord |= bitOf(name[0]);
        std::size_t wordEnd = 0;
        while (wordEnd < name.size() && name[wordEnd] != '-') {
            ++wordEnd;
        }
        m_firstBytes.secondWord |= wordEnd < name.size() ? bitOf(name[wordEnd + 1]) : noWord;
    }

    List m_names;
    Pattern m_firstBytes = {0, 0};
};

} // namespace tarv_3_3
