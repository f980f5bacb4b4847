#include "result/ParseResult.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace tarv_3_3 {

IParseResult::~IParseResult() = default;

namespace {

// The cursor of plain arguments before they were asked for: past any end.
constexpr auto notStarted = static_cast<std::size_t>(-1);

template <class Query>
int statusOf(Query query) {
    try {
        return query();
    } catch (const std::exception&) {
        return valueException;
    }
}

// The place of the first occurrence at a position in [lo, hi); their number when there is none.
std::size_t firstInRange(const Entries::Group& group, int lo, int hi) {
    const auto& positions = group.positions;
    const auto isInRange = [&](int position) { return lo <= position && position < hi; };
    if (isInRange(positions.front())) {
        return 0;
    }
    auto found = positions.end();
    if (group.ascends) {
        const auto candidate = std::lower_bound(positions.begin(), positions.end(), lo);
        found = candidate != positions.end() && isInRange(*candidate) ? candidate : positions.end();
    } else {
        found = std::find_if(positions.begin(), positions.end(), isInRange);
    }
    return static_cast<std::size_t>(found - positions.begin());
}

// The place of the first value, from `place` on, whose position is not below `bound`; their number when there
// is none.
std::size_t firstNotBelow(const Entries::Group& group, std::size_t place, int bound) {
    const auto& values = group.values;
    if (place >= values.size() || values[place].position >= bound) {
        return place;
    }
    const auto isBelow = [&](const StoredValue& value) { return value.position < bound; };
    const auto from = values.begin() + static_cast<std::ptrdiff_t>(place);
    const auto found = group.ascends ? std::partition_point(from, values.end(), isBelow)
                                    : std::find_if_not(from, values.end(), isBelow);
    return static_cast<std::size_t>(found - values.begin());
}

Value makeValue(int status, const char* text, variant_t&& value, int position) {
    Value made;
    made.status = status;
    if (status == valueFound) {
        made.text = text;
        made.value = std::move(value);
        made.position = position;
    }
    return made;
}

} // namespace

ParseResult::ParseResult() : m_entries(m_memory), m_freeArgumentCursor(notStarted) {}

ParseResult::~ParseResult() = default;

void ParseResult::destroy() {
    delete this;
}

bool ParseResult::present(const char* name, int lo, int hi) {
    if (name == nullptr) {
        return false;
    }
    variant_t value;
    int position = noPosition;
    const int status = statusOf([&] { return startIteration(name, nullptr, value, lo, hi, position); });
    if (status == valueFound && isDefaulted(current())) {
        m_lowerBound = noPosition;
        m_upperBound = noPosition;
    }
    return status == valueFound;
}

Value ParseResult::get(const char* name, int lo, int hi) {
    if (name == nullptr) {
        return Value();
    }
    char* text = nullptr;
    variant_t value;
    int position = noPosition;
    const int status = statusOf([&] { return startIteration(name, &text, value, lo, hi, position); });
    return makeValue(status, text, std::move(value), position);
}

Value ParseResult::next(const char* /*name*/) {
    char* text = nullptr;
    variant_t value;
    int position = noPosition;
    const int status = statusOf([&] { return continueIteration(&text, value, position); });
    return makeValue(status, text, std::move(value), position);
}

int ParseResult::nextPosition() {
    if (m_current == Entries::noEntry || m_positionsCursor >= current().group().positions.size()) {
        return noPosition;
    }
    return current().group().positions[m_positionsCursor++];
}

int ParseResult::get(const std::string& name, char** text, variant_t& value, int lo, int hi, int& position) {
    return statusOf([&] { return startIteration(name, text, value, lo, hi, position); });
}

int ParseResult::next(const std::string& /*name*/, char** text, variant_t& value, int& position) {
    return statusOf([&] { return continueIteration(text, value, position); });
}

