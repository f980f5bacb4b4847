#include "typed/describe.h"

#include <algorithm>
#include <vector>

#include "description/jsonMembers.h"
#include "tarv_3_3/description.h"
#include "typed/describeOption.h"
#include "typed/positionals.h"

namespace tarv_3_3::typed::engine {

namespace {

using internal::JsonWriter;
using internal::writeList;
using internal::writeText;

int flagsOf(const Command& command) {
    const std::vector<Option*> positionals = positionalsOf(command);
    const bool hasRest = std::any_of(positionals.begin(), positionals.end(),
                                     [](const Option* option) { return option->role == roleRest; });
    return flagRejectUnknown | flagPlainArePositional | flagDashIsNotPositional |
           (hasRest ? flagPositionalTakesRest : 0);
}

void writeTopics(JsonWriter& json, const Command& command) {
    std::vector<std::string> topics;
    for (const std::unique_ptr<Option>& option : command.options) {
        if (std::find(topics.begin(), topics.end(), option->topic) == topics.end()) {
            topics.push_back(option->topic);
        }
    }
    json.open('[', "topics");
    for (const std::string& topic : topics) {
        json.breakLine();
        json.open('{');
        json.member("name", topic);
        writeText(json, "title", topic);
        json.close('}');
    }
    json.close(']');
}

void writeRule(JsonWriter& json, int kind, const std::vector<const Option*>& options) {
    json.breakLine();
    json.open('{');
    json.member("kind", internal::ruleName(kind));
    writeList(json, "names", options, [](const Option* option) { return option->name(); });
    json.close('}');
}

void writeRules(JsonWriter& json, const Command& command) {
    json.open('[', "rules");
    for (const std::unique_ptr<Option>& option : command.options) {
        if (option->isRequired && !option->isPositional()) {
            writeRule(json, ruleRequired, {option.get()});
        }
        for (const Option* needed : option->needed) {
            writeRule(json, ruleNeeds, {option.get(), needed});
        }
    }
    for (const GroupRule& rule : command.rules) {
        writeRule(json, rule.kind, {rule.options.begin(), rule.options.end()});
    }
    json.close(']');
}

// Commands nest only as deep as the host declares them.
// NOLINTBEGIN(misc-no-recursion)
void writeMembers(JsonWriter& json, const Command& command);

void writeVerbs(JsonWriter& json, const Command& command) {
    if (command.verbs.empty()) {
        return;
    }
    json.breakLine();
    json.memberBool("verbRequired", command.body == nullptr);
    json.breakLine();
    json.open('[', "verbs");
    for (const std::unique_ptr<Command>& verb : command.verbs) {
        json.breakLine();
        json.open('{');
        writeList(json, "names", verb->names, itself);
        writeText(json, "text", verb->text);
        writeMembers(json, *verb);
        json.close('}');
    }
    json.close(']');
}

// Options of the commands above go with every verb, and are written there alone.
void writeMembers(JsonWriter& json, const Command& command) {
    json.breakLine();
    internal::writeFlags(json, flagsOf(command));
    json.breakLine();
    writeTopics(json, command);
    json.breakLine();
    json.open('[', "declarations");
    for (const std::unique_ptr<Option>& option : command.options) {
        describeOption(json, *option);
    }
    json.close(']');
    json.breakLine();
    writeRules(json, command);
    json.breakLine();
    json.open('[', "checks");
    json.close(']');
    writeVerbs(json, command);
}

void writeProgram(JsonWriter& json, const Command& program) {
    json.breakLine();
    json.open('{', "program");
    json.member("name", program.name());
    writeText(json, "version", program.version);
    writeText(json, "text", program.text);
    json.close('}');
}

void writeMends(JsonWriter& json, const Command& program) {
    std::vector<std::string> mends = {"negativeNumbers", "loneDash", "emptyValues", "emptyPositionals",
                                      "repeatedLetters"};
    if (program.joinsLetters) {
        mends.emplace_back("joinedLetters");
    }
    json.breakLine();
    writeList(json, "mends", mends, itself);
}

void writeSettings(JsonWriter& json, const Command& program) {
    if (program.settingsFile.empty() && program.settingsOption == nullptr) {
        return;
    }
    json.breakLine();
    json.open('[', "settings");
    if (!program.settingsFile.empty()) {
        json.open('{');
        json.member("file", program.settingsFile);
        json.close('}');
    }
    if (program.settingsOption != nullptr) {
        json.open('{');
        json.member("option", program.settingsOption->name());
        json.close('}');
    }
    json.close(']');
}

// NOLINTEND(misc-no-recursion)

} // namespace

std::string describeProgram(const Command& program) {
    JsonWriter json;
    json.open('{');
    json.member("format", internal::formatName);
    json.member("version", internal::formatVersion);
    writeProgram(json, program);
    writeMends(json, program);
    writeSettings(json, program);
    writeMembers(json, program);
    json.close('}');
    return json.text() + "\n";
}

} // namespace tarv_3_3::typed::engine
