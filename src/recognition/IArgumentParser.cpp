#include "recognition/IArgumentParser.h"

#include <utility>
#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#endif

#include "options/OptionDescription.h"
#include "recognition/messages.h"
#include "tarv_3_3/EventHandler.h"
#include "tarv_3_3/internal/IResultCollector.h"

namespace tarv_3_3 {

namespace messages = internal::messages;

int IArgumentParser::m_idx = 1;

namespace {

// Whether another thread may be running. To ask costs less than an atomic addition.
bool mayHaveThreads() {
#if __has_include(<sys/single_threaded.h>)
    return __libc_single_threaded == 0;
#else
    return true;
#endif
}

} // namespace

IArgumentParser::IArgumentParser(EventHandler* handler, Garbage* garbage, unsigned int flags)
    : IArgumentParser(handler, garbage, flags, Listeners::some) {}

IArgumentParser::IArgumentParser(EventHandler* handler, Garbage* garbage, unsigned int flags,
                                 Listeners listeners)
    : m_handler(handler), m_garbage(garbage), m_flags(flags), m_listeners(listeners) {}

IArgumentParser::~IArgumentParser() = default;

std::string IArgumentParser::formatTokenMessage(std::string& token) {
    return messages::inArgument(token);
}

// Behind the largest index comes the smallest one: a process that lives so long loses the order of its
// positions, and nothing else.
int IArgumentParser::getNewPositionIndex() {
    if (mayHaveThreads()) {
        return __atomic_fetch_add(&m_idx, 1, __ATOMIC_RELAXED);
    }
    const int index = m_idx;
    m_idx = static_cast<int>(static_cast<unsigned int>(index) + 1U);
    return index;
}

const OptionDescription& IArgumentParser::recordToBind(const OptionDescription& record) {
    if (m_listeners == Listeners::none) {
        return record;
    }
    m_copy = std::make_unique<OptionDescription>(record);
    return *m_copy;
}

int IArgumentParser::parseValueAndAddOption(std::string& value, std::string& err,
                                            const OptionDescription& option, std::vector<std::string>& args,
                                            IResultCollector* collector) {
    m_occurrence.positions.clear();
    m_occurrence.positions.push_back(getNewPositionIndex());
    m_occurrence.values.clear();
    if (!value.empty()) {
        log(": adding values to result container:");
        const int status = option.m_tokenizer == 0 ? bindSingleValue(value, err, option, args[0])
                                                   : bindList(value, err, option, args[0]);
        if (status != parseOk) {
            return status;
        }
    }
    if (collector != nullptr) {
        collector->store(option, m_occurrence);
    }
    log(": stored option to result container.");
    return parseOk;
}

int IArgumentParser::bindSingleValue(std::string& value, std::string& err, const OptionDescription& option,
                                     const std::string& argument) {
    log(": not using tokenizer");
    OptionValue& bound = m_occurrence.values.emplace_back();
    const int status = bindText(value, bound, value, err, option, argument);
    bound.text = value;
    return status;
}

// Room for one more value, and, where it has to be made, for all that the pieces of `rest` will need: a long
// list that grew bit by bit would take up to three times as much.
void IArgumentParser::makeRoomForValues(std::string_view rest, char separator) {
    std::vector<OptionValue>& values = m_occurrence.values;
    if (values.size() < values.capacity()) {
        return;
    }
    std::size_t pieces = 0;
    for (std::size_t start = 0; start != std::string_view::npos;) {
        ++pieces;
        start = rest.find_first_not_of(separator, rest.find(separator, start));
    }
    values.reserve(values.size() + pieces);
}

int IArgumentParser::bindList(const std::string& value, std::string& err, const OptionDescription& option,
                              const std::string& argument) {
    const char separator = option.m_tokenizer;
    log(": using tokenizer on char: '", separator, "'");
    std::size_t start = value.find_first_not_of(separator);
    if (start == std::string::npos) {
        err = messages::noValueParsed(value, option.primaryName());
        log(": ", err);
        return parseFailed;
    }
    while (start != std::string::npos) {
        const std::size_t end = value.find(separator, start);
        makeRoomForValues(std::string_view(value).substr(start), separator);
        OptionValue& bound = m_occurrence.values.emplace_back();
        bound.text.assign(value, start, end - start);
        log(": value is: '", bound.text, "'");
        const int status = bindText(bound.text, bound, value, err, option, argument);
        if (status != parseOk) {
            return status;
        }
        log(": sent event on value parsed, option: '", option.primaryName(), "', value: '", bound.text, "'");
        start = value.find_first_not_of(separator, end);
    }
    return parseOk;
}

int IArgumentParser::bindText(std::string& text, OptionValue& bound, const std::string& value,
                              std::string& err, const OptionDescription& option,
                              const std::string& argument) {
    if (!option.validate(text, bound.value, err)) {
        err = messages::invalidValue(argument, err);
        log(": ", err);
        return parseFailed;
    }
    bound.position = getNewPositionIndex();
    const Value shown(text.c_str(), bound.value, bound.position);
    if (!m_handler->onValueParse(option.primaryName().c_str(), shown)) {
        err = messages::vetoedValue(value, option.primaryName(), argument);
        log(err, " One of the handler signaled the value is not valid.");
        return parseVetoed;
    }
    return parseOk;
}

} // namespace tarv_3_3