int ParseResult::startIteration(std::string_view name, char** text, variant_t& value, int lo, int hi,
                                int& position) {
    const int status = findFirst(name, text, value, lo, hi, position);
    if (status != valueFound) {
        m_current = Entries::noEntry;
    }
    return status;
}

int ParseResult::findFirst(std::string_view name, char** text, variant_t& value, int lo, int hi,
                           int& position) {
    m_lowerBound = lo;
    m_upperBound = hi;
    m_valuesCursor = 0;
    m_positionsCursor = 0;
    m_current = m_entries.indexOf(name);
    if (m_current == Entries::noEntry) {
        return valueMissing;
    }
    const Entries::Group& group = current().group();
    if (group.positions.empty()) {
        if (!isDefaulted(current())) {
            return valueMissing;
        }
        yieldDefault(current().byDefault, text, value, position);
        return valueFound;
    }
    m_positionsCursor = firstInRange(group, lo, hi);
    if (m_positionsCursor == group.positions.size()) {
        return valueMissing;
    }
    return text == nullptr ? static_cast<int>(valueFound) : continueIteration(text, value, position);
}

int ParseResult::continueIteration(char** text, variant_t& value, int& position) {
    if (m_current == Entries::noEntry) {
        return valueMissing;
    }
    const Entries::Group& group = current().group();
    if (isDefaulted(current())) {
        // The state that present() leaves, so that a default is yielded once behind it.
        if (m_lowerBound != noPosition || m_upperBound != noPosition) {
            return valueMissing;
        }
        yieldDefault(current().byDefault, text, value, position);
        m_lowerBound = 0;
        return valueFound;
    }
    return group.values.empty() ? nextOccurrence(group, position) : nextValue(group, text, value, position);
}

bool ParseResult::isDefaulted(const Entries::Entry& entry) {
    return entry.group().positions.empty() && !entry.byDefault.isEmpty();
}

void ParseResult::yieldDefault(const Entries::Default& found, char** text, variant_t& value, int& position) {
    if (text != nullptr) {
        *text = keep(found.text.get<const char*>());
    }
    value = found.value;
    position = found.position;
}

int ParseResult::nextValue(const Entries::Group& group, char** text, variant_t& value, int& position) {
    m_valuesCursor = firstNotBelow(group, m_valuesCursor, m_lowerBound);
    // The upper bound is inclusive here, exclusive where an iteration starts.
    if (m_valuesCursor >= group.values.size() || group.values[m_valuesCursor].position > m_upperBound) {
        return valueMissing;
    }
    const StoredValue& found = group.values[m_valuesCursor];
    *text = keep(found.text());
    value = found.value;
    position = found.position;
    ++m_valuesCursor;
    return valueFound;
}

int ParseResult::nextOccurrence(const Entries::Group& group, int& position) {
    if (m_positionsCursor >= group.positions.size()) {
        return valueMissing;
    }
    position = group.positions[m_positionsCursor];
    ++m_positionsCursor;
    return valueFound;
}

int ParseResult::getFirstArgument(const char** text) {
    std::string argument;
    const int status = getFirstArgument(argument);
    if (status == valueFound) {
        *text = keep(argument.c_str());
    }
    return status;
}

int ParseResult::getNextArgument(const char** text) {
    std::string argument;
    const int status = getNextArgument(argument);
    if (status == valueFound) {
        *text = keep(argument.c_str());
    }
    return status;
}

int ParseResult::getFirstArgument(std::string& text) {
    if (m_freeArguments.empty()) {
        return valueMissing;
    }
    m_freeArgumentCursor = 0;
    return getNextArgument(text);
}

int ParseResult::getNextArgument(std::string& text) {
    if (m_freeArgumentCursor >= m_freeArguments.size()) {
        return valueMissing;
    }
    text = keep(m_freeArguments[m_freeArgumentCursor].first.c_str());
    ++m_freeArgumentCursor;
    return valueFound;
}

char* ParseResult::keep(const char* text) {
    return const_cast<char*>(m_garbage.init(text));
}

} // namespace tarv_3_3
