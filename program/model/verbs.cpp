#include "model/verbs.h"

#include <algorithm>

#include <tarv_3_3/description.h>

namespace tarv_program {

using namespace tarv_3_3;

namespace {

template <class Element>
void putInFront(std::vector<Element>& list, const std::vector<Element>& more) {
    list.insert(list.begin(), more.begin(), more.end());
}

bool hasOption(const std::vector<Option>& options, const std::string& primaryName) {
    return std::any_of(options.begin(), options.end(), [&](const Option& option) {
        return !option.names.empty() && option.primaryName() == primaryName;
    });
}

} // namespace

CommandLine within(const CommandLine& owner, const CommandLine& verb) {
    CommandLine line = verb;
    line.version = owner.version;
    line.mends = owner.mends;
    putInFront(line.topics, owner.topics);
    std::vector<Option> named;
    for (const Option& option : owner.options) {
        // What stands without a name is the verb, and what belongs to it.
        if (option.positional == Positional::no) {
            named.push_back(option);
        }
    }
    putInFront(line.options, named);
    std::vector<Rule> rules;
    for (const Rule& rule : owner.rules) {
        const bool holds = std::all_of(rule.names.begin(), rule.names.end(),
                                       [&](const std::string& name) { return hasOption(named, name); });
        if (holds) {
            rules.push_back(rule);
        }
    }
    putInFront(line.rules, rules);
    return line;
}

CommandLine withRequiredAsRules(CommandLine line) {
    for (const Option& option : line.options) {
        const std::string* const required = option.note("required");
        if (required != nullptr && *required == "1" && !option.names.empty() &&
            option.positional != Positional::unused && !option.isSlot()) {
            line.rules.push_back({ruleRequired, {option.primaryName()}});
        }
    }
    for (CommandLine& verb : line.verbs) {
        verb = withRequiredAsRules(verb);
    }
    return line;
}

CommandLine verbsAsOptions(const CommandLine& line) {
    CommandLine verbs;
    verbs.flags = flagRejectUnknown;
    for (const CommandLine& verb : line.verbs) {
        Option option;
        option.names = verb.names;
        verbs.options.push_back(option);
    }
    return verbs;
}

} // namespace tarv_program
