#include "recognition/AbbreviationParser.h"

#include <utility>

#include "options/OptionDescription.h"
#include "options/findOption.h"
#include "recognition/messages.h"
#include "recognition/tokenSyntax.h"
#include "tarv_3_3/EventHandler.h"

namespace tarv_3_3 {

namespace messages = internal::messages;

namespace {

bool isPrefix(const std::string& word, const std::string& whole) {
    return whole.compare(0, word.size(), word) == 0;
}

// 0 when some word does not fit.
std::int32_t scoreOf(const DecomposedName& typed, const DecomposedName& candidate) {
    std::int32_t score = 0;
    for (std::size_t i = 0; i < typed.m_words.size(); ++i) {
        const std::string& word = typed.m_words[i];
        const std::string& whole = candidate.m_words[i];
        if (!isPrefix(word, whole)) {
            return 0;
        }
        score += word.size() == whole.size() ? 2 : 1;
    }
    return score;
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
    std::string name;
    std::string value;
    splitOptionValue(argument, &name, &value);

    std::vector<DecomposedName> candidates;
    makeOptionNamesList(options, candidates);
    std::vector<NameMatch> matches;
    makeNameMatch(matches, DecomposedName(name), candidates);
    DecomposedName best{std::string()};
    const int outcome = findBest(matches, best, err);
    if (outcome == 1) {
        return 1;
    }
    if (outcome == 2) {
        log(": failed to get best match for '", name, "' in argument '", argument, "':", err);
        return 0;
    }
    const std::string bestName = best.getName();
    log(": best match option for '", name, "' in argument '", argument, "' is '", bestName, "'");
    unsigned long index = 0;
    if (findOption(bestName, index, options) != 0) {
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
                names.emplace_back("no-" + name);
            }
        }
    }
}

void AbbreviationParser::makeNameMatch(std::vector<NameMatch>& matches, const DecomposedName& typed,
                                       const std::vector<DecomposedName>& candidates) {
    const std::size_t typedCount = typed.m_words.size();
    for (const DecomposedName& candidate : candidates) {
        const std::size_t count = candidate.m_words.size();
        if (typedCount > count) {
            continue;
        }
        const std::int32_t score = scoreOf(typed, candidate);
        if (score != 0) {
            matches.push_back({typedCount == count, score, candidate});
        }
    }
}

int AbbreviationParser::findBest(const std::vector<NameMatch>& matches, DecomposedName& best,
                                 std::string& err) {
    m_matches.clear();
    std::int32_t bestScore = 0;
    for (const NameMatch& match : matches) {
        if (!match.m_sameWordCount || match.m_score < bestScore) {
            continue;
        }
        if (match.m_score > bestScore) {
            m_matches.clear();
            bestScore = match.m_score;
        }
        m_matches.push_back(match);
    }
    if (m_matches.empty()) {
        return 1;
    }
    if (m_matches.size() > 1) {
        err = messages::possibleOptions(quotedNames(m_matches));
        return 2;
    }
    best = m_matches.front().m_candidate;
    return 0;
}

int AbbreviationParser::parse(std::vector<std::string>& args, IResultCollector* collector,
                              std::vector<OptionDescription>& options, unsigned long& index,
                              std::string& err) {
    index = static_cast<unsigned long>(m_optionIndex);
    log(": parsing argument '", args.at(0), "'");
    std::string name;
    std::string value;
    const bool valueGiven = splitOptionValue(args[0], &name, &value);
    if (name.empty() || name.front() == '-') {
        return fail(err, messages::unknownOption(args[0]));
    }
    if (m_matches.size() > 1) {
        return fail(err,
                    messages::ambiguousOption(name, formatTokenMessage(args[0]), quotedNames(m_matches)));
    }
    // A handler may declare options while it is told, which moves the table: work on a copy.
    const OptionDescription option = options.at(index);
    log(": detected option: '", option.primaryName(), "'");
    if (valueGiven) {
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
        const bool negated = m_matches.front().m_candidate.getName().compare(0, 3, "no-") == 0;
        value = negated ? "0" : "1";
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
