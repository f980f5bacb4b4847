#include "typed/describeOption.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "description/jsonMembers.h"
#include "typed/levelParser.h"
#include "typed/messages.h"
#include "typed/ranges.h"

namespace tarv_3_3::typed::engine {

namespace {

using internal::JsonWriter;
using internal::writeList;
using internal::writeNotes;
using internal::writeText;
using internal::writeTrue;

// What an int32 or a uint32 has no need to say.
bool isNarrow(const Shape& shape) {
    return (shape.kind == kindSigned || shape.kind == kindUnsigned) && shape.most < 0x7fffffff;
}

std::string rangeNote(const Option& option) {
    const bool isTyped = option.shape().kind == kindSigned || option.shape().kind == kindUnsigned ||
                         option.shape().kind == kindReal;
    return isTyped && (hasRange(option) || isNarrow(option.shape()))
               ? leastText(option) + ".." + mostText(option)
               : "";
}

// What no other member says of the values.
std::string kindCheck(const Option& option) {
    const std::string range = hasRange(option) ? " " + rangeText(option) : "";
    switch (option.shape().kind) {
    case kindSize:
        return messages::mustBe(messages::aSize + range);
    case kindDuration:
        return messages::mustBe(messages::aDuration + range);
    case kindByte:
        return messages::mustBe(messages::oneByte);
    case kindForeign:
        return messages::isNotValid;
    default:
        return option.isMany() && option.shape().kind == kindSwitch ? messages::mustBe(messages::aSwitch)
                                                                    : "";
    }
}

void writeCheck(JsonWriter& json, const char* by, const std::string& text) {
    json.open('{');
    json.memberBool("opaque", true);
    json.member("by", by);
    json.member("text", text);
    json.close('}');
}

void writeChecks(JsonWriter& json, const Option& option) {
    const std::string kind = kindCheck(option);
    if (kind.empty() && option.musts.empty()) {
        return;
    }
    json.open('[', "checks");
    if (!kind.empty()) {
        writeCheck(json, "type", kind);
    }
    for (const std::string& must : option.musts) {
        writeCheck(json, "host", messages::mustBe(must));
    }
    json.close(']');
}

using Notes = std::vector<std::pair<std::string, std::string>>;

Notes notesOf(const Option& option) {
    Notes notes = {{"complete", option.completeAs},
                   {"environment", option.environment},
                   {"required", option.isRequired && !option.isPositional() ? "1" : ""},
                   {"value", option.valueName},
                   {"range", rangeNote(option)},
                   {"typed.mayBeEmpty", option.mayBeEmpty ? "1" : ""}};
    notes.erase(
        std::remove_if(notes.begin(), notes.end(), [](const auto& note) { return note.second.empty(); }),
        notes.end());
    if (option.isDeprecated) {
        notes.emplace_back("deprecated", option.insteadOfIt);
    }
    return notes;
}

std::vector<std::string> tagsOf(const Option& option) {
    std::vector<std::string> tags = option.role == roleAction ? option.names : std::vector<std::string>();
    for (const Option* action : option.actions) {
        tags.push_back(action->name());
    }
    std::sort(tags.begin(), tags.end());
    return tags;
}

void writeDefault(JsonWriter& json, const Option& option) {
    if (option.defaults.empty() || option.isRequired) {
        return;
    }
    if (option.isSwitch()) {
        json.member("default", option.defaults.front() == "on" ? "1" : "0");
    } else {
        const char separator = option.separator != '\0' ? option.separator : ' ';
        std::string text;
        for (const std::string& element : option.defaults) {
            text.append(&element != &option.defaults.front() ? 1 : 0, separator).append(element);
        }
        json.member("default", text);
    }
}

void writeCount(JsonWriter& json, const Option& option) {
    json.member("positional", "filled");
    json.open('{', "count");
    json.memberNumber("least", std::max<std::size_t>(option.least, option.isRequired ? 1 : 0));
    if (option.most != 0) {
        json.memberNumber("most", option.most);
    }
    json.close('}');
}

} // namespace

void describeOption(JsonWriter& json, const Option& option) {
    json.breakLine();
    json.open('{');
    json.member("role", option.role == roleAction ? "action" : "option");
    json.member("kind", internal::kindName(parserKind(option)));
    writeList(json, "names", option.names, itself);
    writeText(json, "text", option.text);
    writeText(json, "topic", option.topic);
    writeList(json, "tags", tagsOf(option), itself);
    writeList(json, "allowed", option.choices, itself);
    if (option.separator != '\0') {
        json.member("separator", {&option.separator, 1});
    }
    writeDefault(json, option);
    writeTrue(json, "negatable", option.isSwitch());
    if (option.isPositional()) {
        writeCount(json, option);
    }
    writeTrue(json, "hidden", option.isHidden);
    writeNotes(json, notesOf(option));
    writeChecks(json, option);
    json.close('}');
}

} // namespace tarv_3_3::typed::engine
