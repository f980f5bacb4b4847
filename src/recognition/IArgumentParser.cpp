#include "recognition/IArgumentParser.h"

#include <algorithm>
#include <utility>

#include "options/OptionDescription.h"
#include "platform/mayHaveThreads.h"
#include "recognition/Binding.h"
#include "recognition/messages.h"
#include "tarv_3_3/EventHandler.h"
#include "tarv_3_3/internal/IResultCollector.h"

namespace tarv_3_3 {

namespace messages = internal::messages;

int IArgumentParser::m_idx = 1;

IArgumentParser::IArgumentParser(EventHandler* handler, Garbage* garbage, unsigned int flags)
    : m_handler(handler), m_name("UndefinedParser"), m_garbage(garbage), m_flags(flags), m_hasListeners(true),
      m_ownBinding(std::make_unique<internal::Binding>(internal::Listeners::some)), m_binding(*m_ownBinding) {
}

IArgumentParser::IArgumentParser(EventHandler* handler, Garbage* garbage, unsigned int flags,
                                 const char* name, internal::Binding& binding)
    : m_handler(handler), m_name(name), m_garbage(garbage), m_flags(flags),
      m_hasListeners(binding.hasListeners()), m_binding(binding) {}

IArgumentParser::~IArgumentParser() = default;

std::string IArgumentParser::formatTokenMessage(std::string& token) {
    return messages::inArgument(token);
}

// Wraps around behind the largest index to the smallest one. Queries that name no range then miss what is
// stored at negative positions.
int IArgumentParser::getNewPositionIndex() {
    if (internal::mayHaveThreads()) {
        return __atomic_fetch_add(&m_idx, 1, __ATOMIC_RELAXED);
    }
    const int index = m_idx;
    m_idx = static_cast<int>(static_cast<unsigned int>(index) + 1U);
    return index;
}

const OptionDescription& IArgumentParser::recordToBind(const std::vector<OptionDescription>& options,
                                                       std::size_t index) {
    const OptionDescription& record = options.at(index);
    const bool mayBeRefined = m_hasListeners && &record == &options.back();
    if (!mayBeRefined) {
        return record;
    }
    m_binding.record = std::make_unique<OptionDescription>(record);
    return *m_binding.record;
}

int IArgumentParser::parseValueAndAddOption(std::string& value, std::string& message,
                                            const OptionDescription& option, std::vector<std::string>& args,
                                            IResultCollector* collector) {
    const int status = bindValue(value, option, args[0], collector, message);
    if (option.m_tokenizer == 0 && !m_binding.occurrence.values.empty()) {
        value = textOf(m_binding.occurrence.values.front());
    }
    return status;
}

int IArgumentParser::bindValue(std::string_view value, const OptionDescription& option,
                               const std::string& argument, IResultCollector* collector,
                               std::string& message) {
    m_binding.occurrence.positions.clear();
    m_binding.occurrence.positions.push_back(getNewPositionIndex());
    m_binding.occurrence.values.clear();
    if (!value.empty()) {
        log(": adding values to result container:");
        const int status = option.m_tokenizer == 0 ? bindSingleValue(value, option, argument, message)
                                                   : bindList(value, option, argument, message);
        if (status != parseOk) {
            return status;
        }
    }
    if (collector != nullptr) {
        collector->store(option, m_binding.occurrence);
    }
    log(": stored option to result container.");
    return parseOk;
}

int IArgumentParser::bindSingleValue(std::string_view value, const OptionDescription& option,
                                     const std::string& argument, std::string& message) {
    log(": not using tokenizer");
    const int status = bindText(value.data(), option, argument, message);
    return status == parseVetoed
               ? failVetoed(textOf(m_binding.occurrence.values.front()), option, argument, message)
               : status;
}

// Makes room for one more value. Where the list has to grow, it grows at once to what the pieces of `rest`
// need: a long list that doubled again and again would use up to three times the memory.
void IArgumentParser::makeRoomForValues(std::string_view rest, char separator) {
    std::vector<OptionValue>& values = m_binding.occurrence.values;
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

int IArgumentParser::bindList(std::string_view value, const OptionDescription& option,
                              const std::string& argument, std::string& message) {
    const char separator = option.m_tokenizer;
    log(": using tokenizer on char: '", separator, "'");
    std::size_t start = value.find_first_not_of(separator);
    if (start == std::string_view::npos) {
        return fail(message, messages::noValueParsed(std::string(value), option.primaryName()));
    }
    while (start != std::string_view::npos) {
        const std::size_t end = std::min(value.find(separator, start), value.size());
        const std::string_view piece = value.substr(start, end - start);
        log(": value is: '", piece, "'");
        makeRoomForValues(value.substr(start), separator);
        const bool isLast = end == value.size();
        const int status = bindText(isLast ? piece.data() : m_binding.piece.assign(piece).c_str(), option,
                                    argument, message);
        if (status != parseOk) {
            return status == parseVetoed ? failVetoed(std::string(value), option, argument, message) : status;
        }
        log(": sent event on value parsed, option: '", option.primaryName(), "', value: '",
            textOf(m_binding.occurrence.values.back()), "'");
        start = value.find_first_not_of(separator, end);
    }
    return parseOk;
}

// Appends one value to the occurrence.
int IArgumentParser::bindText(const char* text, const OptionDescription& option, const std::string& argument,
                              std::string& message) {
    OptionValue& bound = m_binding.occurrence.values.emplace_back();
    if (option.takesAnyText()) {
        bound.value = variant_t(text);
    } else {
        bound.text = text;
        if (!option.validate(bound.text, bound.value, message)) {
            return fail(message, messages::invalidValue(argument, message));
        }
    }
    bound.position = getNewPositionIndex();
    return isAccepted(bound, option) ? parseOk : parseVetoed;
}

bool IArgumentParser::isAccepted(const OptionValue& bound, const OptionDescription& option) {
    if (!m_hasListeners) {
        return true;
    }
    const Value shown(textOf(bound), bound.value, bound.position);
    return m_handler->onValueParse(option.primaryName().c_str(), shown);
}

int IArgumentParser::fail(std::string& message, std::string text) const {
    message = std::move(text);
    log(": ", message);
    return parseFailed;
}

int IArgumentParser::failVetoed(const std::string& value, const OptionDescription& option,
                                const std::string& argument, std::string& message) {
    message = messages::vetoedValue(value, option.primaryName(), argument);
    log(message, " One of the handler signaled the value is not valid.");
    return parseVetoed;
}

} // namespace tarv_3_3
