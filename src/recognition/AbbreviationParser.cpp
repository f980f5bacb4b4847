#include "recognition/AbbreviationParser.h"

#include <string_view>
#include <utility>

#include "options/OptionDescription.h"
#include "options/RegisteredOptionStorage.h"
#include "options/findOption.h"
#include "recognition/messages.h"
#include "recognition/nameMatching.h"
#include "recognition/tokenSyntax.h"
#include "tarv_3_3/EventHandler.h"

namespace tarv_3_3 {

namespace messages = internal::messages;

namespace {

std::string quotedNames(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names) {
        if (!list.empty()) {
            list += ", ";
        }
        list.append("'").append(name).append("'");
    }
    return list;
}

} // namespace

AbbreviationParser::AbbreviationParser(EventHandler* handler, Garbage* garbage, unsigned int flags)
    : AbbreviationParser(handler, garbage, flags, Listeners::some) {}

AbbreviationParser::AbbreviationParser(EventHandler* handler, Garbage* garbage, unsigned int flags,
                                       Listeners listeners)
    : IArgumentParser(handler, garbage, flags, listeners) {
    m_name = "AbbreviationParser";
}

AbbreviationParser::~AbbreviationParser() = default;

int AbbreviationParser::getPriority() {
    return -10;
}

int AbbreviationParser::recognize(std::vector<std::string>& args, std::vector<OptionDescription>& options,
                                  std::string& err) {
    return look(args.at(0), options, nullptr, err);
}

bool AbbreviationParser::takes(const std::string& argument, RegisteredOptionStorage& registry) {
    std::string message;
    return look(argument, registry.m_options, &registry, message) == 0;
}

int AbbreviationParser::look(const std::string& argument, const std::vector<OptionDescription>& options,
                             RegisteredOptionStorage* registry, std::string& err) {
    log(": recognizing argument '", argument, "'");
    m_optionIndex = -1;
    if (argument.size() < 2 || dashLength(argument) == 0) {
        m_token = Token();
        forgetBest();
        return 1;
    }
    if (m_listeners != Listeners::none) {
        m_classifier.follow();
    }
    m_token = splitToken(argument, m_classifier);
    const std::string_view name = m_token.nameIn(argument);
    if (registry == nullptr || !keepWholeName(name, *registry)) {
        keepBest(name, options);
    }
    const int outcome = findOutcome(err);
    if (outcome == 2) {
        m_optionIndex = -1;
        log(": failed to get best match for '", name, "' in argument '", argument, "':", err);
        return 0;
    }
    if (outcome == 0) {
        log(": best match option for '", name, "' in argument '", argument, "' is '", m_bestNames.front(),
            "'");
    }
    // The record that gave the one best name is also the one that a lookup of that name would find:
    // another one with the same name would have tied with it.
    return outcome;
}

void AbbreviationParser::makeOptionNamesList(std::vector<OptionDescription>& options,
                                             std::vector<DecomposedName>& names) {
    for (const OptionDescription& option : options) {
        forEachCandidate(option, [&](const Candidate& candidate) { names.emplace_back(candidate.text()); });
    }
}

// Only an equal candidate has every word whole, so nothing beats it, and only another equal one ties with
// it. Where there is just one, the table need not be walked.
bool AbbreviationParser::keepWholeName(std::string_view typed, RegisteredOptionStorage& registry) {
    std::size_t index = 0;
    if (!registry.findOnly(typed, index)) {
        return false;
    }
    // Strings take their memory over.
    m_bestNames.resize(1);
    m_bestNames.front() = typed;
    m_optionIndex = static_cast<std::int64_t>(index);
    return true;
}

// What makeOptionNamesList, makeNameMatch and findBest do one after the other, in one pass over the
// table.
void AbbreviationParser::keepBest(std::string_view typed, const std::vector<OptionDescription>& options) {
    forgetBest();
    const Names::Pattern pattern = patternOf(typed);
    for (const OptionDescription& option : options) {
        if (option.m_names.mayFit(pattern)) {
            forEachCandidate(option, [&](const Candidate& candidate) {
                if (isBest(scoreCandidate(typed, candidate))) {
                    m_bestNames.push_back(candidate.text());
                    m_optionIndex = &option - options.data();
                }
            });
        }
    }
}

void AbbreviationParser::makeNameMatch(std::vector<NameMatch>& matches, const DecomposedName& typed,
                                       const std::vector<DecomposedName>& candidates) {
    const std::string typedName = typed.getName();
    for (const DecomposedName& candidate : candidates) {
        const std::string name = candidate.getName();
        const NameScore found = scoreName(typedName, name);
        if (found.score != 0) {
            matches.push_back({found.sameWordCount, found.score, candidate});
        }
    }
}

