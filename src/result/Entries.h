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
/// Each name has data of its own, as far as anybody can see. Names that came together, with an occurrence
/// or a default of one option, share it until something tells them apart.
class Entries {
public:
    /// What was given to an option.
    struct Data {
        explicit Data(internal::Arena& memory) : positions(memory), values(memory) {}

        /// The position index of each occurrence, in the order stored.
        std::vector<int, internal::ArenaAllocator<int>> positions;
        /// The values of all occurrences, in the order stored.
        std::vector<StoredValue, internal::ArenaAllocator<StoredValue>> values;
        /// Whether every position index, of both lists, is above the one stored before. It is unless a
        /// handler parses into the same result while it is told of an occurrence, or the counter of the
        /// process has wrapped around.
        bool ascends = true;
        int lastPosition = INT_MIN;
    };
    struct Default {
        bool isEmpty() const { return text.type() != vtString || *text.get<const char*>() == '\0'; }

        variant_t text;
        variant_t value;
        int position = 0;
    };
    struct Entry {
        /// Lies in the memory of the entries.
        internal::HashedText name;
        /// That of several entries, where they share it.
        Data* data;
        /// How many share it: this entry and those right behind it, which say 0.
        std::size_t together;
        /// Of the name alone.
        Default byDefault;
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

    /// Gives each of `names` the default that a call of `makeDefault` returns for it.
    template <class MakeDefault>
    void storeDefaults(const Names& names, MakeDefault makeDefault) {
        const std::size_t end = m_list.size();
        for (const std::string& name : names) {
            entryBehind(end, name).byDefault = makeDefault();
        }
    }

    std::size_t placeOf(const internal::HashedText& name) const;
    const Entry& operator[](std::size_t place) const { return m_list[place]; }

    /// The entry of `name`, null for none.
    const Entry* find(std::string_view name) const;

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

    /// The entry of `name`; one that has to be made shares the data of those from `place` on.
    Entry& entryBehind(std::size_t place, const internal::HashedText& name);
    /// The entry of `name`, which from now on shares its data with no other one.
    Entry& ownEntry(const internal::HashedText& name);
    void append(Data& entry, const OptionData& data);
    Entry& add(Index::Entry& name, Data& data, std::size_t together, const Default& byDefault);

    internal::Arena& m_memory;
    List m_list;
    std::deque<Data, internal::ArenaAllocator<Data>> m_data;
    Index m_names;
};

} // namespace tarv_3_3
