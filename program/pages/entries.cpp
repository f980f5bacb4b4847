#include "pages/entries.h"

#include <algorithm>

#include <tarv_3_3/description.h>

namespace tarv_program {

using namespace tarv_3_3;

namespace {

std::string dashed(const std::string& name) {
    return (name.size() == 1 ? "-" : "--") + name;
}

std::string listed(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts) {
        all += (all.empty() ? "" : ", ") + text;
    }
    return all;
}

std::string rangeSentence(const std::string& range) {
    const std::size_t dots = range.find("..");
    if (dots == std::string::npos) {
        return "";
    }
    const std::string least = range.substr(0, dots);
    const std::string greatest = range.substr(dots + 2);
    if (least.empty() || greatest.empty()) {
        return least.empty() ? "At most " + greatest + "." : "At least " + least + ".";
    }
    return "From " + least + " to " + greatest + ".";
}

// The actions that an option goes with; none where it goes with all.
std::vector<std::string> actionsOf(const Option& option, const CommandLine& line) {
    std::vector<std::string> actions;
    for (const Option& action : line.options) {
        const bool isShared =
            std::any_of(option.tags.begin(), option.tags.end(), [&](const std::string& tag) {
                return std::find(action.tags.begin(), action.tags.end(), tag) != action.tags.end();
            });
        if (action.isAction && isShared) {
            actions.push_back(dashed(action.primaryName()));
        }
    }
    return actions;
}

void addNoteSentences(std::vector<std::string>& sentences, const Option& option) {
    if (const std::string* const range = option.note("range")) {
        sentences.push_back(rangeSentence(*range));
    }
    if (const std::string* const variable = option.note("environment")) {
        sentences.push_back("Where it is not given, the environment variable " + *variable + " counts.");
    }
    const std::string* const required = option.note("required");
    if (required != nullptr && *required == "1") {
        sentences.emplace_back("It must be given.");
    }
    if (const std::string* const instead = option.note("deprecated")) {
        sentences.push_back(instead->empty() ? "Deprecated." : "Deprecated; use " + *instead + ".");
    }
}

} // namespace

Runs valueRuns(const Option& option) {
    if (const std::string* const name = option.note("value")) {
        return {{Run::placeholder, *name}};
    }
    if (!option.allowed.empty()) {
        Runs runs;
        for (const std::string& value : option.allowed) {
            if (!runs.empty()) {
                runs.push_back({Run::plain, "|"});
            }
            runs.push_back({Run::literal, value});
        }
        return runs;
    }
    return {{Run::placeholder, option.kind == vtString ? "TEXT" : "NUMBER"}};
}

Entry entryOf(const Option& option, const CommandLine& line) {
    Entry entry;
    for (const std::string& name : option.names) {
        Runs form = {{Run::literal, dashed(name) + (option.takesValue() ? "=" : "")}};
        if (option.takesValue()) {
            const Runs value = valueRuns(option);
            form.insert(form.end(), value.begin(), value.end());
        }
        entry.forms.push_back(form);
    }
    // Letters first.
    std::stable_partition(entry.forms.begin(), entry.forms.end(),
                          [](const Runs& form) { return form.front().text.substr(0, 2) != "--"; });
    std::vector<std::string>& sentences = entry.sentences;
    if (!option.text.empty()) {
        sentences.push_back(option.text);
    }
    if (option.isSwitch()) {
        sentences.push_back("To turn it off: --no-" + option.primaryName() + ".");
    }
    if (option.takesValue() && option.separator != 0) {
        sentences.push_back(std::string("Several values are separated by '") + option.separator + "'.");
    }
    addNoteSentences(sentences, option);
    if (option.defaultText && !option.defaultText->empty() && option.takesValue()) {
        sentences.push_back("Default: " + *option.defaultText + ".");
    } else if (option.defaultText && *option.defaultText == "1" && option.isSwitch()) {
        sentences.emplace_back("It is on by default.");
    }
    const std::vector<std::string> actions =
        option.isAction ? std::vector<std::string>() : actionsOf(option, line);
    if (!actions.empty()) {
        sentences.push_back("Goes with " + listed(actions) + ".");
    }
    return entry;
}

std::string sentenceOf(const Rule& rule) {
    std::vector<std::string> names;
    for (const std::string& name : rule.names) {
        names.push_back(dashed(name));
    }
    switch (rule.kind) {
    case ruleRequired:
        return "Must be given: " + listed(names) + ".";
    case ruleAtMostOne:
        return "At most one of these is given: " + listed(names) + ".";
    case ruleAtLeastOne:
        return "At least one of these is given: " + listed(names) + ".";
    case ruleExactlyOne:
        return "One of these is given: " + listed(names) + ".";
    case ruleAllOrNone:
        return "All of these are given, or none: " + listed(names) + ".";
    default:
        break;
    }
    const std::string first = names.front();
    names.erase(names.begin());
    return first + " needs " + listed(names) + ".";
}

} // namespace tarv_program
