#include "result/ParseResult.h"

#include <exception>

namespace tarv_3_3 {

IParseResult::~IParseResult() = default;

namespace {

constexpr std::size_t firstBlock = 8192;

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

Value makeValue(int status, const char* text, const variant_t& value, int position) {
    if (status == valueFound) {
        return Value(text, value, position);
    }
    Value none;
    none.status = status;
    return none;
}

} // namespace

ParseResult::ParseResult() : m_memory(firstBlock), m_entries(m_memory), m_freeArgumentCursor(notStarted) {}

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
    return makeValue(status, text, value, position);
}

Value ParseResult::next(const char* /*name*/) {
    char* text = nullptr;
    variant_t value;
    int position = noPosition;
    const int status = statusOf([&] { return continueIteration(&text, value, position); });
    return makeValue(status, text, value, position);
}

int ParseResult::nextPosition() {
    if (m_current == Entries::nowhere || m_positionsCursor >= current().positions.size()) {
        return noPosition;
    }
    return current().positions[m_positionsCursor++];
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
        m_current = Entries::nowhere;
    }
    return status;
}

int ParseResult::findFirst(std::string_view name, char** text, variant_t& value, int lo, int hi,
                           int& position) {
    m_lowerBound = lo;
    m_upperBound = hi;
    m_valuesCursor = 0;
    m_positionsCursor = 0;
    m_current = m_entries.placeOf(name);
    if (m_current == Entries::nowhere) {
        return valueMissing;
    }
    const OptionData& data = current();
    if (data.positions.empty()) {
        if (!isDefaulted(data)) {
            return valueMissing;
        }
        yieldDefault(data, text, value, position);
        return valueFound;
    }
    while (data.positions[m_positionsCursor] < lo || data.positions[m_positionsCursor] >= hi) {
        ++m_positionsCursor;
        if (m_positionsCursor == data.positions.size()) {
            return valueMissing;
        }
    }
    return text == nullptr ? static_cast<int>(valueFound) : continueIteration(text, value, position);
}

int ParseResult::continueIteration(char** text, variant_t& value, int& position) {
    if (m_current == Entries::nowhere) {
        return valueMissing;
    }
    const OptionData& data = current();
    if (isDefaulted(data)) {
        // The state that present() leaves, so that a default is yielded once behind it.
        if (m_lowerBound != noPosition || m_upperBound != noPosition) {
            return valueMissing;
        }
        yieldDefault(data, text, value, position);
        m_lowerBound = 0;
        return valueFound;
    }
    return data.values.empty() ? nextOccurrence(data, position) : nextValue(data, text, value, position);
}

bool ParseResult::isDefaulted(const OptionData& data) {
    return data.positions.empty() && !data.defaultText.empty();
}

void ParseResult::yieldDefault(const OptionData& data, char** text, variant_t& value, int& position) {
    if (text != nullptr) {
        *text = keep(data.defaultText);
    }
    value = data.defaultValue;
    position = data.defaultPosition;
}

int ParseResult::nextValue(const OptionData& data, char** text, variant_t& value, int& position) {
    while (m_valuesCursor < data.values.size() && data.values[m_valuesCursor].position < m_lowerBound) {
        ++m_valuesCursor;
    }
    // The upper bound is inclusive here, exclusive where an iteration starts.
    if (m_valuesCursor >= data.values.size() || data.values[m_valuesCursor].position > m_upperBound) {
        return valueMissing;
    }
    const OptionValue& found = data.values[m_valuesCursor];
    *text = keep(found.text);
    value = found.value;
    position = found.position;
    ++m_valuesCursor;
    return valueFound;
}

int ParseResult::nextOccurrence(const OptionData& data, int& position) {
    if (m_positionsCursor >= data.positions.size()) {
        return valueMissing;
    }
    position = data.positions[m_positionsCursor];
    ++m_positionsCursor;
    return valueFound;
}

int ParseResult::getFirstArgument(const char** text) {
    std::string argument;
    const int status = getFirstArgument(argument);
    if (status == valueFound) {
        *text = keep(argument);
    }
    return status;
}

int ParseResult::getNextArgument(const char** text) {
    std::string argument;
    const int status = getNextArgument(argument);
    if (status == valueFound) {
        *text = keep(argument);
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
    text = keep(m_freeArguments[m_freeArgumentCursor].first);
    ++m_freeArgumentCursor;
    return valueFound;
}

char* ParseResult::keep(const std::string& text) {
    return const_cast<char*>(m_garbage.init(text.c_str()));
}

} // namespace tarv_3_3
