#include <exception>
#include <set>
#include <vector>

#include "description/declarationFacts.h"
#include "description/messages.h"
#include "options/split.h"
#include "parser/BasicParser.h"
#include "parser/Remarks.h"
#include "result/ParseResult.h"
#include "tarv_3_3/description.h"

namespace tarv_3_3 {

namespace {

namespace messages = internal::messages;

using Options = std::vector<const OptionDescription*>;

/// The options of a rule, divided into those given and those not given, each in the order of the rule.
struct Given {
    Options given;
    Options missing;
};

bool isGiven(const OptionDescription& option, const ParseResult& result) {
    const internal::Entries::Entry* const entry = result.entries().find(option.primaryName());
    if (entry == nullptr || entry->group().positions.empty()) {
        return false;
    }
    const internal::Entries::Group& given = entry->group();
    const bool isTurnedOff =
        option.m_type == vtBool && !given.values.empty() && !given.values.back().value.get<bool>();
    return !isTurnedOff;
}

Given divide(const Options& options, const ParseResult& result) {
    Given divided;
    for (const OptionDescription* option : options) {
        (isGiven(*option, result) ? divided.given : divided.missing).push_back(option);
    }
    return divided;
}

std::string quoted(const OptionDescription& option) {
    return "'" + option.primaryName() + "'";
}

std::string named(const OptionDescription& option) {
    return (option.m_kind == Action ? "action " : "option ") + quoted(option);
}

std::string firstNamed(const OptionDescription& option) {
    return (option.m_kind == Action ? "Action " : "Option ") + quoted(option);
}

std::string quotedNames(const Options& options) {
    std::string list;
    for (const OptionDescription* option : options) {
        list.append(list.empty() ? "" : ", ").append(quoted(*option));
    }
    return list;
}

// Each of these functions returns a message, "" when the rule is kept.

std::string checkRequired(const Given& divided) {
    return divided.missing.empty() ? "" : messages::isRequired(firstNamed(*divided.missing.front()));
}

std::string checkAtMostOne(const Given& divided) {
    return divided.given.size() < 2
               ? ""
               : messages::excludeEachOther(firstNamed(*divided.given[0]), named(*divided.given[1]));
}

std::string checkAtLeastOne(const Given& divided) {
    return divided.given.empty() ? messages::oneIsRequired(quotedNames(divided.missing)) : "";
}

std::string checkExactlyOne(const Given& divided) {
    return divided.given.empty() ? checkAtLeastOne(divided) : checkAtMostOne(divided);
}

std::string checkAllOrNone(const Options& options, const Given& divided) {
    return divided.given.empty() || divided.missing.empty()
               ? ""
               : messages::goTogether(quotedNames(options), named(*divided.missing.front()));
}

std::string checkNeeds(const Options& options, const Given& divided) {
    const bool isNeeded = !divided.given.empty() && divided.given.front() == options.front();
    return isNeeded && !divided.missing.empty()
               ? messages::needs(firstNamed(*options.front()), named(*divided.missing.front()))
               : "";
}

std::string checkRule(int kind, const Options& options, const ParseResult& result) {
    const Given divided = divide(options, result);
    switch (kind) {
    case ruleRequired:
        return checkRequired(divided);
    case ruleAtMostOne:
        return checkAtMostOne(divided);
    case ruleAtLeastOne:
        return checkAtLeastOne(divided);
    case ruleExactlyOne:
        return checkExactlyOne(divided);
    case ruleAllOrNone:
        return checkAllOrNone(options, divided);
    default:
        return checkNeeds(options, divided);
    }
}

int checkOwnRules(BasicParser& parser, const ParseResult& result) {
    if (parser.remarks() == nullptr) {
        return parseOk;
    }
    for (const internal::Remarks::Rule& rule : parser.remarks()->rules) {
        Options options;
        for (const std::size_t index : rule.indexes) {
            options.push_back(&parser.registry().m_options[index]);
        }
        const std::string message = checkRule(rule.kind, options, result);
        if (!message.empty()) {
            parser.setLastError(message);
            return parseFailed;
        }
    }
    return parseOk;
}

int addOwnRule(BasicParser& parser, int kind, const char* names) {
    RegisteredOptionStorage& registry = parser.registry();
    std::vector<std::string> words;
    split(names, words);
    internal::Remarks::Rule rule = {kind, {}};
    std::set<std::size_t> seen;
    for (const std::string& word : words) {
        const std::size_t index = registry.indexOfExactName(word);
        if (index == registry.m_options.size() || !seen.insert(index).second) {
            return remarkRefused;
        }
        rule.indexes.push_back(index);
    }
    if (rule.indexes.size() < (kind == ruleRequired ? 1U : 2U)) {
        return remarkRefused;
    }
    parser.ownRemarks().rules.push_back(std::move(rule));
    return remarkStored;
}

} // namespace

int addRule(IParser* parser, int kind, const char* names) {
    BasicParser* const own = internal::ownParser(parser);
    if (own == nullptr || names == nullptr || kind < ruleRequired || kind > ruleNeeds) {
        return remarkRefused;
    }
    try {
        return addOwnRule(*own, kind, names);
    } catch (const std::exception&) {
        return remarkException;
    }
}

int checkRules(IParser* parser, IParseResult* result) {
    BasicParser* const own = internal::ownParser(parser);
    const auto* const ownResult = dynamic_cast<const ParseResult*>(result);
    if (own == nullptr || ownResult == nullptr) {
        return parseException;
    }
    try {
        return checkOwnRules(*own, *ownResult);
    } catch (const std::exception&) {
        return parseException;
    }
}

} // namespace tarv_3_3
