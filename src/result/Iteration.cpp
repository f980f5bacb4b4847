#include "result/Iteration.h"

#include <algorithm>

#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3::internal {

namespace {

// The index of the first occurrence at a position in [lo, hi); their number when there is none.
std::size_t firstInRange(const Entries::Group& group, int lo, int hi) {
    const auto& positions = group.positions;
    const auto isInRange = [&](int position) { return lo <= position && position < hi; };
    if (isInRange(positions.front())) {
        return 0;
    }
    const int* const found = group.ascends ? std::lower_bound(positions.begin(), positions.end(), lo)
                                           : std::find_if(positions.begin(), positions.end(), isInRange);
    const bool isThere = found != positions.end() && isInRange(*found);
    return static_cast<std::size_t>((isThere ? found : positions.end()) - positions.begin());
}

// The index of the first value, from `index` on, whose position is not below `bound`; their number when there
// is none.
std::size_t firstNotBelow(const Entries::Group& group, std::size_t index, int bound) {
    const auto& values = group.values;
    if (index >= values.size() || values[index].position >= bound) {
        return index;
    }
    const auto isBelow = [&](const StoredValue& value) { return value.position < bound; };
    const StoredValue* const from = values.begin() + index;
    const StoredValue* const found = group.ascends ? std::partition_point(from, values.end(), isBelow)
                                                   : std::find_if_not(from, values.end(), isBelow);
    return static_cast<std::size_t>(found - values.begin());
}

} // namespace

bool Iteration::find(std::string_view name, int lo, int hi) {
    m_lowerBound = lo;
    m_upperBound = hi;
    m_value = 0;
    m_occurrence = 0;
    m_entry = m_entries.indexOf(name);
    if (!hasEntry() || foundDefault() != nullptr) {
        return hasEntry();
    }
    if (!group().positions.empty()) {
        m_occurrence = firstInRange(group(), lo, hi);
    }
    if (m_occurrence == group().positions.size()) {
        end();
    }
    return hasEntry();
}

const Entries::Default* Iteration::foundDefault() const {
    if (!hasEntry() || !group().positions.empty()) {
        return nullptr;
    }
    const Entries::Default& byDefault = m_entries[m_entry].byDefault;
    return byDefault.isEmpty() ? nullptr : &byDefault;
}

Value Iteration::first(std::string_view name, int lo, int hi) {
    if (!find(name, lo, hi)) {
        return Value();
    }
    if (const Entries::Default* const found = foundDefault()) {
        return value(found->text.get<const char*>(), found->value, found->position);
    }
    Value found = next();
    if (found.status != valueFound) {
        end();
    }
    return found;
}

Value Iteration::next() {
    if (!hasEntry()) {
        return Value();
    }
    if (const Entries::Default* const found = foundDefault()) {
        return nextDefault(*found);
    }
    return group().values.empty() ? nextOccurrence() : nextValue();
}

Value Iteration::nextDefault(const Entries::Default& found) {
    if (!isDefaultDue()) {
        return Value();
    }
    Value given = value(found.text.get<const char*>(), found.value, found.position);
    m_lowerBound = 0;
    return given;
}

Value Iteration::nextValue() {
    const auto& values = group().values;
    const std::size_t index = firstNotBelow(group(), m_value, m_lowerBound);
    // Here the upper bound is inclusive. Where an iteration starts, it is exclusive.
    if (index >= values.size() || values[index].position > m_upperBound) {
        return Value();
    }
    const StoredValue& found = values[index];
    const char* const text = m_garbage.init(found.text());
    m_value = index + 1;
    return {text, found.value, found.position};
}

Value Iteration::nextOccurrence() {
    Value given;
    if (m_occurrence < group().positions.size()) {
        given.status = valueFound;
        given.position = nextPosition();
    }
    return given;
}

int Iteration::nextPosition() {
    if (!hasEntry() || m_occurrence >= group().positions.size()) {
        return noPosition;
    }
    const int position = group().positions[m_occurrence];
    ++m_occurrence;
    return position;
}

Value Iteration::value(const char* text, const variant_t& typed, int position) {
    return {m_garbage.init(text), typed, position};
}

} // namespace tarv_3_3::internal
