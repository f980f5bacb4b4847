#include "explain/explainLine.h"

#include <algorithm>
#include <map>
#include <set>

#include <tarv_3_3/explain.h>

#include "compare/LineQuestion.h"
#include "compare/Side.h"
#include "compare/ValueQuestion.h"
#include "explain/levels.h"
#include "model/mends.h"
#include "model/verbs.h"
#include "text/shellQuoted.h"

namespace tarv_program {

using namespace tarv_3_3;

namespace {

std::string joined(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts) {
        all += (all.empty() ? "" : ", ") + text;
    }
    return all;
}

std::string sourceOf(int source) {
    switch (source) {
    case sourceName:
        return "from its name";
    case sourceSameArgument:
        return "from the same argument";
    case sourceNextArgument:
        return "from the next argument";
    case sourceUnwanted:
    case sourceUnwantedBySwitch:
        return "takes no value";
    case sourceMissing:
        return "its value is missing";
    case sourceNextIsEmpty:
        return "its value is empty";
    case sourceNextLooksLikeOption:
        return "its value is missing: the next argument looks like an option";
    default:
        return "";
    }
}

/// Explains arguments by the parser of one level: the program, or one of its verbs.
class Level {
public:
    explicit Level(const LevelPart& part)
        : m_part(part), m_side(part.side), m_arguments(part.arguments),
          m_words(part.side.wordsOf(part.explanation)) {}

    void add(ExplainedLine& line) {
        for (std::size_t i = 0; i < m_part.count; ++i) {
            line.words.push_back(word(i));
        }
    }

    void addNotGiven(ExplainedLine& line) const {
        for (std::size_t place = 0; place < m_side.line().options.size(); ++place) {
            const Option& option = m_side.option(place);
            const std::string* const variable = option.note("environment");
            if (m_given.count(place) != 0 || option.names.empty() ||
                (!option.defaultText && variable == nullptr)) {
                continue;
            }
            std::string text =
                shellQuoted(option.isSlot() ? option.shownName() : "--" + option.primaryName());
            text += option.defaultText ? " is " + shellQuoted(*option.defaultText) : " has no default";
            text += variable != nullptr ? ", unless " + shellQuoted(*variable) + " is set" : "";
            line.notGiven.push_back(text);
        }
    }

    void judge(ExplainedLine& line) const {
        const LineAnswer answer = askLine(m_side, m_arguments);
        const CommandLine& level = m_side.line();
        const bool isVerbMissing = level.isVerbRequired.value_or(false);
        // Help goes before any complaint.
        line.isAccepted = m_isAnswered || (answer.isAccepted && m_refusedValue.empty() && !isVerbMissing);
        if (m_isMended) {
            line.doubt = "The program mends this before it is parsed; whether it is accepted cannot be told.";
        } else if (line.isAccepted && !m_isAnswered && !level.verbs.empty() && !level.isVerbRequired) {
            line.doubt = "There is no verb; whether the program does without one cannot be told.";
        }
        line.message = answer.isAccepted ? m_refusedValue : answer.message;
        if (line.message.empty() && isVerbMissing) {
            line.message = "a verb is missing";
        }
    }

private:
    ExplainedWord word(std::size_t place) {
        const ExplainedArgument& found = m_part.at(place);
        ExplainedWord word;
        word.argument = shellQuoted(m_arguments[place]);
        const auto asWord = m_words.find(place);
        if (asWord != m_words.end()) {
            explainWord(word, found, asWord->second, m_arguments[place]);
            return word;
        }
        if (found.place >= 0) {
            m_given.insert(static_cast<std::size_t>(found.place));
        }
        switch (found.role) {
        case explainedNamed:
            explainNamed(word, found, place);
            break;
        case explainedValue:
            word.means = "the value of " + titleOf(found.place);
            break;
        case explainedPositional:
            word.means = titleOf(found.place);
            setValue(word, found.place, m_arguments[place]);
            word.remark = "positional";
            break;
        case explainedAmbiguous: {
            std::vector<std::string> names;
            for (unsigned i = 0; i < found.candidateCount; ++i) {
                names.push_back(shellQuoted(std::string("--") + found.candidates[i]));
            }
            word.means = "?";
            word.remark = "ambiguous: " + joined(names);
            break;
        }
        default:
            explainOthers(word, found, place);
        }
        return word;
    }

