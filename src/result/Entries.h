#pragma once

#include <climits>
#include <cstddef>
#include <limits>
#include <string_view>
#include <utility>
#include <vector>

#include "options/OptionDescription.h"
#include "platform/Arena.h"
#include "platform/SmallVector.h"
#include "platform/TextMap.h"
#include "result/StoredValue.h"
#include "tarv_3_3/internal/OptionData.h"

namespace tarv_3_3::internal {

/// What a result has stored: a map from option names to entries. It only grows, and an entry keeps its index.
///
/// A query sees separate occurrences and values for each name. To save memory, names that were stored
/// together, by an occurrence or a default of one option, share them: they form a group. A group is copied on
/// write, that is, when something is stored under some of its names only.
class Entries {
    struct EntryIndex {
        std::size_t index = noEntry;
    };
    using NameIndex = TextMap<EntryIndex>;

public:
    /// The occurrences and values that one or more names share.
    struct Group {
        Group(Arena& memory, std::size_t first) : positions(memory), values(memory), firstEntry(first) {}

        /// The position index of each occurrence, in the order stored.
        SmallVector<int> positions;
        /// The values of all occurrences, in the order stored.
        SmallVector<StoredValue> values;
        /// Whether the position indices of both lists were stored in ascending order. They were not if a
        /// handler parsed into the same result in the middle of an event, or if the process-wide counter has
        /// wrapped around.
        bool ascends = true;
        int lastPosition = INT_MIN;
        ///@{
        /// The entries of its names: `nameCount` entries from `firstEntry` on. Meaningless for a group that
        /// no entry refers to, which is left where memory ran out or all names moved to another group.
        std::size_t firstEntry;
        std::size_t nameCount = 0;
        ///@}
        /// The group that was made before this one.
        Group* previous = nullptr;
    };
    struct Default {
        bool isEmpty() const { return text.type() != vtString || *text.get<const char*>() == '\0'; }

        variant_t text;
        variant_t value;
        int position = 0;
    };
    class Entry {
    public:
        template <class OwnDefault>
        Entry(const NameIndex::Entry& name, Group& group, OwnDefault&& ownDefault)
            : byDefault(std::forward<OwnDefault>(ownDefault)), m_name(&name), m_group(&group) {}

        /// Lies in the memory of the entries.
        HashedText name() const { return m_name->text(); }

        /// The group of the name, which other entries may share.
        const Group& group() const { return *m_group; }

        /// The default of this name. Names of one group may have different ones.
        Default byDefault;

    private:
        friend class Entries;
        const NameIndex::Entry* m_name;
        Group* m_group;
    };
    using List = std::vector<Entry, ArenaAllocator<Entry>>;

    /// The index of a name that has no entry.
    static constexpr std::size_t noEntry = std::numeric_limits<std::size_t>::max();

    /// All memory comes from `memory`, which must outlive the entries.
    explicit Entries(Arena& memory);
    Entries(const Entries&) = delete;
    Entries& operator=(const Entries&) = delete;
    ~Entries();

    /// Records one occurrence under each of `names`. If the first name has no entry yet, `data` replaces what
    /// the other names have. Otherwise it is appended to what each name has, without its default. Throws
    /// `std::out_of_range` when there are no names.
    void store(const Names& names, const OptionData& data);

    /// Gives each of `names` the default that a call of `makeDefault` returns for it.
    template <class MakeDefault>
    void storeDefaults(const Names& names, MakeDefault makeDefault) {
        Group* group = nullptr;
        for (const std::string& name : names) {
            storeDefault(group, name, makeDefault());
        }
    }

    std::size_t indexOf(const HashedText& name) const;
    const Entry& operator[](std::size_t index) const { return m_entries[index]; }

    /// The entry of `name`, null for none.
    const Entry* find(std::string_view name) const;

    /// All entries in the order in which the names came.
    const List& list() const { return m_entries; }
    /// The same, ordered by the bytes of the names.
    std::vector<const Entry*> listByName() const;

private:
    void storeFirst(NameIndex::Entry& firstName, const Names& names, const OptionData& data);
    bool areGroup(std::size_t first, const Names& names) const;
    void separate(Group& group);
    void storeDefault(Group*& group, const HashedText& name, Default&& byDefault);
    Entry& ownEntry(NameIndex::Entry& name);
    void append(Group& group, const OptionData& data);
    template <class... Parts>
    Group& addGroup(Parts&&... parts);
    template <class OwnDefault>
    Entry& add(NameIndex::Entry& name, Group& group, OwnDefault&& byDefault);

    Arena& m_memory;
    List m_entries;
    Group* m_lastGroup = nullptr;
    /// Maps each name to the index of its entry. A name may lack an entry if memory ran out while it was
    /// stored.
    NameIndex m_names;
};

} // namespace tarv_3_3::internal
