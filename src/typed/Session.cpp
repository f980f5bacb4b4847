#include "typed/Session.h"

#include <algorithm>
#include <cstring>
#include <unordered_map>
#include <unordered_set>

#include "description/terminalText.h"
#include "typed/LineReader.h"
#include "typed/help.h"
#include "typed/layers.h"
#include "typed/messages.h"
#include "typed/plainValues.h"
#include "typed/rules.h"

namespace tarv_3_3::typed::engine {

using internal::terminalText;

namespace {

// What is given several times on a command line is one number.
void countCounters(CommandLine& line) {
    std::unordered_map<const Option*, int> counts;
    for (Occurrence& occurrence : line.occurrences) {
        if (occurrence.option->isCounter() && occurrence.source == fromCommandLine) {
            occurrence.text = line.keep(std::to_string(++counts[occurrence.option]));
        }
    }
}

// What cuts the value of a list; '\0' for nothing.
char separatorOf(const Occurrence& occurrence) {
    return occurrence.option->isPositional() ? '\0' : occurrence.option->separator;
}

unsigned long countPieces(const Occurrence& occurrence) {
    const char separator = separatorOf(occurrence);
    if (separator == '\0' || std::strchr(occurrence.text, separator) == nullptr) {
        return 1;
    }
    unsigned long count = 0;
    char before = separator;
    for (const char* byte = occurrence.text; *byte != '\0'; before = *byte++) {
        count += *byte != separator && before == separator ? 1 : 0;
    }
    return count;
}

void countElements(const CommandLine& line) {
    for (const Occurrence& occurrence : line.occurrences) {
        if (occurrence.option->isMany() && !occurrence.isOnlyChecked) {
            occurrence.option->elementCount += countPieces(occurrence);
        }
    }
}

void warnOfDeprecated(CommandLine& line) {
    std::unordered_set<const Option*> told;
    for (const Occurrence& occurrence : line.occurrences) {
        const Option& option = *occurrence.option;
        if (option.isDeprecated && !occurrence.isOnlyChecked && told.insert(&option).second) {
            line.warnings.push_back(messages::isDeprecated(calledName(option), option.insteadOfIt));
        }
    }
}

// What it was understood as.
std::string tracedOccurrence(const CommandLine& line, const Occurrence& occurrence) {
    const Option& option = *occurrence.option;
    const bool isWord = option.isPositional() && occurrence.source == fromCommandLine;
    const bool hasValue =
        option.takesValue() || (occurrence.source != fromCommandLine && option.role != roleAction);
    const bool isOff = option.isSwitch() && *occurrence.text == '0';
    const std::string shown =
        isWord ? "'" + terminalText(occurrence.text) + "'" : shownOccurrence(line, occurrence);
    const std::string value = isWord ? "" : hasValue ? terminalText(occurrence.text) : isOff ? "off" : "";
    return messages::isReadAs(shown, calledName(option), value) +
           (occurrence.isOnlyChecked ? messages::isNotUsed : "");
}

} // namespace

Session::Session(Command& program, int argc, const char* const* argv, int purpose)
    : m_program(program), m_purpose(purpose), m_line(program, argc, argv) {
    m_all.reserve(program.options.size());
    forEachOptionBelow(program, [&](Option& option) { m_all.push_back(&option); });
    m_taking.keptTexts = &program.keptTexts;
}

void Session::read() {
    LineReader(m_program, m_line).read();
    if (m_line.wish == Wish::none && !m_line.hasComplaint) {
        readEnvironment(*m_line.chosen, m_line);
        readSettings(m_program, m_line);
    }
    warnOfDeprecated(m_line);
    countCounters(m_line);
    noteGiven(m_program, m_line);
    dropExcluded(m_line);
    countElements(m_line);
}

bool Session::next(bool accepted, Step& step) {
    judge(accepted);
    if (nextRestore(step) || nextTake(step) || nextUndo(step)) {
        return true;
    }
    finish();
    return false;
}

bool Session::nextRestore(Step& step) {
    while (m_restored < m_all.size()) {
        const Option& option = *m_all[m_restored++];
        if (!option.isPlain()) {
            step.kind = stepRestore;
            step.state = option.state;
            return true;
        }
        storePlain(option, option.initial);
    }
    return false;
}

bool Session::nextTake(Step& step) {
    while (m_line.wish == Wish::none && !m_line.hasComplaint && findTake()) {
        startTake(step);
        if (!m_line.occurrences[m_taken].option->isPlain() || takePlain(step)) {
            return true;
        }
    }
    return false;
}

// A refused command line leaves no list with only some of its elements.
bool Session::nextUndo(Step& step) {
    while (m_line.hasComplaint && m_undone < m_all.size()) {
        const Option& option = *m_all[m_undone++];
        if (option.storedCount < option.elementCount) {
            step.kind = stepRestore;
            step.state = option.state;
            return true;
        }
    }
    return false;
}

void Session::startTake(Step& step) {
    const Occurrence& occurrence = m_line.occurrences[m_taken];
    Option& option = *occurrence.option;
    m_taking.option = &option;
    m_taking.mayBeCut = occurrence.source == fromCommandLine;
    m_taking.isRefused = false;
    m_taking.reason.clear();
    m_isTaking = true;
    step.kind = stepTake;
    step.state = option.state;
    step.taking = &m_taking;
    step.text = nextPiece();
    step.mode = occurrence.isOnlyChecked ? takeCheck : option.storedCount > 0 ? takeNext : takeFirst;
    m_taking.place = option.storedCount;
}

// Whether the host's code is needed all the same, to check the value.
bool Session::takePlain(Step& step) {
    const bool isMade = makePlain(m_taking, step.text, m_value);
    if (isMade && step.state->checks != nullptr) {
        step.kind = stepCheck;
        step.value = m_value.bytes;
        return true;
    }
    judge(isMade);
    return false;
}

// Whether there is a value left; the occurrence at hand then has it.
bool Session::findTake() {
    while (m_taken < m_line.occurrences.size()) {
        const Occurrence& occurrence = m_line.occurrences[m_taken];
        const char separator = separatorOf(occurrence);
        if (!m_isWithin) {
            m_rest = occurrence.text;
            m_isWithin = true;
            if (separator == '\0' || m_rest.empty()) {
                return true;
            }
        }
        const std::size_t start =
            separator != '\0' ? m_rest.find_first_not_of(separator) : std::string_view::npos;
        if (start != std::string_view::npos) {
            m_rest.remove_prefix(start);
            return true;
        }
        m_isWithin = false;
        ++m_taken;
    }
    return false;
}

const char* Session::nextPiece() {
    const Occurrence& occurrence = m_line.occurrences[m_taken];
    const char separator = separatorOf(occurrence);
    if (separator == '\0') {
        m_rest = {};
        m_piece = occurrence.text;
        return occurrence.text;
    }
    m_piece = m_rest.substr(0, m_rest.find(separator));
    m_rest.remove_prefix(m_piece.size());
    return m_piece.c_str();
}

void Session::judge(bool accepted) {
    if (!m_isTaking) {
        return;
    }
    m_isTaking = false;
    if (m_taking.isOutOfMemory) {
        m_program.hasParseFailed = true;
    }
    const Occurrence& occurrence = m_line.occurrences[m_taken];
    if (!accepted || m_taking.isRefused) {
        const std::string reason = m_taking.reason.empty() ? messages::isNotValid : m_taking.reason;
        const bool isWhole = m_piece == occurrence.text;
        m_line.complain(shownOccurrence(m_line, occurrence) + ": " +
                        (isWhole ? reason : messages::ofPiece(terminalText(m_piece), reason)));
    } else if (!occurrence.isOnlyChecked) {
        ++m_taking.option->storedCount;
        if (m_taking.option->isPlain()) {
            storePlain(*m_taking.option, m_value);
        }
    }
}

void Session::finish() {
    if (m_isFinished) {
        return;
    }
    m_isFinished = true;
    if (m_line.wish == Wish::none && !m_line.hasComplaint) {
        checkRules(m_line);
    }
    sayAll();
}

void Session::sayTrace() {
    if (!m_program.verbs.empty()) {
        m_errors += m_program.name() + ": " + messages::commandIs(m_line.chosen->path()) + "\n";
    }
    for (const Occurrence& occurrence : m_line.occurrences) {
        m_errors += m_program.name() + ": " + tracedOccurrence(m_line, occurrence) + "\n";
    }
}

void Session::sayAll() {
    if (m_line.isTraced) {
        sayTrace();
    }
    if (m_line.wish == Wish::help) {
        m_output = renderHelp(*m_line.chosen, helpStyle(m_purpose == purposeRun));
        return;
    }
    if (m_line.wish == Wish::version) {
        m_output = m_program.name() + " " + m_program.version + "\n";
        return;
    }
    for (const std::string& warning : m_line.warnings) {
        m_errors += m_program.name() + ": " + warning + "\n";
    }
    if (m_line.hasComplaint) {
        m_errors += m_program.name() + ": " + m_line.complaint + "\n";
        m_errors += m_line.suggestion.empty() ? "" : m_line.suggestion + "\n";
        m_errors += messages::tryHelp(m_line.chosen->path()) + "\n";
    }
}

Result Session::result() {
    Result result = {};
    result.isDone = m_line.wish != Wish::none || m_line.hasComplaint ? 1 : 0;
    result.exitCode = m_line.wish == Wish::none && m_line.hasComplaint ? 2 : 0;
    result.output = m_output.c_str();
    result.errors = m_errors.c_str();
    result.body = result.isDone != 0 ? nullptr : m_line.chosen->body;
    return result;
}

} // namespace tarv_3_3::typed::engine
