#include "result/ParseResult.h"

#include <exception>

namespace tarv_3_3 {

IParseResult::~IParseResult() = default;

namespace {

// The cursor of plain arguments before the first query. It lies behind the end of any list.
constexpr auto notStarted = static_cast<std::size_t>(-1);

template <class Query>
Value valueOf(Query query) {
    try {
        return query();
    } catch (const std::exception&) {
        Value failed;
        failed.status = valueException;
        return failed;
    }
}

// Hands out what a query found through out-parameters. An occurrence without a value leaves `text` and
// `value` as they are.
int handOut(const Value& found, char** text, variant_t& value, int& position) {
    if (found.status == valueFound) {
        if (found.text != nullptr) {
            *text = const_cast<char*>(found.text);
            value = found.value;
        }
        position = found.position;
    }
    return found.status;
}

} // namespace

ParseResult::ParseResult()
    : m_entries(m_memory), m_iteration(m_entries, m_garbage), m_freeArgumentCursor(notStarted) {}

ParseResult::~ParseResult() = default;

void ParseResult::destroy() {
    delete this;
}

bool ParseResult::present(const char* name, int lo, int hi) {
    if (name == nullptr) {
        m_iteration.end();
        return false;
    }
    if (!m_iteration.find(name, lo, hi)) {
        return false;
    }
    if (m_iteration.foundDefault() != nullptr) {
        m_iteration.makeDefaultDue();
    }
    return true;
}

Value ParseResult::get(const char* name, int lo, int hi) {
    if (name == nullptr) {
        m_iteration.end();
        return Value();
    }
    return first(name, lo, hi);
}

Value ParseResult::next(const char* /*name*/) {
    return valueOf([&] { return m_iteration.next(); });
}

int ParseResult::nextPosition() {
    return m_iteration.nextPosition();
}

int ParseResult::get(const std::string& name, char** text, variant_t& value, int lo, int hi, int& position) {
    if (text != nullptr) {
        return handOut(first(name, lo, hi), text, value, position);
    }
    const bool isFound = m_iteration.find(name, lo, hi);
    if (const internal::Entries::Default* const found = m_iteration.foundDefault()) {
        value = found->value;
        position = found->position;
    }
    return isFound ? valueFound : valueMissing;
}

int ParseResult::next(const std::string& /*name*/, char** text, variant_t& value, int& position) {
    return handOut(ParseResult::next(nullptr), text, value, position);
}

Value ParseResult::first(std::string_view name, int lo, int hi) {
    return valueOf([&] { return m_iteration.first(name, lo, hi); });
}

int ParseResult::getFirstArgument(const char** text) {
    std::string argument;
    const int status = getFirstArgument(argument);
    if (status == valueFound) {
        *text = m_garbage.init(argument.c_str());
    }
    return status;
}

int ParseResult::getNextArgument(const char** text) {
    std::string argument;
    const int status = getNextArgument(argument);
    if (status == valueFound) {
        *text = m_garbage.init(argument.c_str());
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
    text = m_garbage.init(m_freeArguments[m_freeArgumentCursor].first.c_str());
    ++m_freeArgumentCursor;
    return valueFound;
}

} // namespace tarv_3_3
