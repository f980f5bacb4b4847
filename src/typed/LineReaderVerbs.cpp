#include <algorithm>

#include "description/terminalText.h"
#include "recognition/NameMatcher.h"
#include "typed/LineReader.h"
#include "typed/lastResort.h"
#include "typed/messages.h"
#include "typed/suggestions.h"

namespace tarv_3_3::typed::engine {

using internal::terminalText;

namespace {

std::vector<std::string> quotedNames(const std::vector<std::string>& names) {
    std::vector<std::string> list;
    list.reserve(names.size());
    for (const std::string& name : names) {
        list.push_back("'" + name + "'");
    }
    return list;
}

} // namespace

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
        refuseVerb(messages::ambiguousVerb(terminalText(word), quotedNames(names)), "");
    } else if (m_line.chosen == &m_program && wishOf(word, m_program) == Wish::help) {
        m_isHelpWished = m_isHelpWished || m_line.wish == Wish::none;
        m_isHelpVerb = true;
    } else {
        refuseVerb(messages::unknownVerb(terminalText(word)), suggestVerb(*m_line.chosen, word));
    }
}

// There is no help of it either. Behind another complaint the word may be a value, and help goes before.
void LineReader::refuseVerb(std::string complaint, std::string advice) {
    m_isLost = true;
    m_isHelpWished = m_isHelpWished && m_line.hasComplaint;
    m_line.complain(std::move(complaint), std::move(advice));
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

} // namespace tarv_3_3::typed::engine
