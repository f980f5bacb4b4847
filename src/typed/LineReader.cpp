#include "typed/LineReader.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

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

bool isDigit(char byte) {
    return '0' <= byte && byte <= '9';
}

// "-5" and "-.5", with whatever may follow.
bool looksNegative(const std::string& argument) {
    return argument.size() > 1 && argument[0] == '-' &&
           (isDigit(argument[1]) || (argument[1] == '.' && argument.size() > 2 && isDigit(argument[2])));
}

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

std::vector<std::string> quotedNames(const std::vector<std::string>& names) {
    std::vector<std::string> list;
    list.reserve(names.size());
    for (const std::string& name : names) {
        list.push_back("'" + name + "'");
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

bool takesNumbers(const Command& command) {
    return std::any_of(command.options.begin(), command.options.end(),
                       [](const auto& option) { return option->isPositional() && option->takesNumbers(); });
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
    if (!m_line.chosen->verbs.empty()) {
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
        m_line.complain(messages::unknownOption(typed.empty() ? terminalText(argument) : typed),
                        suggestOption(*m_line.chosen, argument));
    } else if (m_line.wish == Wish::none) {
        m_line.wish = wish;
    }
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

// A word is a verb as a whole: it is looked up as if it had dashes, which it must not have. Several names of
// one verb are no ambiguity.
void LineReader::enterVerb(std::size_t place) {
    const std::string& word = m_line.arguments[place];
    if (m_isLost) {
        return;
    }
    const std::vector<std::string> names = verbNamesFor(word);
    Command* const verb = names.empty() ? nullptr : m_line.chosen->findVerb(names.front());
    const bool isOne = std::all_of(names.begin(), names.end(), [&](const std::string& name) {
        return m_line.chosen->findVerb(name) == verb;
    });
    if (verb != nullptr && isOne) {
        noteAbbreviation(word, names.front());
        enter(*verb);
    } else if (verb != nullptr) {
        m_isLost = true;
        m_line.complain(messages::ambiguousVerb(terminalText(word), quotedNames(names)));
    } else if (!m_isHelpVerb && m_line.chosen == &m_program && wishOf(word, m_program) == Wish::help) {
        m_isHelpVerb = true;
        m_line.wish = m_line.wish == Wish::none ? Wish::help : m_line.wish;
    } else {
        m_isLost = true;
        m_line.complain(messages::unknownVerb(terminalText(word)), suggestVerb(*m_line.chosen, word));
    }
}

std::vector<std::string> LineReader::verbNamesFor(const std::string& word) const {
    const std::unique_ptr<BasicParser> verbs = makeVerbParser(*m_line.chosen);
    NameMatcher matcher;
    const std::string argument = "--" + word;
    const NameOutcome outcome = matcher.look(argument, verbs->registry().m_options, &verbs->registry());
    if (word.empty() || matcher.token().hasValue || dashLength(word) != 0) {
        return {};
    }
    return outcome == NameOutcome::found ? std::vector<std::string>{std::string(matcher.bestNameIn(argument))}
                                         : matcher.bestNames();
}

void LineReader::finish() {
    checkFront();
    if (m_line.wish != Wish::none) {
        return;
    }
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
