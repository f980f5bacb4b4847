#include "recognition/AbbreviationParser.h"

#include <string_view>

#include "options/OptionDescription.h"
#include "options/RegisteredOptionStorage.h"
#include "options/findOption.h"
#include "recognition/messages.h"
#include "tarv_3_3/EventHandler.h"

namespace tarv_3_3 {

namespace messages = internal::messages;

namespace {

constexpr const char* parserName = "AbbreviationParser";

std::string quotedNames(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names) {
        if (!list.empty()) {
            list += ", ";
        }
        list.append("'").append(name).append("'");
    }
    return list;
}

} // namespace

AbbreviationParser::AbbreviationParser(EventHandler* handler, Garbage* garbage, unsigned int flags)
    : IArgumentParser(handler, garbage, flags) {
    m_name = parserName;
}

AbbreviationParser::AbbreviationParser(EventHandler* handler, Garbage* garbage, unsigned int flags,
                                       internal::Binding& binding)
    : IArgumentParser(handler, garbage, flags, parserName, binding) {}

AbbreviationParser::~AbbreviationParser() = default;

int AbbreviationParser::getPriority() {
    return -10;
}

int AbbreviationParser::recognize(std::vector<std::string>& args, std::vector<OptionDescription>& options,
                                  std::string& message) {
    return look(args.at(0), options, nullptr, message) == NameOutcome::none ? 1 : 0;
}

bool AbbreviationParser::takes(const std::string& argument, RegisteredOptionStorage& registry) {
    std::string message;
    return look(argument, registry.m_options, &registry, message) != NameOutcome::none;
}

NameOutcome AbbreviationParser::look(const std::string& argument,
                                     const std::vector<OptionDescription>& options,
                                     RegisteredOptionStorage* registry, std::string& message) {
    log(": recognizing argument '", argument, "'");
    if (m_hasListeners) {
        m_matcher.followLocale();
    }
    m_matcher.look(argument, options, registry);
    const NameOutcome outcome = tellOutcome(message);
    if (outcome == NameOutcome::ambiguous) {
        log(": failed to get best match for '", m_matcher.token().nameIn(argument), "' in argument '",
            argument, "':", message);
    } else if (outcome == NameOutcome::found) {
        log(": best match option for '", m_matcher.token().nameIn(argument), "' in argument '", argument,
            "' is '", m_matcher.bestNameIn(argument), "'");
    }
    return outcome;
}

NameOutcome AbbreviationParser::tellOutcome(std::string& message) const {
    const NameOutcome outcome = m_matcher.outcome();
    if (outcome == NameOutcome::ambiguous) {
        message = messages::possibleOptions(quotedNames(m_matcher.bestNames()));
    }
    return outcome;
}

int AbbreviationParser::parse(std::vector<std::string>& args, IResultCollector* collector,
                              std::vector<OptionDescription>& options, unsigned long& index,
                              std::string& message) {
    index = static_cast<unsigned long>(m_matcher.index());
    static_cast<void>(args.at(0));
    internal::ConsumedArguments consumed(args);
    return bind(consumed.left(), collector, options, message, consumed.count);
}

int AbbreviationParser::bind(internal::ArgumentSpan left, IResultCollector* collector,
                             const std::vector<OptionDescription>& options, std::string& message,
                             std::size_t& consumed) {
    const std::string& argument = left.front();
    log(": parsing argument '", argument, "'");
    const std::string_view name = m_matcher.token().nameIn(argument);
    if (!isOptionName(name)) {
        return fail(message, messages::unknownOption(argument));
    }
    if (m_matcher.outcome() == NameOutcome::ambiguous) {
        return fail(message, messages::ambiguousOption(std::string(name), inArgument(argument),
                                                       quotedNames(m_matcher.bestNames())));
    }
    const OptionDescription& option = recordToBind(options, static_cast<std::size_t>(m_matcher.index()));
    log(": detected option: '", option.primaryName(), "'");
    std::string_view value = m_matcher.token().valueIn(argument);
    if (m_matcher.token().hasValue) {
        log(": value from the same argument taken: '", value, "'");
    }
    std::size_t used = 1;
    int status = findValue(option, left, value, used, message);
    if (status != parseOk) {
        return status;
    }
    m_handler->onOptionParse(option.primaryName().c_str());
    log(": sent event on option parsed");
    status = bindValue(value, option, argument, collector, message);
    if (status != parseOk) {
        return status;
    }
    for (std::size_t i = 0; i < used; ++i) {
        log(": removing argument: '", left.first[i], "'");
    }
    consumed += used;
    return parseOk;
}

// Finds the text that the option gets as its value. `value` is the part behind the name at first.
int AbbreviationParser::findValue(const OptionDescription& option, internal::ArgumentSpan left,
                                  std::string_view& value, std::size_t& used, std::string& message) {
    const ValueSource source = valueSource(option.m_type, value, left.next());
    switch (source) {
    case ValueSource::none:
    case ValueSource::sameArgument:
        return parseOk;
    case ValueSource::name:
        value = beginsWithNegation(m_matcher.bestNameIn(left.front())) ? "0" : "1";
        return parseOk;
    case ValueSource::nextArgument:
        log(": no value in the same argument, looking next");
        value = *left.next();
        used = 2;
        log(": got value from the next argument: '", value, "'");
        return parseOk;
    default:
        return refuseValue(source, option, left, message);
    }
}

int AbbreviationParser::refuseValue(ValueSource source, const OptionDescription& option,
                                    internal::ArgumentSpan left, std::string& message) {
    const std::string& name = option.primaryName();
    if (source == ValueSource::unwanted) {
        return fail(message, messages::takesNoValue(name, inArgument(left.front())));
    }
    if (source == ValueSource::unwantedBySwitch) {
        return fail(message, messages::isBoolean(name, inArgument(left.front())));
    }
    log(": no value in the same argument, looking next");
    if (source == ValueSource::nextLooksLikeOption) {
        return fail(message, messages::nextLooksLikeOption(name, *left.next()));
    }
    if (source == ValueSource::nextIsEmpty) {
        log(": got value from the next argument: ''");
    }
    return fail(message, messages::requiresValue(name, inArgument(left.front())));
}

std::string AbbreviationParser::inArgument(std::string argument) {
    return formatTokenMessage(argument);
}

} // namespace tarv_3_3
