#include <exception>
#include <new>
#include <string_view>

#include "parser/BasicParser.h"
#include "parser/messages.h"
#include "platform/load_file.h"
#include "recognition/SpaceClassifier.h"

namespace tarv_3_3 {

namespace messages = internal::messages;

namespace {

constexpr char optionFileName[] = "option-file";

std::string_view withoutLeadingSpace(std::string_view line, const SpaceClassifier& classifier) {
    std::size_t start = 0;
    while (start < line.size() && classifier.isSpace(line[start])) {
        ++start;
    }
    return line.substr(start);
}

std::string_view withoutCarriageReturns(std::string_view line) {
    while (!line.empty() && line.back() == '\r') {
        line.remove_suffix(1);
    }
    return line;
}

bool isBlankOrComment(std::string_view line) {
    return line.empty() || line.front() == ';' || line.front() == '#';
}

} // namespace

bool BasicParser::addOptionFileOption(const char* description, const char* topic) {
    m_optionFileDeclared = true;
    option(optionFileName, description, vtString, topic);
    return true;
}

int BasicParser::parseStream(const char* text, IParseResult* result) {
    try {
        std::vector<std::string> arguments;
        parseStreamToArgs(text, arguments);
        return parseVector(arguments, result);
    } catch (const std::exception&) {
        return parseException;
    }
}

void BasicParser::parseStreamToArgs(const char* text, std::vector<std::string>& arguments) {
    std::string_view rest = text != nullptr ? text : "";
    // Part of the contract of `IParser::parseStream`.
    if (rest == "-1") {
        rest = "?";
    }
    const SpaceClassifier classifier;
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(line.size() < rest.size() ? line.size() + 1 : line.size());
        const std::string_view argument = withoutCarriageReturns(withoutLeadingSpace(line, classifier));
        if (!isBlankOrComment(argument)) {
            arguments.emplace_back(argument);
        }
    }
}

int BasicParser::readOptionFiles(const std::string& endMarker, IParseResult* result) {
    if (!m_optionFileDeclared || result == nullptr || !result->present(optionFileName, 0, noPosition)) {
        return parseOk;
    }
    Value file = result->get(optionFileName, 0, noPosition);
    for (; file.as<const char*>() != nullptr; file = result->next(optionFileName)) {
        const std::string path = file.as<const char*>();
        std::string contents;
        if (!MERO_2_16::system::load_file(path, contents)) {
            setLastError(messages::unreadableOptionFile(path));
            return parseFileUnreadable;
        }
        std::vector<std::string> arguments;
        parseStreamToArgs(contents.c_str(), arguments);
        const int status = parseUpToMarker(endMarker, arguments, result);
        if (status != parseOk) {
            return status;
        }
    }
    // A query that failed for lack of memory must not be taken for the end of the list.
    if (file.status == valueException) {
        throw std::bad_alloc();
    }
    return parseOk;
}

} // namespace tarv_3_3
