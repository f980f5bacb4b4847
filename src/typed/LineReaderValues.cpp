#include <algorithm>
#include <cstring>

#include "description/terminalText.h"
#include "recognition/tokenSyntax.h"
#include "typed/LineReader.h"
#include "typed/messages.h"

namespace tarv_3_3::typed::engine {

using internal::terminalText;

namespace {

bool isDigit(char byte) {
    return '0' <= byte && byte <= '9';
}

// "-5" and "-.5", with whatever may follow.
bool looksNegative(const std::string& argument) {
    return argument[0] == '-' && (isDigit(argument[1]) || (argument[1] == '.' && isDigit(argument[2])));
}

bool takesNumbers(const Command& command) {
    return std::any_of(command.options.begin(), command.options.end(),
                       [](const auto& option) { return option->isPositional() && option->takesNumbers(); });
}

} // namespace

// An empty value behind '=' or a blank is one, and never the next argument.
void LineReader::readValue(std::size_t place, const Option& option, const ReadArgument& read) {
    const std::string& argument = m_line.arguments[place];
    if (read.token.hasValue) {
        add(option, place, argument.c_str() + read.token.valueStart);
    } else {
        takeNextValue(place, option, argument);
    }
}

void LineReader::takeNextValue(std::size_t place, const Option& option, const std::string& typed) {
    if (place + 1 >= m_end) {
        m_awaiting = &option;
        m_line.complain(messages::valueIsMissing(terminalText(typed)));
    } else if (isValueOf(option, m_line.arguments[place + 1])) {
        add(option, place, m_line.arguments[place + 1].c_str());
        ++m_next;
    } else {
        m_line.complain(messages::valueIsMissing(terminalText(typed)));
    }
}

// What begins with a dash is an option, but for a lone one and for numbers.
bool LineReader::isValueOf(const Option& option, const std::string& argument) const {
    return !beginsWithHyphen(argument) || argument == "-" ||
           (option.takesNumbers() && looksNegative(argument));
}

// "-5" is a number where arguments without a name are numbers, unless it is the name of an option.
bool LineReader::isNumberWord(const std::string& argument) const {
    return looksNegative(argument) && takesNumbers(*m_line.chosen);
}

void LineReader::add(const Option& option, std::size_t place, const char* text) {
    Occurrence occurrence;
    occurrence.option = const_cast<Option*>(&option);
    occurrence.text = text;
    occurrence.place = static_cast<int>(place);
    m_line.occurrences.push_back(occurrence);
    const char separators[] = {option.separator, '\0'};
    const bool isEmpty = text[std::strspn(text, separators)] == '\0';
    if (option.takesValue() && isEmpty && !(option.mayBeEmpty && *text == '\0')) {
        m_line.complain(shownOccurrence(m_line, occurrence) + ": " + messages::isEmpty);
    }
}

} // namespace tarv_3_3::typed::engine
