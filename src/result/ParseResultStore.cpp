#include <algorithm>

#include "options/NameOrder.h"
#include "options/OptionDescription.h"
#include "recognition/IArgumentParser.h"
#include "result/ParseResult.h"

namespace tarv_3_3 {

namespace {

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

// The first name alone decides whether this is the option's first occurrence.
int ParseResult::store(const OptionDescription& option, const OptionData& data) {
    const Names& names = option.m_names;
    const internal::HashedText firstName(names.at(0));
    const std::size_t first = placeOf(firstName);
    if (first == noEntry) {
        storeFirst(firstName, names, data);
    } else if (areTogether(first, names)) {
        append(*m_options[first].data, data);
    } else {
        for (const std::string& name : names) {
            append(ownData(name), data);
        }
    }
    return 0;
}

// Each name has data of its own, as far as anybody can see: names that are stored together from the
// start to the end share it. A name that the option has twice shares it already.
void ParseResult::storeFirst(const internal::HashedText& firstName, const Names& names,
                             const OptionData& data) {
    const std::size_t first = m_options.size();
    OptionData& shared = m_data.emplace_back(data);
    addEntry(m_names.insert(firstName), shared, 1);
    for (auto name = names.begin() + 1; name != names.end(); ++name) {
        internal::TextSet::Entry& known = m_names.insert(*name);
        if (known.note == 0) {
            addEntry(known, shared, 0);
            ++m_options[first].together;
        } else if (known.note <= first) {
            ownData(known.text()) = data;
        }
    }
}

bool ParseResult::areTogether(std::size_t place, const Names& names) const {
    if (m_options[place].together != names.size()) {
        return false;
    }
    for (std::size_t i = 1; i < names.size(); ++i) {
        if (m_options[place + i].name.text != names[i]) {
            return false;
        }
    }
    return true;
}

// One by one from the last: when memory runs out, those before it still share.
void ParseResult::separate(std::size_t place) {
    while (m_options[place].together == 0) {
        --place;
    }
    Entry& first = m_options[place];
    for (; first.together > 1; --first.together) {
        Entry& last = m_options[place + first.together - 1];
        last.data = &m_data.emplace_back(*last.data);
        last.together = 1;
    }
}

// What only the entry of `name` has, which is made if there is none.
OptionData& ParseResult::ownData(const internal::HashedText& name) {
    internal::TextSet::Entry& known = m_names.insert(name);
    if (known.note == 0) {
        addEntry(known, m_data.emplace_back(), 1);
    }
    separate(known.note - 1);
    return *m_options[known.note - 1].data;
}

void ParseResult::addEntry(internal::TextSet::Entry& name, OptionData& data, std::size_t together) {
    m_options.push_back({name.text(), &data, together});
    name.note = m_options.size();
}

int ParseResult::applyDefault(std::vector<OptionDescription>& options, std::string& /*errorText*/) {
    for (const OptionDescription& option : options) {
        if (option.m_type == vtNull || !option.m_hasDefault) {
            continue;
        }
        for (const std::string& name : option.m_names) {
            OptionData& data = ownData(name);
            // A kind that does not exist has no text.
            data.defaultText = m_garbage.init(option.toString(&m_garbage, option.m_default));
            data.defaultPosition = IArgumentParser::getNewPositionIndex();
            data.defaultValue = option.m_default;
        }
    }
    return 0;
}

ParseResult::Entries ParseResult::entriesByName() const {
    Entries ordered(m_options);
    std::sort(ordered.begin(), ordered.end(), [](const Entry& left, const Entry& right) {
        return NameOrder()(left.name.text, right.name.text);
    });
    return ordered;
}

std::size_t ParseResult::placeOf(const internal::HashedText& name) const {
    const internal::TextSet::Entry* const known = m_names.find(name);
    return known != nullptr && known->note != 0 ? known->note - 1 : noEntry;
}

const OptionData* ParseResult::find(std::string_view name) const {
    const std::size_t place = placeOf(name);
    return place != noEntry ? m_options[place].data : nullptr;
}

void ParseResult::storePlainArgument(const std::string& argument, int position) {
    m_freeArguments.emplace_back(argument, position);
}

} // namespace tarv_3_3
