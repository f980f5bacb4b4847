#include "description/jsonMembers.h"

#include "tarv_3_3/IParser.h"

namespace tarv_3_3::internal {

const char* kindName(das_variant_type_t kind) {
    switch (kind) {
    case vtBool:
        return "switch";
    case vtInt32:
        return "int32";
    case vtUInt32:
        return "uint32";
    case vtInt64:
        return "int64";
    case vtUInt64:
        return "uint64";
    case vtDouble:
        return "double";
    case vtString:
        return "string";
    case vtNull:
        break;
    }
    return "none";
}

const char* ruleName(int kind) {
    static const char* const names[] = {"required",   "atMostOne", "atLeastOne",
                                        "exactlyOne", "allOrNone", "needs"};
    return names[kind];
}

void writeTrue(JsonWriter& json, const char* name, bool isTrue) {
    if (isTrue) {
        json.memberBool(name, true);
    }
}

void writeText(JsonWriter& json, const char* name, std::string_view text) {
    if (!text.empty()) {
        json.member(name, text);
    }
}

void writeNotes(JsonWriter& json, const std::vector<std::pair<std::string, std::string>>& notes) {
    if (notes.empty()) {
        return;
    }
    json.open('{', "notes");
    for (const auto& [key, value] : notes) {
        json.member(key, value);
    }
    json.close('}');
}

void writeFlags(JsonWriter& json, int flags) {
    const struct {
        int flag;
        const char* name;
    } known[] = {{flagRejectUnknown, "rejectUnknown"},
                 {flagPlainArePositional, "plainArePositional"},
                 {flagDashIsNotPositional, "dashIsNotPositional"},
                 {flagPositionalTakesRest, "positionalTakesRest"},
                 {flagNoLists, "noLists"}};
    json.open('[', "flags");
    for (const auto& row : known) {
        if ((flags & row.flag) != 0) {
            json.element(row.name);
        }
    }
    json.close(']');
}

} // namespace tarv_3_3::internal
