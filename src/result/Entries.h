#pragma once

#include <cstddef>
#include <deque>
#include <memory_resource>
#include <string_view>
#include <vector>

#include "options/OptionDescription.h"
#include "tarv_3_3/internal/OptionData.h"
#include "tarv_3_3/internal/TextSet.h"

namespace tarv_3_3 {

/// What a result has stored, by option name. Only grows; an entry keeps its place.
///
/// Each name has data of its own, as far as anybody can see. Names that one occurrence brought, and
/// all others since, share it until something tells them apart.
class Entries {
public:
    struct Entry {
        /// Lies in the memory of the entries.
        internal::HashedText name;
        /// That of several entries, where they share it.
        OptionData* data;
        /// How many share it: this entry and those right behind it, which say 0.
        std::size_t together;
    };
    using List = std::pmr::vector<Entry>;

    /// The place of a name that has no entry: one before the first.
    static constexpr auto nowhere = static_cast<std::size_t>(-1);

    /// Everything goes with `memory`, which takes nothing back before.
    explicit Entries(std::pmr::monotonic_buffer_resource& memory);
    Entries(const Entries&) = delete;
    Entries& operator=(const Entries&) = delete;
    ~Entries();

    /// Records one occurrence under each of `names`. The first one alone decides whether it is the
    /// option's first: then `data` replaces what the other names have; else it is appended, apart from
    /// its default. Throws `std::out_of_range` when there are no names.
    void store(const Names& names, const OptionData& data);

    /// The data that `name` shares with no other one from now on; an empty one if it has none. Good
    /// until the next change.
    OptionData& ownData(const internal::HashedText& name);

    std::size_t placeOf(const internal::HashedText& name) const;
    const OptionData& operator[](std::size_t place) const { return *m_list[place].data; }

    /// The data of `name`, null for none.
    const OptionData* find(std::string_view name) const;

    /// All entries in the order in which the names came.
    const List& list() const { return m_list; }
    /// The same, ordered by the bytes of the names.
    List listByName() const;

private:
    void storeFirst(const internal::HashedText& firstName, const Names& names, const OptionData& data);
    bool areTogether(std::size_t place, const Names& names) const;
    void separate(std::size_t place);
    void add(internal::TextSet::Entry& name, OptionData& data, std::size_t together);

    List m_list;
    std::pmr::deque<OptionData> m_data;
    /// Every name with its place plus one.
    internal::TextSet m_names;
};

} // namespace tarv_3_3
