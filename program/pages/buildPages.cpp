#include <algorithm>

#include <tarv_3_3/description.h>

#include "pages/Page.h"
#include "pages/entries.h"

namespace tarv_program {

namespace {

bool isShown(const Option& option) {
    return !option.isHidden && option.positional == Positional::no && !option.names.empty();
}

std::string titleOf(const CommandLine& line, const std::string& topic) {
    for (const Topic& known : line.topics) {
        if (known.name == topic) {
            return known.title.empty() ? known.name : known.title;
        }
    }
    return topic;
}

Section section(const std::string& title, int level) {
    Section made;
    made.title = title;
    made.level = level;
    return made;
}

void addIfNotEmpty(std::vector<Section>& sections, Section made) {
    if (!made.entries.empty() || !made.paragraphs.empty()) {
        sections.push_back(std::move(made));
    }
}

// What a program of the typed face has without declaring it, as far as the names are not the host's.
void addLastResort(Section& options, const CommandLine& line) {
    const auto isTaken = [&](const std::string& name) {
        return std::any_of(line.options.begin(), line.options.end(), [&](const Option& option) {
            return !option.isSlot() &&
                   std::find(option.names.begin(), option.names.end(), name) != option.names.end();
        });
    };
    if (line.mends.empty()) {
        return;
    }
    Option help;
    help.text = "Show help.";
    for (const char* const name : {"help", "h"}) {
        if (!isTaken(name)) {
            help.names.emplace_back(name);
        }
    }
    if (!help.names.empty()) {
        options.entries.push_back(entryOf(help, line));
    }
    if (!line.version.empty() && !isTaken("version")) {
        Option version;
        version.names = {"version"};
        version.text = "Show the version.";
        options.entries.push_back(entryOf(version, line));
    }
}

// What a program of the typed face requires, it says of the option as well.
bool isSaidOfItsOption(const Rule& rule, const CommandLine& line) {
    return rule.kind == tarv_3_3::ruleRequired &&
           std::any_of(line.options.begin(), line.options.end(), [&](const Option& option) {
               const std::string* const required = option.note("required");
               return required != nullptr && *required == "1" &&
                      rule.names == std::vector<std::string>{option.primaryName()};
           });
}

// Options in the order of the topics, those without one first.
void addOptions(std::vector<Section>& sections, const CommandLine& line, int level) {
    Section actions = section("Actions", level);
    std::vector<std::string> topics = {""};
    for (const Option& option : line.options) {
        if (isShown(option) && option.isAction) {
            actions.entries.push_back(entryOf(option, line));
        }
        if (std::find(topics.begin(), topics.end(), option.topic) == topics.end()) {
            topics.push_back(option.topic);
        }
    }
    addIfNotEmpty(sections, actions);
    for (const std::string& topic : topics) {
        Section options = section(topic.empty() ? "Options" : titleOf(line, topic), level);
        for (const Option& option : line.options) {
            if (isShown(option) && !option.isAction && option.topic == topic) {
                options.entries.push_back(entryOf(option, line));
            }
        }
        if (topic.empty()) {
            addLastResort(options, line);
        }
        addIfNotEmpty(sections, options);
    }
    Section rules = section("Rules", level);
    for (const Rule& rule : line.rules) {
        if (!rule.names.empty() && !isSaidOfItsOption(rule, line)) {
            rules.paragraphs.push_back(sentenceOf(rule));
        }
    }
    addIfNotEmpty(sections, rules);
}

void addWord(Runs& runs, const std::string& name, bool isOptional, bool isRepeated) {
    runs.push_back({Run::plain, isOptional ? "[" : ""});
    runs.push_back({Run::placeholder, name});
    runs.push_back({Run::plain, std::string(isOptional ? "]" : "") + (isRepeated ? "... " : " ")});
}

bool takesArguments(const Option& option) {
    return option.positional == Positional::filled ||
           (option.positional != Positional::no && option.count.has_value());
}

// One that is needed several times is shown as often, up to three times.
void addArgument(Runs& runs, const Option& option) {
    const std::string name = option.primaryName().empty() ? "ARGUMENT" : option.shownName();
    const unsigned long least = option.count ? option.count->least : 0;
    const unsigned long shown = std::min(least, 3UL);
    for (unsigned long i = 1; i < shown; ++i) {
        addWord(runs, name, false, false);
    }
    addWord(runs, name, least == 0, !option.count || !option.count->most || *option.count->most > shown);
}

bool hasShown(const CommandLine& line, bool isAction) {
    return std::any_of(line.options.begin(), line.options.end(),
                       [&](const Option& option) { return isShown(option) && option.isAction == isAction; });
}

Runs synopsis(const std::vector<std::string>& command, const CommandLine& line) {
    Runs runs;
    for (const std::string& word : command) {
        runs.push_back({Run::literal, word});
        runs.push_back({Run::plain, " "});
    }
    if (hasShown(line, true)) {
        addWord(runs, "ACTION", false, false);
    }
    if (hasShown(line, false) || !line.mends.empty()) {
        addWord(runs, "OPTION", true, true);
    }
    if (!line.verbs.empty()) {
        addWord(runs, "VERB", !line.isVerbRequired.value_or(true), false);
        addWord(runs, "ARGUMENT", true, true);
    }
    for (const Option& option : line.options) {
        if (takesArguments(option)) {
            addArgument(runs, option);
        }
    }
    runs.back().text.erase(runs.back().text.find_last_not_of(' ') + 1);
    return runs;
}

void addArguments(std::vector<Section>& sections, const CommandLine& line, int level) {
    Section arguments = section("Arguments", level);
    for (const Option& option : line.options) {
        if (option.positional != Positional::no && !option.text.empty() && !option.names.empty()) {
            arguments.entries.push_back({{{{Run::placeholder, option.shownName()}}}, {option.text}});
        }
    }
    addIfNotEmpty(sections, arguments);
}

void addVerbList(std::vector<Section>& sections, const CommandLine& line, int level) {
    Section verbs = section("Verbs", level);
    for (const CommandLine& verb : line.verbs) {
        Entry entry;
        for (const std::string& name : verb.names) {
            entry.forms.push_back({{Run::literal, name}});
        }
        entry.sentences = {verb.text};
        verbs.entries.push_back(entry);
    }
    addIfNotEmpty(sections, verbs);
}

void addVerbSections(Page& page, const CommandLine& line, const std::vector<std::string>& command) {
    for (const CommandLine& verb : line.verbs) {
        std::vector<std::string> longer = command;
        longer.push_back(verb.names.front());
        std::string title;
        for (const std::string& word : longer) {
            title += (title.empty() ? "" : " ") + word;
        }
        page.synopses.push_back(synopsis(longer, verb));
        Section heading = section(title, 1);
        heading.paragraphs = {verb.text};
        page.sections.push_back(heading);
        addArguments(page.sections, verb, 2);
        addOptions(page.sections, verb, 2);
        addVerbSections(page, verb, longer);
    }
}

Page pageOf(const CommandLine& line, const std::vector<std::string>& command, const std::string& version) {
    Page page;
    page.command = command;
    page.version = version;
    page.purpose = line.text;
    page.synopses = {synopsis(command, line)};
    addArguments(page.sections, line, 1);
    addOptions(page.sections, line, 1);
    return page;
}

void addPages(std::vector<Page>& pages, const CommandLine& line, const std::vector<std::string>& command,
              const std::string& version) {
    pages.push_back(pageOf(line, command, version));
    addVerbList(pages.back().sections, line, 1);
    for (const CommandLine& verb : line.verbs) {
        std::vector<std::string> longer = command;
        longer.push_back(verb.names.front());
        addPages(pages, verb, longer, version);
    }
}

} // namespace

std::string fileNameOf(const Page& page) {
    std::string name;
    for (const std::string& word : page.command) {
        name += (name.empty() ? "" : "-") + word;
    }
    // A name from outside must not lead out of the folder.
    std::replace(name.begin(), name.end(), '/', '_');
    return name;
}

Page wholePage(const CommandLine& program) {
    const std::vector<std::string> command = {program.names.front()};
    Page page = pageOf(program, command, program.version);
    addVerbSections(page, program, command);
    return page;
}

std::vector<Page> pageForEachVerb(const CommandLine& program) {
    std::vector<Page> pages;
    addPages(pages, program, {program.names.front()}, program.version);
    return pages;
}

} // namespace tarv_program
