#include "typed/LineReader.h"

#include <algorithm>
#include <cstdlib>

#include "description/terminalText.h"
#include "options/findOption.h"
#include "parser/commandLine.h"
#include "recognition/NameMatcher.h"
#include "typed/lastResort.h"
#include "typed/messages.h"
#include "typed/positionals.h"
#include "typed/suggestions.h"

namespace tarv_3_3::typed::engine {

using internal::terminalText;

namespace {

std::string typedName(const std::string& argument, const ReadArgument& read) {
    return terminalText(argument.substr(0, read.token.nameEnd));
}

std::vector<std::string> dashedNames(const std::vector<std::string>& names) {
    std::vector<std::string> list;
    list.reserve(names.size());
    for (const std::string& name : names) {
        list.push_back("'" + dashed(name) + "'");
    }
    return list;
}

Abbreviations wantedAbbreviations() {
    const char* const text = std::getenv("TARV_ABBREVIATIONS");
    const std::string_view wanted = text != nullptr ? text : "";
    return wanted == "error"  ? Abbreviations::areRefused
           : wanted == "warn" ? Abbreviations::areTold
                              : Abbreviations::areTaken;
}

bool hasRest(const Command& command) {
    return std::any_of(command.options.begin(), command.options.end(),
                       [](const auto& option) { return option->role == roleRest; });
}

} // namespace

LineReader::LineReader(Command& program, CommandLine& line)
    : m_program(program), m_line(line), m_end(line.arguments.size()), m_abbreviations(wantedAbbreviations()) {
    enter(program);
}

void LineReader::read() {
    // The switch of the trace is no argument.
    if (m_end > 1 && m_line.arguments[1] == logSwitch) {
        m_line.isTraced = true;
        ++m_next;
    }
    while (m_next < m_end) {
        readArgument(m_next++);
    }
    finish();
}

void LineReader::readUpToLast() {
    m_end = m_line.arguments.size() - 1;
    while (m_next < m_end) {
        readArgument(m_next++);
    }
}

void LineReader::readArgument(std::size_t place) {
    const std::string& argument = m_line.arguments[place];
    if (m_isBehindMarker || m_isInRest || dashLength(argument) == 0 || argument == "-") {
        readWord(place);
    } else if (argument == endMarkerText) {
        m_isBehindMarker = true;
    } else if (areLetters(argument)) {
        if (isNumberWord(argument) && m_line.chosen->findOption(argument.substr(1, 1)) == nullptr) {
            readWord(place);
        } else {
            readLetters(place);
        }
    } else {
        readName(place);
    }
}

void LineReader::readWord(std::size_t place) {
    if (m_isHelpVerb || !m_line.chosen->verbs.empty()) {
        enterVerb(place);
        return;
    }
    m_words.push_back(place);
    m_isInRest = m_isInRest || (m_words.size() == 1 && hasRest(*m_line.chosen));
}

void LineReader::readName(std::size_t place) {
    if (m_areNamesUnique && readWholeName(place)) {
        return;
    }
    const LevelParser& known = level();
    const std::string* const behind =
        place + 1 < m_line.arguments.size() ? &m_line.arguments[place + 1] : nullptr;
    const ReadArgument found = m_reader->look(m_line.arguments[place], behind);
    if (found.role == ArgumentRole::named) {
        readNamed(place, *known.options[found.index], found);
    } else if (readRepeatedLetter(place, found)) {
        return;
    } else if (found.role != ArgumentRole::ambiguous && isNumberWord(m_line.arguments[place])) {
        readWord(place);
    } else {
        readUnfit(place, found);
    }
}

// Nothing beats a whole name, and most are; what the parser would say of it is plain.
bool LineReader::readWholeName(std::size_t place) {
    const std::string& argument = m_line.arguments[place];
    ReadArgument whole;
    whole.token = splitToken(argument, m_spaces);
    const std::string_view typed = whole.token.nameIn(argument);
    const Option* const option = isOptionName(typed) ? findWhole(*m_line.chosen, typed) : nullptr;
    if (option == nullptr) {
        return false;
    }
    whole.name = typed;
    whole.isNegated = option->isSwitch() && beginsWithNegation(typed);
    readNamed(place, *option, whole);
    return true;
}

void LineReader::readNamed(std::size_t place, const Option& option, const ReadArgument& read) {
    const std::string& argument = m_line.arguments[place];
    if (read.isAbbreviated) {
        noteAbbreviation(argument.substr(0, read.token.nameEnd),
                         argument.substr(0, read.token.nameStart) + read.name);
        m_front.push_back({place, &option, argument});
    }
    if (option.takesValue()) {
        readValue(place, option, read);
    } else if (!read.token.valueIn(argument).empty()) {
        m_line.complain(messages::takesNoValue(terminalText(argument), dashed(read.name)));
    } else {
        add(option, place, read.isNegated ? "0" : "1");
    }
}

void LineReader::readUnfit(std::size_t place, const ReadArgument& read) {
    const std::string& argument = m_line.arguments[place];
    const std::string typed = typedName(argument, read);
    if (read.role == ArgumentRole::ambiguous) {
        NameMatcher matcher;
        matcher.look(argument, level().parser->registry().m_options, nullptr);
        m_line.complain(messages::ambiguousOption(typed, dashedNames(matcher.bestNames())));
        return;
    }
    const Wish wish = wishOf(read.token.nameIn(argument), m_program);
    if (wish != Wish::none && read.token.hasValue) {
        m_line.complain(
            messages::takesNoValue(terminalText(argument), wish == Wish::help ? "--help" : "--version"));
    } else if (wish == Wish::none) {
        m_line.complain(messages::unknownOption(typed), suggestOption(*m_line.chosen, argument));
    } else if (m_line.wish == Wish::none) {
        m_line.wish = wish;
    }
}

// Whoever tests scripts asks for whole names.
void LineReader::noteAbbreviation(const std::string& typed, const std::string& whole) {
    if (typed == whole) {
        return;
    }
    if (m_abbreviations == Abbreviations::areRefused) {
        m_line.complain(messages::mustBeWhole(terminalText(typed), whole));
    } else if (m_abbreviations == Abbreviations::areTold) {
        m_line.warnings.push_back(messages::isShortFor(terminalText(typed), whole));
    }
}

void LineReader::enter(Command& command) {
    m_line.chosen = &command;
    m_areNamesUnique = areNamesUnique(command);
    m_reader.reset();
}

LevelParser& LineReader::level() {
    if (m_reader == nullptr) {
        m_level = makeLevelParser(*m_line.chosen);
        m_reader = std::make_unique<Reader>(*m_level.parser);
    }
    return m_level;
}

void LineReader::finish() {
    checkFront();
    m_line.wish = m_isHelpWished ? Wish::help : m_line.wish;
    Command& command = *m_line.chosen;
    if (!command.verbs.empty() && command.body == nullptr) {
        m_line.complain(messages::noVerb);
    }
    distribute(command, m_words, m_line);
}

void LineReader::checkFront() {
    for (const Front& front : m_front) {
        NameMatcher matcher;
        const LevelParser& known = level();
        const NameOutcome outcome =
            matcher.look(front.argument, known.parser->registry().m_options, &known.parser->registry());
        const std::string typed = terminalText(front.argument.substr(0, matcher.token().nameEnd));
        if (outcome == NameOutcome::ambiguous) {
            m_line.complain(messages::ambiguousOption(typed, dashedNames(matcher.bestNames())));
        } else if (outcome == NameOutcome::found &&
                   known.options[static_cast<std::size_t>(matcher.index())] != front.option) {
            m_line.complain(messages::belongsBehindVerb(typed, m_line.chosen->name()));
        }
    }
}

} // namespace tarv_3_3::typed::engine
