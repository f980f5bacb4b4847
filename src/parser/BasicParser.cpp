#include "parser/BasicParser.h"

#include <algorithm>
#include <atomic>

#include "parser/Remarks.h"
#include "result/ParseResult.h"

namespace tarv_3_3 {

IParser::~IParser() = default;

namespace {

std::uint64_t nextNumber() {
    static std::atomic<std::uint64_t> next = 0;
    return next.fetch_add(1, std::memory_order_relaxed);
}

} // namespace

BasicParser::BasicParser(int flags) : m_flags(flags), m_number(nextNumber()) {
    m_registry.m_garbage = &m_garbage;
    if ((flags & flagNoLists) != 0) {
        m_registry.m_defaultTokenizer = 0;
    }
}

BasicParser::~BasicParser() = default;

void BasicParser::destroy() {
    delete this;
}

int BasicParser::createResult(IParseResult** result) {
    *result = new ParseResult;
    return parseOk;
}

IOption& BasicParser::option(const char* names, const char* description, das_variant_type_t type,
                             const char* topic) {
    return m_registry.option(names, nullptr, description, false, type, topic);
}

IOption& BasicParser::action(const char* names, const char* description, das_variant_type_t type,
                             const char* topic) {
    return m_registry.action(names, description, type, topic);
}

IOption& BasicParser::modifier(const char* names, const char* tags, const char* description,
                               das_variant_type_t type, const char* topic) {
    return m_registry.modifier(names, tags, description, type, topic);
}

namespace {

bool isDeclaredSo(const OptionDescription& option, bool isAction, const char* topic) {
    return (option.m_kind == Action) == isAction && (topic == nullptr || option.m_topic.first == topic);
}

} // namespace

bool BasicParser::isOptionDeclared(const char* name, bool isAction, const char* topic) {
    if (name == nullptr) {
        return false;
    }
    const std::vector<OptionDescription>& options = m_registry.m_options;
    const std::size_t first = m_registry.indexOfExactName(name);
    return first < options.size() && (isDeclaredSo(options[first], isAction, topic) ||
                                      isOptionDeclared(name, isAction, topic, options));
}

bool BasicParser::isOptionDeclared(const char* name, bool isAction, const char* topic,
                                   const std::vector<OptionDescription>& options) const {
    return std::any_of(options.begin(), options.end(), [&](const OptionDescription& option) {
        const Names& names = option.m_names;
        return isDeclaredSo(option, isAction, topic) &&
               std::find(names.begin(), names.end(), name) != names.end();
    });
}

const char* BasicParser::getErrorDesc() {
    return m_garbage.init(m_lastError.c_str());
}

void BasicParser::setLastError(const std::string& text) {
    m_lastError = text;
}

internal::Remarks& BasicParser::ownRemarks() {
    if (!m_remarks) {
        m_remarks = std::make_unique<internal::Remarks>();
    }
    return *m_remarks;
}

// A null handler may be registered. It is never called.
bool BasicParser::asksHandlers() const {
    return std::any_of(m_handlers.begin(), m_handlers.end(),
                       [](const EventHandler* handler) { return handler != nullptr; });
}

bool BasicParser::addHandler(EventHandler* handler) {
    return m_handlers.insert(handler).second;
}

bool BasicParser::removeHandler(EventHandler* handler) {
    return m_handlers.erase(handler) != 0;
}

// Calls every handler, in order, until `call` returns false. A handler may add or remove handlers while it is
// called, so the next one is looked up in the set after each call.
template <class Call>
void BasicParser::forEachHandler(Call call) {
    for (auto next = m_handlers.begin(); next != m_handlers.end();) {
        EventHandler* const handler = *next;
        if (handler != nullptr && !call(*handler)) {
            return;
        }
        next = m_handlers.upper_bound(handler);
    }
}

bool BasicParser::onOptionParse(const char* name) {
    if (m_handlers.empty()) {
        return true;
    }
    const char* const kept = m_garbage.init(name);
    forEachHandler([&](EventHandler& handler) {
        handler.onOptionParse(kept);
        return true;
    });
    return true;
}

// The first handler that refuses the value is the last one asked. (An unknown argument is shown to all.)
bool BasicParser::onValueParse(const char* name, const Value& value) {
    if (m_handlers.empty()) {
        return true;
    }
    const char* const kept = m_garbage.init(name);
    bool accepted = true;
    forEachHandler([&](EventHandler& handler) {
        accepted = handler.onValueParse(kept, value);
        return accepted;
    });
    return accepted;
}

bool BasicParser::onUknownArgument(const char* argument) {
    if (m_handlers.empty()) {
        return true;
    }
    const char* const kept = m_garbage.init(argument);
    bool unknownToAll = true;
    forEachHandler([&](EventHandler& handler) {
        unknownToAll = handler.onUknownArgument(kept) && unknownToAll;
        return true;
    });
    return unknownToAll;
}

} // namespace tarv_3_3
