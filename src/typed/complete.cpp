#include "typed/complete.h"

#include <algorithm>
#include <cstring>

#include "completion/KeptCompletion.h"
#include "tarv_3_3/description.h"
#include "typed/LineReader.h"
#include "typed/Taking.h"
#include "typed/positionals.h"

namespace tarv_3_3::typed::engine {

namespace {

/// What arguments without a name fill. Nobody can type it as a name.
constexpr char slotName[] = " ";

constexpr char hiddenTopic[] = "tarv_hidden";

std::string joinedNames(const std::vector<Option*>& options) {
    std::string list;
    for (const Option* option : options) {
        list.append(list.empty() ? "" : ",").append(option->name());
    }
    return list;
}

// As no mend is needed: "--name=value". A value that is empty decides nothing that follows. What has no name
// is not among the occurrences yet.
std::string writtenOut(const Occurrence& occurrence) {
    const Option& option = *occurrence.option;
    if (option.takesValue() && *occurrence.text == '\0') {
        return "";
    }
    if (option.takesValue()) {
        return "--" + option.name() + "=" + occurrence.text;
    }
    const bool isOff = option.isSwitch() && *occurrence.text == '0';
    return (isOff ? "--no-" : "--") + option.name();
}

void allow(IOption& declared, const Option& option) {
    if (parserKind(option) == vtString) {
        for (const std::string& choice : option.choices) {
            declared.allowValue(choice.c_str());
        }
    }
    declared.tokenize(option.separator);
}

// What shells add by themselves. Numbers, sizes and the like are no names of files.
const char* filesFor(const Option& option) {
    return !option.completeAs.empty()        ? option.completeAs.c_str()
           : option.shape().kind == kindText ? ""
                                             : "none";
}

} // namespace

ProgramCompleter::ProgramCompleter(Command& program, const std::vector<std::string>& words)
    : m_program(program), m_line(program, 0, nullptr) {
    m_line.arguments = words;
    readLine();
}

void ProgramCompleter::readLine() {
    LineReader reader(m_program, m_line);
    reader.readUpToLast();
    m_wordCount = reader.words().size();
    m_isOfLetters = reader.isLastOfLetters();
    m_isOfHelp = reader.isBehindHelp();
    declareLevel();
    if (m_isOfLetters) {
        readLetters(reader);
    }
    m_words.push_back(m_line.arguments.front());
    for (const Occurrence& occurrence : m_line.occurrences) {
        m_words.push_back(writtenOut(occurrence));
    }
    m_words.erase(std::remove(m_words.begin() + 1, m_words.end(), ""), m_words.end());
    if (reader.isBehindMarker()) {
        m_words.emplace_back("--");
    } else if (reader.awaiting() != nullptr && !m_isOfLetters) {
        m_words.push_back("--" + reader.awaiting()->name());
    }
    m_words.push_back(m_writtenLetters + m_line.arguments.back().substr(m_letters.size()));
}

void ProgramCompleter::declareLevel() {
    const Command& command = *m_line.chosen;
    m_parser = std::make_unique<BasicParser>(flagRejectUnknown | flagDashIsNotPositional |
                                             flagPlainArePositional | flagNoLists);
    declarePositional();
    // Actions first: what goes with them names them.
    for (const int role : {roleAction, roleOption}) {
        forEachOptionAbove(command, [&](Option& option) {
            if (option.role == role) {
                declare(option);
            }
        });
    }
    declareLastResort(*m_parser, command);
    addRules();
}

void ProgramCompleter::declare(Option& option) {
    const char* const name = option.name().c_str();
    const char* const topic = option.isHidden ? hiddenTopic : "";
    IOption& declared = option.role == roleAction ? m_parser->action(name, option.text.c_str(), vtNull, topic)
                        : option.actions.empty()
                            ? m_parser->option(name, option.text.c_str(), parserKind(option), topic)
                            : m_parser->modifier(name, joinedNames(option.actions).c_str(),
                                                 option.text.c_str(), parserKind(option), topic);
    for (std::size_t i = 1; i < option.names.size(); ++i) {
        declared.synonym(option.names[i].c_str());
    }
    if (option.takesValue()) {
        allow(declared, option);
        annotate(m_parser.get(), name, "complete", filesFor(option));
    }
    m_known.emplace_back(option.name(), &option);
}

// The word at the cursor goes to one of the positional arguments, or is a verb.
void ProgramCompleter::declarePositional() {
    std::vector<Option*> positionals;
    if (!m_isOfHelp) {
        positionals = positionalsOf(*m_line.chosen);
    }
    Option* filled = nullptr;
    std::size_t end = 0;
    const std::vector<std::size_t> each = shares(positionals, m_wordCount + 1);
    for (std::size_t i = 0; i < positionals.size() && filled == nullptr; ++i) {
        end += each[i];
        filled = m_wordCount < end ? positionals[i] : nullptr;
    }
    if (filled == nullptr && m_line.chosen->verbs.empty()) {
        return;
    }
    IOption& slot = m_parser->option(slotName, "", filled != nullptr ? parserKind(*filled) : vtString, "");
    slot.positional();
    if (filled != nullptr) {
        allow(slot, *filled);
        annotate(m_parser.get(), slotName, "complete", filesFor(*filled));
    }
    m_known.emplace_back(slotName, filled);
}

void ProgramCompleter::addRules() {
    for (const Command* command = m_line.chosen; command != nullptr; command = command->parent) {
        for (const GroupRule& rule : command->rules) {
            addRule(m_parser.get(), rule.kind, joinedNames(rule.options).c_str());
        }
    }
}

const Completion* ProgramCompleter::answer() {
    std::vector<const char*> words;
    for (const std::string& word : m_words) {
        words.push_back(word.c_str());
    }
    const ValueCompleter completer = [](void* context, const char* option, const char* word,
                                        CandidateSink& sink) {
        return static_cast<ProgramCompleter*>(context)->completeValue(option, word, sink);
    };
    m_completion.reset(
        complete(m_parser.get(), static_cast<int>(words.size()), words.data(), completer, this));
    if (m_isOfLetters && m_completion != nullptr) {
        m_completion.reset(completeLetters(*m_completion).release());
    }
    return m_completion.get();
}

bool ProgramCompleter::completeValue(const char* name, const char* word, CandidateSink& sink) {
    const auto known =
        std::find_if(m_known.begin(), m_known.end(), [&](const auto& entry) { return entry.first == name; });
    if (known == m_known.end()) {
        return false;
    }
    if (known->second == nullptr) {
        offerVerbs(word, sink);
        return true;
    }
    Option& option = *known->second;
    const bool isHosts = option.state->completer != nullptr;
    if (isHosts) {
        m_asked = &option;
        m_askedWord = word;
    }
    for (const auto& [value, description] : m_candidates) {
        offerValue(option, value, description, sink);
    }
    // Behind the host's values, which may describe them.
    if (option.takesNumbers()) {
        for (const std::string& choice : option.choices) {
            offerValue(option, choice, "", sink);
        }
    }
    return isHosts || !option.choices.empty();
}

// The parser knows nothing of the numbers that an option takes alone, nor of its range.
void ProgramCompleter::offerValue(Option& option, const std::string& value, const std::string& description,
                                  CandidateSink& sink) {
    Taking taking;
    taking.option = &option;
    if (!option.takesNumbers() || isValue(taking, value.c_str())) {
        sink.add(value.c_str(), description.c_str());
    }
}

// A synonym only where it is begun and the first name is not.
void ProgramCompleter::offerVerbs(const std::string& word, CandidateSink& sink) const {
    for (const std::unique_ptr<Command>& verb : m_line.chosen->verbs) {
        for (const std::string& name : verb->names) {
            if (name.compare(0, word.size(), word) == 0) {
                sink.add(name.c_str(), verb->text.c_str());
                break;
            }
        }
    }
    if (m_line.chosen == &m_program && m_program.findVerb("help") == nullptr) {
        sink.add("help", "Show the help of a verb.");
    }
}

void ProgramCompleter::offer(std::vector<std::pair<std::string, std::string>> candidates) {
    m_candidates = std::move(candidates);
}

} // namespace tarv_3_3::typed::engine
