#include "result/Entries.h"

#include <algorithm>

#include "options/NameOrder.h"

namespace tarv_3_3 {

namespace {

constexpr std::size_t usualNames = 32;

// One by one: when memory runs out, an insertion of several at once may lose what was there before.
void append(OptionData& entry, const OptionData& data) {
    for (const int position : data.positions) {
        entry.positions.push_back(position);
    }
    for (const OptionValue& value : data.values) {
        entry.values.push_back(value);
    }
}

} // namespace

Entries::Entries(std::pmr::monotonic_buffer_resource& memory)
    : m_list(&memory), m_data(&memory), m_names(memory) {
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
            append(ownData(name), data);
        }
    }
}

// A name that stands twice among them shares the data already.
void Entries::storeFirst(const internal::HashedText& firstName, const Names& names, const OptionData& data) {
    const std::size_t first = m_list.size();
    OptionData& shared = m_data.emplace_back(data);
    add(m_names.insert(firstName), shared, 1);
    for (auto name = names.begin() + 1; name != names.end(); ++name) {
        internal::TextSet::Entry& known = m_names.insert(*name);
        if (known.note == 0) {
            add(known, shared, 0);
            ++m_list[first].together;
        } else if (known.note <= first) {
            ownData(known.text()) = data;
        }
    }
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
        last.data = &m_data.emplace_back(*last.data);
        last.together = 1;
    }
}

OptionData& Entries::ownData(const internal::HashedText& name) {
    internal::TextSet::Entry& known = m_names.insert(name);
    if (known.note == 0) {
        add(known, m_data.emplace_back(), 1);
    }
    separate(known.note - 1);
    return *m_list[known.note - 1].data;
}

void Entries::add(internal::TextSet::Entry& name, OptionData& data, std::size_t together) {
    m_list.push_back({name.text(), &data, together});
    name.note = m_list.size();
}

Entries::List Entries::listByName() const {
    List ordered(m_list);
    std::sort(ordered.begin(), ordered.end(), [](const Entry& left, const Entry& right) {
        return NameOrder()(left.name.text, right.name.text);
    });
    return ordered;
}

// A name that is known and has no entry, since memory ran out, has a note of 0.
std::size_t Entries::placeOf(const internal::HashedText& name) const {
    const internal::TextSet::Entry* const known = m_names.find(name);
    return (known != nullptr ? known->note : 0) - 1;
}

const OptionData* Entries::find(std::string_view name) const {
    const std::size_t place = placeOf(name);
    return place != nowhere ? m_list[place].data : nullptr;
}

} // namespace tarv_3_3
