#include "recognition/IArgumentParser.h"

#include <cstddef>
#include <memory_resource>
#include <utility>

#include "options/OptionDescription.h"
#include "recognition/messages.h"
#include "tarv_3_3/EventHandler.h"
#include "tarv_3_3/internal/IResultCollector.h"
#include "tarv_3_3/internal/OptionData.h"

namespace tarv_3_3 {

namespace messages = internal::messages;

namespace {

constexpr std::size_t usualElements = 1;

} // namespace

int IArgumentParser::m_idx = 1;

IArgumentParser::IArgumentParser(EventHandler* handler, Garbage* garbage, unsigned int flags)
    : m_handler(handler), m_garbage(garbage), m_flags(flags) {}

IArgumentParser::~IArgumentParser() = default;

std::string IArgumentParser::formatTokenMessage(std::string& token) {
    return messages::inArgument(token);
}

// Behind the largest index comes the smallest one: a process that lives so long loses the order of its
// positions, and nothing else.
int IArgumentParser::getNewPositionIndex() {
    const int index = m_idx;
    m_idx = static_cast<int>(static_cast<unsigned int>(index) + 1U);
    return index;
}

int IArgumentParser::parseValueAndAddOption(std::string& value, std::string& err,
                                            const OptionDescription& option, std::vector<std::string>& args,
                                            IResultCollector* collector) {
    // Enough for an occurrence with one value; a list takes more from the heap.
    std::byte buffer[256];
    std::pmr::monotonic_buffer_resource arena(buffer, sizeof buffer);
    OptionData data(&arena);
    data.positions.reserve(1);
    data.positions.push_back(getNewPositionIndex());
    if (!value.empty()) {
        log(": adding values to result container:");
        const int status = option.m_tokenizer == 0 ? bindSingleValue(value, err, option, args[0], data)
                                                   : bindList(value, err, option, args[0], data);
        if (status != parseOk) {
            return status;
        }
    }
    if (collector != nullptr) {
        collector->store(option, data);
    }
    log(": stored option to result container.");
    return parseOk;
}

int IArgumentParser::bindSingleValue(std::string& value, std::string& err, const OptionDescription& option,
                                     const std::string& argument, OptionData& data) {
    log(": not using tokenizer");
    data.values.reserve(1);
    return bindPiece(value, value, err, option, argument, data);
}

int IArgumentParser::bindList(const std::string& value, std::string& err, const OptionDescription& option,
                              const std::string& argument, OptionData& data) {
    const char separator = option.m_tokenizer;
    log(": using tokenizer on char: '", separator, "'");
    std::size_t start = value.find_first_not_of(separator);
    if (start == std::string::npos) {
        err = messages::noValueParsed(value, option.primaryName());
        log(": ", err);
        return parseFailed;
    }
    data.values.reserve(usualElements);
    while (start != std::string::npos) {
        const std::size_t end = value.find(separator, start);
        std::string piece = value.substr(start, end - start);
        log(": value is: '", piece, "'");
        const int status = bindPiece(piece, value, err, option, argument, data);
        if (status != parseOk) {
            return status;
        }
        log(": sent event on value parsed, option: '", option.primaryName(), "', value: '",
            data.values.back().text, "'");
        start = value.find_first_not_of(separator, end);
    }
    return parseOk;
}

int IArgumentParser::bindPiece(std::string& piece, const std::string& value, std::string& err,
                               const OptionDescription& option, const std::string& argument,
                               OptionData& data) {
    variant_t converted;
    if (!option.validate(piece, converted, err)) {
        err = messages::invalidValue(argument, err);
        log(": ", err);
        return parseFailed;
    }
    const int position = getNewPositionIndex();
    const Value shown(piece.c_str(), converted, position);
    if (!m_handler->onValueParse(option.primaryName().c_str(), shown)) {
        err = messages::vetoedValue(value, option.primaryName(), argument);
        log(err, " One of the handler signaled the value is not valid.");
        return parseVetoed;
    }
    data.values.push_back({piece, std::move(converted), position});
    return parseOk;
}

} // namespace tarv_3_3
