#include "result/Entries.h"

#include <algorithm>

#include "options/NameOrder.h"

namespace tarv_3_3 {

namespace {

constexpr std::size_t usualNames = 32;

template <class List>
void makeRoom(List& list, std::size_t more) {
    if (list.capacity() - list.size() < more) {
        list.reserve(std::max(2 * list.capacity(), list.size() + more));
    }
}

// Data that an argument gave has none.
Entries::Default defaultIn(const OptionData& data) {
    const variant_t text = data.defaultText.empty() ? variant_t() : variant_t(data.defaultText.c_str());
    return {text, data.defaultValue, data.defaultPosition};
}

} // namespace

Entries::Entries(internal::Arena& memory)
    : m_memory(memory), m_list(memory), m_data(memory), m_names(memory) {
    m_list.reserve(usualNames);
}

Entries::~Entries() = default;

void Entries::store(const Names& names, const OptionData& data) {
    const internal::HashedText firstName(names.at(0));
    const std::size_t first = placeOf(firstName);
    if (first == nowhere) {
        storeFirst(firstName, names, data);
    } else if (areTogether(first, names)) {
        append(*m_list[first].data, data);
    } else {
        for (const std::string& name : names) {
            append(*ownEntry(name).data, data);
        }
    }
}

// A name that stands twice among them shares the data already.
void Entries::storeFirst(const internal::HashedText& firstName, const Names& names, const OptionData& data) {
    const std::size_t first = m_list.size();
    Data& shared = m_data.emplace_back(m_memory);
    append(shared, data);
    const Default byDefault = defaultIn(data);
    add(m_names.insert(firstName), shared, 1, byDefault);
    for (auto name = names.begin() + 1; name != names.end(); ++name) {
        Index::Entry& known = m_names.insert(*name);
        if (known.value.place == nowhere) {
            add(known, shared, 0, byDefault);
            ++m_list[first].together;
        } else if (known.value.place < first) {
            Entry& entry = ownEntry(known.text());
            *entry.data = Data(m_memory);
            append(*entry.data, data);
            entry.byDefault = byDefault;
        }
    }
}

Entries::Entry& Entries::entryBehind(std::size_t place, const internal::HashedText& name) {
    Index::Entry& known = m_names.insert(name);
    if (known.value.place != nowhere) {
        return m_list[known.value.place];
    }
    if (place == m_list.size()) {
        return add(known, m_data.emplace_back(m_memory), 1, Default());
    }
    Entry& added = add(known, *m_list[place].data, 0, Default());
    ++m_list[place].together;
    return added;
}

bool Entries::areTogether(std::size_t place, const Names& names) const {
    if (m_list[place].together != names.size()) {
        return false;
    }
    for (std::size_t i = 1; i < names.size(); ++i) {
        if (m_list[place + i].name.text != names[i]) {
            return false;
        }
    }
    return true;
}

// One by one from the last: when memory runs out, those before it still share.
void Entries::separate(std::size_t place) {
    while (m_list[place].together == 0) {
        --place;
    }
    Entry& first = m_list[place];
    for (; first.together > 1; --first.together) {
        Entry& last = m_list[place + first.together - 1];
        Data& own = m_data.emplace_back(m_memory);
        own = *last.data;
        last.data = &own;
        last.together = 1;
    }
}

Entries::Entry& Entries::ownEntry(const internal::HashedText& name) {
    Index::Entry& known = m_names.insert(name);
    if (known.value.place == nowhere) {
        add(known, m_data.emplace_back(m_memory), 1, Default());
    }
    separate(known.value.place);
    return m_list[known.value.place];
}

Entries::Entry& Entries::add(Index::Entry& name, Data& data, std::size_t together, const Default& byDefault) {
    Entry& added = m_list.emplace_back(Entry{name.text(), &data, together, byDefault});
    name.value.place = m_list.size() - 1;
    return added;
}

// One by one: when memory runs out, an insertion of several at once may lose what was there before.
void Entries::append(Data& entry, const OptionData& data) {
    const auto note = [&](int position) {
        entry.ascends = entry.ascends && entry.lastPosition < position;
        entry.lastPosition = position;
    };
    for (const int position : data.positions) {
        entry.positions.push_back(position);
        note(position);
    }
    makeRoom(entry.values, data.values.size());
    for (const OptionValue& value : data.values) {
        entry.values.emplace_back(value, m_memory);
        note(value.position);
    }
}

Entries::List Entries::listByName() const {
    List ordered(m_list);
    std::sort(ordered.begin(), ordered.end(), [](const Entry& left, const Entry& right) {
        return NameOrder()(left.name.text, right.name.text);
    });
    return ordered;
}

// A name that is known and has no entry, since memory ran out, is nowhere as well.
std::size_t Entries::placeOf(const internal::HashedText& name) const {
    const Index::Entry* const known = m_names.find(name);
    return known != nullptr ? known->value.place : nowhere;
}

const Entries::Entry* Entries::find(std::string_view name) const {
    const std::size_t place = placeOf(name);
    return place != nowhere ? &m_list[place] : nullptr;
}

} // namespace tarv_3_3
