#pragma once

#include <climits>
#include <cstddef>
#include <deque>
#include <string_view>
#include <vector>

#include "options/OptionDescription.h"
#include "platform/Arena.h"
#include "platform/TextMap.h"
#include "result/StoredValue.h"
#include "tarv_3_3/internal/OptionData.h"

namespace tarv_3_3 {

/// What a result has stored, by option name. Only grows; an entry keeps its place.
///
/// Each name has data of its own, as far as anybody can see. Names that one occurrence brought, and
/// all others since, share it until something tells them apart.
class Entries {
public:
    /// What is known about one option name.
    struct Data {
        explicit Data(internal::Arena& memory) : positions(memory), values(memory) {}
        Data(internal::Arena& memory, const OptionData& given)
            : positions(memory), values(memory), defaultText(given.defaultText),
              defaultValue(given.defaultValue), defaultPosition(given.defaultPosition) {}

        /// The position index of each occurrence, in the order stored.
        std::vector<int, internal::ArenaAllocator<int>> positions;
        /// The values of all occurrences, in the order stored.
        std::vector<StoredValue, internal::ArenaAllocator<StoredValue>> values;
        /// Whether every position index, of both lists, is above the one stored before. It is unless a
        /// handler parses into the same result while it is told of an occurrence, or the counter of the
        /// process has wrapped around.
        bool ascends = true;
        int lastPosition = INT_MIN;
        /// The default as text; empty when there is none.
        std::string defaultText;
        variant_t defaultValue;
        int defaultPosition = 0;
    };
    struct Entry {
        /// Lies in the memory of the entries.
        internal::HashedText name;
        /// That of several entries, where they share it.
        Data* data;
        /// How many share it: this entry and those right behind it, which say 0.
        std::size_t together;
    };
    using List = std::vector<Entry, internal::ArenaAllocator<Entry>>;

    /// The place of a name that has no entry: one before the first.
    static constexpr auto nowhere = static_cast<std::size_t>(-1);

    /// Everything goes with `memory`, which takes nothing back before.
    explicit Entries(internal::Arena& memory);
    Entries(const Entries&) = delete;
    Entries& operator=(const Entries&) = delete;
    ~Entries();

    /// Records one occurrence under each of `names`. The first one alone decides whether it is the
    /// option's first: then `data` replaces what the other names have; else it is appended, apart from
    /// its default. Throws `std::out_of_range` when there are no names.
    void store(const Names& names, const OptionData& data);

    /// The data that `name` shares with no other one from now on; an empty one if it has none. Good
    /// until the next change.
    Data& ownData(const internal::HashedText& name);

    std::size_t placeOf(const internal::HashedText& name) const;
    const Data& operator[](std::size_t place) const { return *m_list[place].data; }

    /// The data of `name`, null for none.
    const Data* find(std::string_view name) const;

    /// All entries in the order in which the names came.
    const List& list() const { return m_list; }
    /// The same, ordered by the bytes of the names.
    List listByName() const;

private:
    void storeFirst(const internal::HashedText& firstName, const Names& names, const OptionData& data);
    bool areTogether(std::size_t place, const Names& names) const;
    void separate(std::size_t place);
    /// Where the entry of a name is in the list.
    struct Place {
        std::size_t place = nowhere;
    };
    using Index = internal::TextMap<Place>;

    void append(Data& entry, const OptionData& data);
    void add(Index::Entry& name, Data& data, std::size_t together);

    internal::Arena& m_memory;
    List m_list;
    std::deque<Data, internal::ArenaAllocator<Data>> m_data;
    Index m_names;
};

} // namespace tarv_3_3