int AbbreviationParser::findBest(const std::vector<NameMatch>& matches, DecomposedName& best,
                                 std::string& err) {
    forgetBest();
    for (const NameMatch& match : matches) {
        if (isBest({match.m_sameWordCount, match.m_score})) {
            m_bestNames.push_back(match.m_candidate.getName());
        }
    }
    const int outcome = findOutcome(err);
    if (outcome == 0) {
        best = DecomposedName(m_bestNames.front());
    }
    return outcome;
}

void AbbreviationParser::forgetBest() {
    m_bestNames.clear();
    m_bestScore = 0;
}

// Whether a candidate is to be kept; drops those that it beats.
bool AbbreviationParser::isBest(NameScore found) {
    if (!found.sameWordCount || found.score < m_bestScore) {
        return false;
    }
    if (found.score > m_bestScore) {
        m_bestNames.clear();
        m_bestScore = found.score;
    }
    return true;
}

int AbbreviationParser::findOutcome(std::string& err) const {
    if (m_bestNames.size() > 1) {
        err = messages::possibleOptions(quotedNames(m_bestNames));
        return 2;
    }
    return m_bestNames.empty() ? 1 : 0;
}

int AbbreviationParser::parse(std::vector<std::string>& args, IResultCollector* collector,
                              std::vector<OptionDescription>& options, unsigned long& index,
                              std::string& err) {
    index = static_cast<unsigned long>(m_optionIndex);
    args.at(0);
    ConsumedArguments consumed(args);
    return bind(consumed.left(), collector, options, err, consumed.count);
}

int AbbreviationParser::bind(ArgumentSpan left, IResultCollector* collector,
                             const std::vector<OptionDescription>& options, std::string& err,
                             std::size_t& consumed) {
    const std::string& argument = left.front();
    log(": parsing argument '", argument, "'");
    const std::string_view name = m_token.nameIn(argument);
    if (name.empty() || name.front() == '-') {
        return fail(err, messages::unknownOption(argument));
    }
    if (m_bestNames.size() > 1) {
        return fail(err, messages::ambiguousOption(std::string(name), inArgument(argument),
                                                   quotedNames(m_bestNames)));
    }
    const OptionDescription& option = recordToBind(options, static_cast<std::size_t>(m_optionIndex));
    log(": detected option: '", option.primaryName(), "'");
    std::string_view value = m_token.valueIn(argument);
    if (m_token.hasValue) {
        log(": value from the same argument taken: '", value, "'");
    }
    std::size_t used = 1;
    int status = findValue(option, left, value, used, err);
    if (status != parseOk) {
        return status;
    }
    m_handler->onOptionParse(option.primaryName().c_str());
    log(": sent event on option parsed");
    status = bindValue(value, option, argument, collector, err);
    if (status != parseOk) {
        return status;
    }
    for (std::size_t i = 0; i < used; ++i) {
        log(": removing argument: '", left.first[i], "'");
    }
    consumed += used;
    return parseOk;
}

int AbbreviationParser::findValue(const OptionDescription& option, ArgumentSpan left, std::string_view& value,
                                  std::size_t& used, std::string& err) {
    const std::string& argument = left.front();
    if (option.m_type == vtNull) {
        return value.empty() ? static_cast<int>(parseOk)
                             : fail(err, messages::takesNoValue(option.primaryName(), inArgument(argument)));
    }
    if (option.m_type == vtBool) {
        if (!value.empty()) {
            return fail(err, messages::isBoolean(option.primaryName(), inArgument(argument)));
        }
        value = beginsWithNegation(m_bestNames.at(0)) ? "0" : "1";
        return parseOk;
    }
    return value.empty() ? takeNextArgument(option, left, value, used, err) : static_cast<int>(parseOk);
}

int AbbreviationParser::takeNextArgument(const OptionDescription& option, ArgumentSpan left,
                                         std::string_view& value, std::size_t& used, std::string& err) {
    log(": no value in the same argument, looking next");
    const std::string* const next = left.next();
    if (next == nullptr) {
        return fail(err, messages::requiresValue(option.primaryName(), inArgument(left.front())));
    }
    if (beginsWithHyphen(*next)) {
        return fail(err, messages::nextLooksLikeOption(option.primaryName(), *next));
    }
    value = *next;
    used = 2;
    log(": got value from the next argument: '", value, "'");
    if (value.empty()) {
        return fail(err, messages::requiresValue(option.primaryName(), inArgument(left.front())));
    }
    return parseOk;
}

std::string AbbreviationParser::inArgument(std::string argument) {
    return formatTokenMessage(argument);
}

int AbbreviationParser::fail(std::string& err, std::string message) const {
    err = std::move(message);
    log(": ", err);
    return parseFailed;
}

} // namespace tarv_3_3
