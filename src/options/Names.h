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

/// The names of one option, the primary one first. Knows with which bytes they begin: whoever looks for
/// a name in a large table need not look at each.
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
            m_firstBytes |= bitOf(name[0]);
        }
    }

    allocator_type get_allocator() const { return m_names.get_allocator(); }
    void reserve(std::size_t count) { m_names.reserve(count); }

    /// Adds the name that a string is made of.
    template <class... Parts>
    void emplace_back(Parts&&... parts) {
        m_firstBytes |= bitOf(m_names.emplace_back(std::forward<Parts>(parts)...)[0]);
    }
    void push_back(std::string name) { emplace_back(std::move(name)); }

    bool empty() const { return m_names.empty(); }
    std::size_t size() const { return m_names.size(); }
    const std::string& front() const { return m_names.front(); }
    const std::string& operator[](std::size_t place) const { return m_names[place]; }
    /// Throws `std::out_of_range` when there is none.
    const std::string& at(std::size_t place) const { return m_names.at(place); }
    const_iterator begin() const { return m_names.begin(); }
    const_iterator end() const { return m_names.end(); }

    /// The bits of the first bytes of all names.
    std::uint64_t firstBytes() const { return m_firstBytes; }
    /// The bit for a byte, which is also that of others.
    static std::uint64_t bitOf(char byte) { return std::uint64_t(1) << (static_cast<unsigned>(byte) % 64); }

    friend bool operator==(const Names& left, const Names& right) { return left.m_names == right.m_names; }

private:
    List m_names;
    std::uint64_t m_firstBytes = 0;
};

} // namespace tarv_3_3
