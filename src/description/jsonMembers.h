#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "description/JsonWriter.h"
#include "tarv_3_3/variant.h"

/// Writes the members of a description as JSON.
namespace tarv_3_3::internal {

// A new member must be added to share/tarv/description.schema.json, too, and increases the number behind the
// point. A change that breaks readers increases the number in front of it.
inline constexpr char formatName[] = "tarv-description";
inline constexpr char formatVersion[] = "1.1";

/// What the schema calls a kind of value.
const char* kindName(das_variant_type_t kind);

/// What the schema calls a `RuleKind`.
const char* ruleName(int kind);

///@{
/// Writes a member; nothing when the value is false or empty.
void writeTrue(JsonWriter& json, const char* name, bool isTrue);
void writeText(JsonWriter& json, const char* name, std::string_view text);
///@}

/// The member "notes", of keys and values; nothing when there are none.
void writeNotes(JsonWriter& json, const std::vector<std::pair<std::string, std::string>>& notes);

/// The names of `ParserFlag` bits.
void writeFlags(JsonWriter& json, int flags);

/// Writes a list of the texts that `textOf` returns for the elements; nothing when there are none.
template <class Elements, class TextOf>
void writeList(JsonWriter& json, const char* name, const Elements& elements, TextOf textOf) {
    if (elements.empty()) {
        return;
    }
    json.open('[', name);
    for (const auto& element : elements) {
        json.element(textOf(element));
    }
    json.close(']');
}

} // namespace tarv_3_3::internal