    void explainWord(ExplainedWord& word, const ExplainedArgument& found, std::size_t option,
                     const std::string& argument) {
        if (option == Side::nowhere) {
            word.means = "?";
            word.remark = "one argument too many";
            return;
        }
        m_given.insert(option);
        word.means = titleOf(static_cast<int>(option));
        setValue(word, static_cast<int>(option), argument);
        if (word.remark.empty()) {
            word.remark =
                found.role == explainedPlain ? "positional, behind the end of options" : "positional";
        }
    }

    void explainOthers(ExplainedWord& word, const ExplainedArgument& found, std::size_t place) {
        static const char* const meanings[] = {
            "switches the trace on",     "", "",        "", "the end of options",
            "behind the end of options", "", "no name", ""};
        word.means = meanings[found.role];
        const std::string mend = mendOf(m_side.line(), m_arguments[place]);
        if (found.role == explainedUnknown && !mend.empty()) {
            word.means = mend == "help" || mend == "version" ? "--" + mend : "?";
            const bool isWhole = m_arguments[place] == "--" + mend || m_arguments[place] == "-h";
            word.remark = word.means == "?" ? "the program mends it: " + mend : isWhole ? "" : "abbreviated";
            m_isMended = m_isMended || word.means == "?";
            m_isAnswered = m_isAnswered || word.means != "?";
        } else if (found.role == explainedUnknown) {
            word.means = "?";
            word.remark = found.isRefused != 0 ? "unknown" : "unknown, and passed over";
        } else if (found.role == explainedPlain && found.place >= 0) {
            word.means = titleOf(found.place);
            word.remark = "positional, behind the end of options";
        }
    }

    void explainNamed(ExplainedWord& word, const ExplainedArgument& found, std::size_t place) {
        const Option& option = m_side.option(static_cast<std::size_t>(found.place));
        const bool isOwnName =
            std::find(option.names.begin(), option.names.end(), found.name) != option.names.end();
        word.means = shellQuoted((isOwnName ? "--" : "--no-") + option.primaryName());
        const std::string& argument = m_arguments[place];
        if (found.source == sourceSameArgument) {
            setValue(word, found.place, argument.substr(found.valueStart));
        } else if (found.source == sourceNextArgument) {
            setValue(word, found.place, m_arguments[place + 1]);
        } else if (found.source == sourceName) {
            word.value = found.isNegated != 0 ? "0" : "1";
        }
        std::vector<std::string> remarks;
        if (word.remark.empty() && !sourceOf(found.source).empty()) {
            remarks.push_back(sourceOf(found.source));
        } else if (!word.remark.empty()) {
            remarks.push_back(word.remark);
        }
        if (found.isAbbreviated != 0) {
            remarks.emplace_back("abbreviated");
        }
        if (const std::string* const instead = option.note("deprecated")) {
            remarks.push_back("deprecated" + (instead->empty() ? "" : "; use " + visible(*instead)));
        }
        word.remark = joined(remarks);
    }

    void setValue(ExplainedWord& word, int place, const std::string& text) {
        const auto values = ValueQuestion(m_side.option(static_cast<std::size_t>(place))).accept(text);
        if (!values) {
            word.value = shellQuoted(text);
            word.remark = "the value is refused";
            // The parser knows nothing of a range, which is the program's to check.
            m_refusedValue = "'" + text + "' is no value of " + titleOf(place);
        } else {
            word.value = shellQuoted(*values);
        }
    }

    std::string titleOf(int place) const {
        const Option& option = m_side.option(static_cast<std::size_t>(place));
        const std::string name = option.shownName();
        return name.empty() ? "positional" : shellQuoted(name);
    }

