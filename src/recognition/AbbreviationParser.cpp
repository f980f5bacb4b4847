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

std::string negate(const std::string& name) {
    std::string negated(negation);
    return negated.append(name);
}

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

// Whether the first word of a typed name of several may stand for "no".
bool beginsLikeNegation(std::string_view typed) {
    for (std::size_t i = 0; i < std::min(typed.size(), negation.size()); ++i) {
        if (typed[i] == '-' || typed[i] != negation[i]) {
            return typed[i] == '-';
        }
    }
    return false;
}

// What scoreName would say of "no-" and a name that fits, for a typed name that begins like it.
NameScore scoreNegated(std::string_view typed, std::string_view name) {
    const std::size_t firstWord = typed.find('-');
    const NameScore rest = scoreName(typed.substr(firstWord + 1), name);
    return {rest.sameWordCount, rest.score + (firstWord + 1 == negation.size() ? 2 : 1)};
}

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
    const std::string& argument = args.at(0);
    log(": recognizing argument '", argument, "'");
    m_optionIndex = -1;
    forgetBest();
    if (argument.size() < 2 || dashLength(argument) == 0) {
        m_token = Token();
        return 1;
    }
    if (m_listeners != Listeners::none) {
        m_classifier = SpaceClassifier();
    }
    m_token = splitToken(argument, m_classifier);
    const std::string_view name = m_token.nameIn(argument);
    keepBest(name, options);
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
        for (const std::string& name : option.m_names) {
            names.emplace_back(name);
            if (option.m_type == vtBool) {
                names.emplace_back(negate(name));
            }
        }
    }
}

// What makeOptionNamesList, makeNameMatch and findBest do one after the other, in one pass over the
// table. Most records are done with after the first byte of the typed name, unless its first word is
// empty, as which every name begins, or may stand for the "no" of a switch.
void AbbreviationParser::keepBest(std::string_view typed, const std::vector<OptionDescription>& options) {
    const bool anyMayFit = typed.empty() || beginsLikeNegation(typed);
    const std::uint64_t firstByte = anyMayFit ? ~std::uint64_t(0) : Names::bitOf(typed.front());
    for (const OptionDescription& option : options) {
        if ((option.m_names.firstBytes() & firstByte) != 0) {
            for (const std::string& name : option.m_names) {
                keepIfBest(typed, name, option, options);
            }
        }
    }
}

// Not inlined, so that the loop over the table has the registers to itself.
[[gnu::noinline]] void AbbreviationParser::keepIfBest(std::string_view typed, const std::string& name,
                                                      const OptionDescription& option,
                                                      const std::vector<OptionDescription>& options) {
    if (name.size() >= typed.size() && isBest(scoreName(typed, name))) {
        m_bestNames.push_back(name);
        m_optionIndex = &option - options.data();
    }
    if (option.m_type == vtBool && beginsLikeNegation(typed) && isBest(scoreNegated(typed, name))) {
        m_bestNames.push_back(negate(name));
        m_optionIndex = &option - options.data();
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
    log(": parsing argument '", args.at(0), "'");
    const std::string_view name = m_token.nameIn(args[0]);
    if (name.empty() || name.front() == '-') {
        return fail(err, messages::unknownOption(args[0]));
    }
    if (m_bestNames.size() > 1) {
        return fail(err, messages::ambiguousOption(std::string(name), formatTokenMessage(args[0]),
                                                   quotedNames(m_bestNames)));
    }
    const OptionDescription& option = recordToBind(options.at(index));
    std::string value(m_token.valueIn(args[0]));
    log(": detected option: '", option.primaryName(), "'");
    if (m_token.hasValue) {
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
    const auto firstLeft = args.begin() + static_cast<std::ptrdiff_t>(consumed);
    for (auto argument = args.begin(); argument != firstLeft; ++argument) {
        log(": removing argument: '", *argument, "'");
    }
    args.erase(args.begin(), firstLeft);
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
        value += m_bestNames.at(0).compare(0, negation.size(), negation) == 0 ? '0' : '1';
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
