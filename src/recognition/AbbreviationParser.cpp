#include "recognition/AbbreviationParser.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "options/OptionDescription.h"
#include "recognition/messages.h"
#include "recognition/tokenSyntax.h"
#include "tarv_3_3/EventHandler.h"

namespace tarv_3_3 {

namespace messages = internal::messages;

namespace {

constexpr std::string_view negation = "no";

std::string negate(const std::string& name) {
    std::string negated(negation);
    return negated.append("-").append(name);
}

bool isPrefix(std::string_view word, std::string_view whole) {
    return whole.substr(0, word.size()) == word;
}

// Sorts out most names of a table at once: no word of a typed name is longer than the candidate's,
// and the first ones begin alike.
class QuickFilter {
public:
    explicit QuickFilter(std::string_view typed)
        : m_size(typed.size()), m_first(typed.empty() ? '-' : typed.front()) {}

    bool mayFit(const std::string& candidate) const {
        return candidate.size() >= m_size && (m_first == '-' || candidate.front() == m_first);
    }

private:
    std::size_t m_size;
    char m_first;
};

struct NameScore {
    bool sameWordCount;
    // 0 when some word does not fit, or the typed name has more words.
    std::int32_t score;
};

// Goes through both names at once; at the end of each typed word skips what the candidate's has more.
NameScore scoreName(std::string_view typed, std::string_view candidate) {
    if (typed == candidate) {
        return {true, 2 * static_cast<std::int32_t>(1 + std::count(typed.begin(), typed.end(), '-'))};
    }
    std::int32_t score = 0;
    std::size_t place = 0;
    for (std::size_t i = 0; i <= typed.size(); ++i, ++place) {
        const bool isLastWord = i == typed.size();
        if (!isLastWord && typed[i] != '-') {
            if (place == candidate.size() || candidate[place] != typed[i]) {
                return {false, 0};
            }
            continue;
        }
        const std::size_t wordEnd = std::min(candidate.find('-', place), candidate.size());
        score += place == wordEnd ? 2 : 1;
        place = wordEnd;
        if (isLastWord == (wordEnd < candidate.size())) {
            // One of the names has more words; what the candidate has more is no misfit.
            return {false, isLastWord ? score : 0};
        }
    }
    return {true, score};
}

std::string quotedNames(const std::vector<AbbreviationParser::NameMatch>& matches) {
    std::string list;
    for (const AbbreviationParser::NameMatch& match : matches) {
        if (!list.empty()) {
            list += ", ";
        }
        list.append("'").append(match.m_candidate.getName()).append("'");
    }
    return list;
}

} // namespace

AbbreviationParser::AbbreviationParser(EventHandler* handler, Garbage* garbage, unsigned int flags)
    : IArgumentParser(handler, garbage, flags) {
    m_name = "AbbreviationParser";
}

AbbreviationParser::~AbbreviationParser() = default;

int AbbreviationParser::getPriority() {
    return -10;
}

int AbbreviationParser::recognize(std::vector<std::string>& args, std::vector<OptionDescription>& options,
                                  std::string& err) {
    const std::string& argument = args.at(0);
    log(": recognizing argument '", argument, "'");
    m_optionIndex = -1;
    m_matches.clear();
    if (argument.size() < 2 || getDashLength(argument, 0) == 0) {
        return 1;
    }
    const Token token = splitToken(argument, m_classifier);
    keepBest(token.name, options);
    const int outcome = findOutcome(err);
    if (outcome == 2) {
        m_optionIndex = -1;
        log(": failed to get best match for '", token.name, "' in argument '", argument, "':", err);
        return 0;
    }
    if (outcome == 0) {
        log(": best match option for '", token.name, "' in argument '", argument, "' is '",
            m_matches.front().m_candidate, "'");
    }
    // The record that gave the one best name is also the one that a lookup of that name would find:
    // another one with the same name would have tied with it.
    return outcome;
}

void AbbreviationParser::makeOptionNamesList(std::vector<OptionDescription>& options,
                                             std::vector<DecomposedName>& names) {
    for (const OptionDescription& option : options) {
        for (const std::string& name : option.m_names) {
            names.emplace_back(name);
            if (option.m_type == vtBool) {
                names.emplace_back(negate(name));
            }
        }
    }
}

// What makeOptionNamesList, makeNameMatch and findBest do one after the other, in one pass over the
// table: only the names that are kept are taken apart.
void AbbreviationParser::keepBest(std::string_view typed, const std::vector<OptionDescription>& options) {
    const std::size_t firstDash = typed.find('-');
    const std::string_view firstWord = typed.substr(0, firstDash);
    const bool mayBeNegated = firstDash != std::string_view::npos && isPrefix(firstWord, negation);
    const QuickFilter filter(typed);
    for (const OptionDescription& option : options) {
        for (const std::string& name : option.m_names) {
            if (filter.mayFit(name)) {
                keepIfBest(typed, name, &option - options.data());
            }
            if (mayBeNegated && option.m_type == vtBool) {
                keepIfBest(typed, negate(name), &option - options.data());
            }
        }
    }
}

void AbbreviationParser::keepIfBest(std::string_view typed, const std::string& name,
                                    std::int64_t optionIndex) {
    const NameScore found = scoreName(typed, name);
    if (isBest(found.sameWordCount, found.score)) {
        m_matches.push_back({true, found.score, DecomposedName(name)});
        m_optionIndex = optionIndex;
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
    m_matches.clear();
    for (const NameMatch& match : matches) {
        if (isBest(match.m_sameWordCount, match.m_score)) {
            m_matches.push_back(match);
        }
    }
    const int outcome = findOutcome(err);
    if (outcome == 0) {
        best = m_matches.front().m_candidate;
    }
    return outcome;
}

// Whether a match is to be kept; drops those that it beats.
bool AbbreviationParser::isBest(bool sameWordCount, std::int32_t score) {
    const std::int32_t bestScore = m_matches.empty() ? 0 : m_matches.front().m_score;
    if (!sameWordCount || score < bestScore) {
        return false;
    }
    if (score > bestScore) {
        m_matches.clear();
    }
    return true;
}

int AbbreviationParser::findOutcome(std::string& err) const {
    if (m_matches.size() > 1) {
        err = messages::possibleOptions(quotedNames(m_matches));
        return 2;
    }
    return m_matches.empty() ? 1 : 0;
}

int AbbreviationParser::parse(std::vector<std::string>& args, IResultCollector* collector,
                              std::vector<OptionDescription>& options, unsigned long& index,
                              std::string& err) {
    index = static_cast<unsigned long>(m_optionIndex);
    log(": parsing argument '", args.at(0), "'");
    const Token token = splitToken(args[0], m_classifier);
    if (token.name.empty() || token.name.front() == '-') {
        return fail(err, messages::unknownOption(args[0]));
    }
    if (m_matches.size() > 1) {
        return fail(err, messages::ambiguousOption(std::string(token.name), formatTokenMessage(args[0]),
                                                   quotedNames(m_matches)));
    }
    const OptionDescription& option = options.at(index);
    std::string value(token.value);
    log(": detected option: '", option.primaryName(), "'");
    if (token.hasValue) {
        log(": value from the same argument taken: '", value, "'");
    }
    std::size_t consumed = 1;
    int status = findValue(option, args, value, consumed, err);
    if (status != parseOk) {
        return status;
    }
    m_handler->onOptionParse(option.primaryName().c_str());
    log(": sent event on option parsed");
    status = parseValueAndAddOption(value, err, option, args, collector);
    if (status != parseOk) {
        return status;
    }
    for (; consumed > 0; --consumed) {
        log(": removing argument: '", args[0], "'");
        args.erase(args.begin());
    }
    return parseOk;
}

int AbbreviationParser::findValue(const OptionDescription& option, std::vector<std::string>& args,
                                  std::string& value, std::size_t& consumed, std::string& err) {
    if (option.m_type == vtNull) {
        return value.empty()
                   ? static_cast<int>(parseOk)
                   : fail(err, messages::takesNoValue(option.primaryName(), formatTokenMessage(args[0])));
    }
    if (option.m_type == vtBool) {
        if (!value.empty()) {
            return fail(err, messages::isBoolean(option.primaryName(), formatTokenMessage(args[0])));
        }
        const std::vector<std::string>& words = m_matches.front().m_candidate.m_words;
        value.assign(1, words.size() > 1 && words.front() == negation ? '0' : '1');
        return parseOk;
    }
    return value.empty() ? takeNextArgument(option, args, value, consumed, err) : static_cast<int>(parseOk);
}

int AbbreviationParser::takeNextArgument(const OptionDescription& option, std::vector<std::string>& args,
                                         std::string& value, std::size_t& consumed, std::string& err) {
    log(": no value in the same argument, looking next");
    if (args.size() < 2) {
        return fail(err, messages::requiresValue(option.primaryName(), formatTokenMessage(args[0])));
    }
    value = args[1];
    if (beginsWithHyphen(value)) {
        return fail(err, messages::nextLooksLikeOption(option.primaryName(), value));
    }
    consumed = 2;
    log(": got value from the next argument: '", value, "'");
    if (value.empty()) {
        return fail(err, messages::requiresValue(option.primaryName(), formatTokenMessage(args[0])));
    }
    return parseOk;
}

int AbbreviationParser::fail(std::string& err, std::string message) const {
    err = std::move(message);
    log(": ", err);
    return parseFailed;
}

} // namespace tarv_3_3
