#include <algorithm>
#include <exception>
#include <typeinfo>

#include "parser/BasicParser.h"
#include "parser/commandLine.h"
#include "parser/messages.h"
#include "parser/phaseTwo.h"
#include "platform/logLine.h"
#include "recognition/AbbreviationParser.h"
#include "recognition/ArgumentSpan.h"
#include "recognition/Binding.h"
#include "recognition/PositionalOptionsParser.h"
#include "result/ParseResult.h"

namespace tarv_3_3 {

namespace messages = internal::messages;

namespace {

// The first argument of each command line, stream and option file switches the trace on or off.
void switchLog(std::vector<std::string>& arguments) {
    const bool isOn = !arguments.empty() && arguments.front() == logSwitch;
    __atomic_store_n(&internal::tarvLogEnabled, isOn, __ATOMIC_RELAXED);
    if (isOn) {
        arguments.erase(arguments.begin());
    }
}

} // namespace

int BasicParser::parseArgsVector(int argc, const char* const* argv, IParseResult* result) {
    try {
        return parseArguments(argc, argv, result);
    } catch (const std::exception&) {
        return parseException;
    }
}

int BasicParser::parseArguments(int argc, const char* const* argv, IParseResult* result) {
    if (result != nullptr) {
        std::string message;
        static_cast<ParseResult*>(result)->noteParser(m_number);
        const int status = static_cast<ParseResult*>(result)->applyDefault(m_registry.m_options, message);
        if (status != parseOk) {
            setLastError(message);
            return status;
        }
    }
    if (argc < 2) {
        return parseOk;
    }
    if (argv == nullptr || std::find(argv + 1, argv + argc, nullptr) != argv + argc) {
        return parseException;
    }
    std::vector<std::string> arguments(argv + 1, argv + argc);
    return parseVector(arguments, result);
}

int BasicParser::parseVector(std::vector<std::string>& arguments, IParseResult* result) {
    try {
        const std::string endMarker(endMarkerText);
        int status = parseUpToMarker(endMarker, arguments, result);
        if (status == parseOk) {
            status = readOptionFiles(endMarker, result);
        }
        return status == parseOk ? parse_phase_two(endMarker, arguments, result, m_lastError) : status;
    } catch (const std::exception&) {
        // Needs no memory if the capacity of the last message suffices.
        m_lastError = messages::unidentifiedProblem;
        return parseUnidentified;
    }
}

int BasicParser::parseUpToMarker(const std::string& endMarker, std::vector<std::string>& arguments,
                                 IParseResult* result) {
    const int status = parse_phase_one(endMarker, arguments, result, m_lastError);
    return status == parseOk ? collectNonparsingArguments(endMarker, arguments,
                                                          static_cast<ParseResult*>(result), m_lastError)
                             : status;
}

int BasicParser::parse_phase_one(const std::string& endMarker, std::vector<std::string>& arguments,
                                 IParseResult* result, std::string& message) {
    switchLog(arguments);
    if (result != nullptr) {
        static_cast<ParseResult*>(result)->noteParser(m_number);
    }
    const RegisteredOptionStorage::Pin pin(m_registry);
    const auto flags = static_cast<unsigned int>(m_flags);
    internal::Binding binding(listeners());
    PositionalOptionsParser positional(this, &m_garbage, flags, binding);
    AbbreviationParser abbreviation(this, &m_garbage, flags, binding);
    IResultCollector* const collector = static_cast<ParseResult*>(result);
    const std::vector<OptionDescription>& options = m_registry.m_options;
    internal::ConsumedArguments consumed(arguments);
    while (consumed.count < arguments.size() && arguments[consumed.count] != endMarker) {
        const internal::ArgumentSpan left = consumed.left();
        // Both recognizers are asked, and both trace it. The one of named options has the higher priority.
        const bool mayBePositional = positional.takes(left.front(), options);
        int status = parseOk;
        if (abbreviation.takes(left.front(), m_registry)) {
            status = abbreviation.bind(left, collector, options, message, consumed.count);
        } else if (mayBePositional) {
            status = positional.bind(left, collector, options, message, consumed.count);
        } else {
            status = dropUnknown(left.front(), message, consumed.count);
        }
        if (status != parseOk) {
            return status;
        }
    }
    return parseOk;
}

// Without handlers, the event functions of this class do nothing. A derived class may override them.
internal::Listeners BasicParser::listeners() const {
    return m_handlers.empty() && typeid(*this) == typeid(BasicParser) ? internal::Listeners::none
                                                                      : internal::Listeners::some;
}

int BasicParser::dropUnknown(const std::string& argument, std::string& message, std::size_t& consumed) {
    const bool unknownToAll = onUknownArgument(argument.c_str());
    if (unknownToAll && (m_flags & flagRejectUnknown) != 0) {
        message = messages::unknownArgument(argument);
        return parseFailed;
    }
    internal::writeLogLine("ignoring ", argument);
    ++consumed;
    return parseOk;
}

int BasicParser::collectNonparsingArguments(std::string endMarker, std::vector<std::string>& arguments,
                                            ParseResult* result, std::string& message) {
    const auto marker = std::find(arguments.begin(), arguments.end(), endMarker);
    if (marker == arguments.end()) {
        return parseOk;
    }
    for (auto argument = marker + 1; argument != arguments.end(); ++argument) {
        const int position = IArgumentParser::getNewPositionIndex();
        if (result != nullptr) {
            result->storePlainArgument(*argument, position);
        }
        internal::writeLogLine("collectNonparsingArguments: stored argument: '", *argument, "'");
        if ((m_flags & flagPlainArePositional) != 0) {
            const int status = parseAsPositional(*argument, result, message);
            if (status != parseOk) {
                return status;
            }
        }
    }
    arguments.erase(marker, arguments.end());
    return parseOk;
}

// Behind the end marker, `flagDashIsNotPositional` does not hold.
int BasicParser::parseAsPositional(const std::string& argument, ParseResult* result, std::string& message) {
    if (result != nullptr) {
        result->noteParser(m_number);
    }
    const RegisteredOptionStorage::Pin pin(m_registry);
    internal::Binding binding(listeners());
    PositionalOptionsParser recognizer(
        this, &m_garbage, static_cast<unsigned int>(m_flags & ~flagDashIsNotPositional), binding);
    const bool isTaken = recognizer.takes(argument, m_registry.m_options);
    internal::writeLogLine("collectNonparsingArguments: recognize result: ", isTaken ? 0 : 1,
                           ", message: ", message);
    if (!isTaken) {
        return parseOk;
    }
    std::size_t consumed = 0;
    const int status =
        recognizer.bind({&argument, &argument + 1}, result, m_registry.m_options, message, consumed);
    internal::writeLogLine("collectNonparsingArguments: parse result: ", status, ", message: ", message);
    return status;
}

int BasicParser::parse_phase_two(const std::string& /*endMarker*/, std::vector<std::string>& /*arguments*/,
                                 IParseResult* result, std::string& message) {
    if (result == nullptr) {
        return parseOk;
    }
    const auto& stored = static_cast<const ParseResult&>(*result);
    // If this parser stored everything, every name in the result is declared on it.
    const bool hasNothingToCheck = !m_registry.m_hasActions && stored.isOnlyFrom(m_number);
    return hasNothingToCheck ? static_cast<int>(parseOk) : checkStoredOptions(*this, stored, message);
}

bool BasicParser::isIntersected(const std::set<std::string>& a, const std::set<std::string>& b) const {
    return std::any_of(a.begin(), a.end(), [&](const std::string& element) { return b.count(element) != 0; });
}

} // namespace tarv_3_3
