#include "recognition/AbbreviationParser.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "options/OptionDescription.h"
#include "options/findOption.h"
#include "recognition/messages.h"
#include "recognition/tokenSyntax.h"
#include "tarv_3_3/EventHandler.h"

namespace tarv_3_3 {

namespace messages = internal::messages;

namespace {

constexpr std::string_view negation = "no";

// Goes through the words of a name, without taking it apart.
class WordCursor {
public:
    explicit WordCursor(std::string_view name) : m_name(name) {}

    bool atEnd() const { return m_start > m_name.size(); }

    std::string_view next() {
        const std::size_t end = std::min(m_name.find('-', m_start), m_name.size());
        const std::string_view word = m_name.substr(m_start, end - m_start);
        m_start = end + 1;
        return word;
    }

    std::string_view rest() const { return atEnd() ? std::string_view() : m_name.substr(m_start); }

private:
    std::string_view m_name;
    std::size_t m_start = 0;
};

// 0 when `typed` is no prefix of `whole`.
std::int32_t scoreWord(std::string_view typed, std::string_view whole) {
    if (whole.substr(0, typed.size()) != typed) {
        return 0;
    }
    return typed.size() == whole.size() ? 2 : 1;
}

struct NameScore {
    bool sameWordCount;
    // 0 when some word does not fit, or `typed` has more words.
    std::int32_t score;
};

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

NameScore scoreName(std::string_view typedName, std::string_view candidateName) {
    WordCursor typed(typedName);
    WordCursor candidate(candidateName);
    NameScore result = {false, 0};
    while (!typed.atEnd()) {
        const std::int32_t points = candidate.atEnd() ? 0 : scoreWord(typed.next(), candidate.next());
        if (points == 0) {
            return {false, 0};
        }
        result.score += points;
    }
    result.sameWordCount = candidate.atEnd();
    return result;
}

std::string negate(const std::string& name) {
    return std::string(negation) + "-" + name;
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
    const Token token = splitToken(argument, m_classifier);
    if (argument.size() < 2 || token.dashes == 0) {
        return 1;
    }
    keepBest(token.name, options);
    const int outcome = findOutcome(err);
    if (outcome == 1) {
        return 1;
    }
    if (outcome == 2) {
        log(": failed to get best match for '", token.name, "' in argument '", argument, "':", err);
        return 0;
    }
    const DecomposedName& best = m_matches.front().m_candidate;
    log(": best match option for '", token.name, "' in argument '", argument, "' is '", best, "'");
    unsigned long index = 0;
    if (findOption(best.getName(), index, options) != 0) {
        return 1;
    }
    m_optionIndex = static_cast<std::int64_t>(index);
    return 0;
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
    WordCursor cursor(typed);
    const std::int32_t negationScore = scoreWord(cursor.next(), negation);
    const bool mayBeNegated = negationScore != 0 && !cursor.atEnd();
    const std::string_view behindNegation = cursor.rest();
    const QuickFilter plainFilter(typed);
    const QuickFilter negatedFilter(behindNegation);
    for (const OptionDescription& option : options) {
        for (const std::string& name : option.m_names) {
            if (plainFilter.mayFit(name)) {
                const NameScore found = scoreName(typed, name);
                keepIfBest(found.sameWordCount, found.score, name, false);
            }
            if (mayBeNegated && option.m_type == vtBool && negatedFilter.mayFit(name)) {
                const NameScore found = scoreName(behindNegation, name);
                const std::int32_t score = found.score != 0 ? found.score + negationScore : 0;
                keepIfBest(found.sameWordCount, score, name, true);
            }
        }
    }
}

void AbbreviationParser::keepIfBest(bool sameWordCount, std::int32_t score, const std::string& name,
                                    bool negated) {
    if (isBest(sameWordCount, score)) {
        m_matches.push_back({true, score, DecomposedName(negated ? negate(name) : name)});
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
    if (!sameWordCount || score < bestScore || score == 0) {
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
        return fail(err,
                    messages::ambiguousOption(std::string(token.name), formatTokenMessage(args[0]),
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
        value = words.size() > 1 && words.front() == negation ? "0" : "1";
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
    if (value.compare(0, 1, "-") == 0) {
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
