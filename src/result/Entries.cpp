#include "result/Entries.h"

#include <algorithm>

#include "options/NameOrder.h"

namespace tarv_3_3::internal {

namespace {

constexpr std::size_t typicalNames = 48;

// Data of an argument has no default.
Entries::Default defaultIn(const OptionData& data) {
    const variant_t text = data.defaultText.empty() ? variant_t() : variant_t(data.defaultText.c_str());
    return {text, data.defaultValue, data.defaultPosition};
}

} // namespace

Entries::Entries(Arena& memory) : m_memory(memory), m_entries(memory), m_names(memory) {
    m_entries.reserve(typicalNames);
}

Entries::~Entries() {
    while (m_lastGroup != nullptr) {
        Group* const group = m_lastGroup;
        m_lastGroup = group->previous;
        group->~Group();
    }
}

// Makes a group in the arena. The destructor of the entries ends it.
template <class... Parts>
Entries::Group& Entries::addGroup(Parts&&... parts) {
    void* const memory = m_memory.take(sizeof(Group), alignof(Group));
    auto* const added = new (memory) Group(std::forward<Parts>(parts)...);
    added->previous = m_lastGroup;
    m_lastGroup = added;
    return *added;
}

void Entries::store(const Names& names, const OptionData& data) {
    NameIndex::Entry& firstName = m_names.insert(names.at(0));
    const std::size_t first = firstName.value.index;
    if (first == noEntry) {
        storeFirst(firstName, names, data);
    } else if (areGroup(first, names)) {
        append(*m_entries[first].m_group, data);
    } else {
        for (const std::string& name : names) {
            append(*ownEntry(m_names.insert(name)).m_group, data);
        }
    }
}

// A name that is repeated among `names` is in the group already.
void Entries::storeFirst(NameIndex::Entry& firstName, const Names& names, const OptionData& data) {
    Group& group = addGroup(m_memory, m_entries.size());
    append(group, data);
    const Default byDefault = defaultIn(data);
    add(firstName, group, byDefault);
    for (auto name = names.begin() + 1; name != names.end(); ++name) {
        NameIndex::Entry& known = m_names.insert(*name);
        if (known.value.index == noEntry) {
            add(known, group, byDefault);
        } else if (known.value.index < group.firstEntry) {
            Entry& entry = ownEntry(known);
            Group& own = addGroup(m_memory, known.value.index);
            own.nameCount = 1;
            append(own, data);
            entry.m_group = &own;
            entry.byDefault = byDefault;
        }
    }
}

// An entry that has to be made joins `group`, which is made for the first of them.
void Entries::storeDefault(Group*& group, const HashedText& name, Default&& byDefault) {
    NameIndex::Entry& known = m_names.insert(name);
    if (known.value.index != noEntry) {
        m_entries[known.value.index].byDefault = std::move(byDefault);
        return;
    }
    if (group == nullptr) {
        group = &addGroup(m_memory, m_entries.size());
    }
    add(known, *group, std::move(byDefault));
}

// Whether `names`, the first of which has the entry `first`, are all the names of a group, in its order.
bool Entries::areGroup(std::size_t first, const Names& names) const {
    const Group& group = m_entries[first].group();
    if (group.firstEntry != first || group.nameCount != names.size()) {
        return false;
    }
    for (std::size_t i = 1; i < names.size(); ++i) {
        if (m_entries[first + i].name().text != names[i]) {
            return false;
        }
    }
    return true;
}

// Gives each name of a group a copy. One by one from the last: when memory runs out, those before it are
// still a group.
void Entries::separate(Group& group) {
    std::size_t end = group.firstEntry + group.nameCount;
    while (group.nameCount > 1) {
        --end;
        Group& own = addGroup(group);
        own.firstEntry = end;
        own.nameCount = 1;
        m_entries[end].m_group = &own;
        --group.nameCount;
    }
}

// The entry of `name`, which from now on is in no group with another one.
Entries::Entry& Entries::ownEntry(NameIndex::Entry& name) {
    if (name.value.index == noEntry) {
        return add(name, addGroup(m_memory, m_entries.size()), Default());
    }
    Entry& entry = m_entries[name.value.index];
    separate(*entry.m_group);
    return entry;
}

// A new entry. Those of a group are added one behind the other.
template <class OwnDefault>
Entries::Entry& Entries::add(NameIndex::Entry& name, Group& group, OwnDefault&& byDefault) {
    const std::size_t index = m_entries.size();
    Entry& added = m_entries.emplace_back(name, group, std::forward<OwnDefault>(byDefault));
    name.value.index = index;
    ++group.nameCount;
    return added;
}

void Entries::append(Group& group, const OptionData& data) {
    const auto note = [&](int position) {
        group.ascends = group.ascends && group.lastPosition < position;
        group.lastPosition = position;
    };
    for (const int position : data.positions) {
        group.positions.emplace_back(position);
        note(position);
    }
    group.values.makeRoom(data.values.size());
    for (const OptionValue& value : data.values) {
        group.values.emplace_back(value, m_memory);
        note(value.position);
    }
}

std::vector<const Entries::Entry*> Entries::listByName() const {
    std::vector<const Entry*> ordered;
    ordered.reserve(m_entries.size());
    for (const Entry& entry : m_entries) {
        ordered.push_back(&entry);
    }
    std::sort(ordered.begin(), ordered.end(), [](const Entry* left, const Entry* right) {
        return NameOrder()(left->name().text, right->name().text);
    });
    return ordered;
}

std::size_t Entries::indexOf(const HashedText& name) const {
    const NameIndex::Entry* const known = m_names.find(name);
    return known != nullptr ? known->value.index : noEntry;
}

const Entries::Entry* Entries::find(std::string_view name) const {
    const std::size_t index = indexOf(name);
    return index != noEntry ? &m_entries[index] : nullptr;
}

} // namespace tarv_3_3::internal