    const LevelPart& m_part;
    const Side& m_side;
    const std::vector<std::string>& m_arguments;
    const std::map<std::size_t, std::size_t> m_words;
    std::set<std::size_t> m_given;
    std::string m_refusedValue;
    bool m_isMended = false;
    /// By help or the version, which the program has without declaring them.
    bool m_isAnswered = false;
};

void refuseVerb(ExplainedLine& line, const std::string& typed, const Meaning& verb) {
    const bool isAmbiguous = verb.kind == Meaning::several;
    line.words.push_back({shellQuoted(typed), "?", "",
                          isAmbiguous ? "ambiguous: " + visible(joined(verb.candidates)) : "no verb"});
    line.message = "'" + typed + "' is " + (isAmbiguous ? "short for several verbs" : "no verb");
    line.isAccepted = false;
}

void addVerb(ExplainedLine& line, const LevelPart& part) {
    const std::string& typed = part.arguments[part.count];
    if (part.verb.kind == Meaning::one) {
        const CommandLine& verb = part.side.line().verbs[part.verb.place];
        line.words.push_back({shellQuoted(typed), "verb " + shellQuoted(verb.names.front()), "",
                              part.verb.name == typed ? "" : "abbreviated"});
        return;
    }
    refuseVerb(line, typed, part.verb);
}

void addHelpVerb(ExplainedLine& line, const std::string& typed) {
    line.words.push_back({shellQuoted(typed), "verb help", "", typed == "help" ? "" : "abbreviated"});
}

// Verbs stand behind it, one below the other. Behind an option a word may be its value.
void addHelp(ExplainedLine& line, const LevelPart& part) {
    const CommandLine& program = part.side.line();
    const CommandLine* named = &program;
    addHelpVerb(line, part.arguments[part.count]);
    line.isAccepted = true;
    for (std::size_t i = part.count + 1; i < part.arguments.size(); ++i) {
        const std::string& word = part.arguments[i];
        const bool isVerb = named != nullptr && line.isAccepted && word.substr(0, 1) != "-";
        const Meaning verb = isVerb ? Side(verbsAsOptions(*named)).meaningOf(word) : Meaning();
        if (!isVerb) {
            named = nullptr;
            line.words.push_back({shellQuoted(word), "what help is asked for", "", ""});
        } else if (verb.kind == Meaning::one) {
            named = &named->verbs[verb.place];
            line.words.push_back(
                {shellQuoted(word), "what help is asked for", "", verb.name == word ? "" : "abbreviated"});
        } else if (named == &program && asksForHelp(program, word, verb)) {
            addHelpVerb(line, word);
        } else {
            refuseVerb(line, word, verb);
        }
    }
}

} // namespace

ExplainedLine explainLine(const CommandLine& program, const std::vector<std::string>& arguments) {
    ExplainedLine explained;
    forEachLevel(program, arguments, [&](const LevelPart& part) {
        Level level(part);
        level.add(explained);
        if (part.isVerbNext) {
            addVerb(explained, part);
        } else if (part.isHelpNext) {
            addHelp(explained, part);
        } else {
            level.addNotGiven(explained);
            level.judge(explained);
        }
    });
    return explained;
}

std::string table(const ExplainedLine& line) {
    std::vector<ExplainedWord> rows = {{"ARGUMENT", "MEANS", "VALUE", "REMARK"}};
    rows.insert(rows.end(), line.words.begin(), line.words.end());
    std::size_t widths[3] = {};
    for (const ExplainedWord& row : rows) {
        widths[0] = std::max(widths[0], row.argument.size());
        widths[1] = std::max(widths[1], row.means.size());
        widths[2] = std::max(widths[2], row.value.size());
    }
    std::string text;
    const auto cell = [](std::string content, std::size_t width) {
        content.resize(std::max(width, content.size()) + 2, ' ');
        return content;
    };
    for (const ExplainedWord& row : rows) {
        std::string one = cell(row.argument, widths[0]) + cell(row.means, widths[1]) +
                          cell(row.value, widths[2]) + row.remark;
        text += one.erase(one.find_last_not_of(' ') + 1) + "\n";
    }
    for (const std::string& sentence : line.notGiven) {
        text += "Not given: " + sentence + ".\n";
    }
    if (!line.doubt.empty()) {
        return text + line.doubt + "\n";
    }
    return text + (line.isAccepted ? "Accepted.\n" : "Refused: " + visible(line.message) + "\n");
}

} // namespace tarv_program
