#pragma once

#include <string>
#include <string_view>

#include "description/JsonWriter.h"
#include "tarv_3_3/variant.h"

/// The members that descriptions as JSON are made of.
namespace tarv_3_3::internal {

// A member is only ever added here with its place in share/tarv/description.schema.json, and a higher
// number behind the point. A change that would mislead a reader takes a higher number in front of it.
inline constexpr char formatName[] = "tarv-description";
inline constexpr char formatVersion[] = "1.0";

/// What the schema calls a kind of value.
const char* kindName(das_variant_type_t kind);

/// What the schema calls a `RuleKind`.
const char* ruleName(int kind);

///@{
/// Nothing where there is nothing to say.
void writeTrue(JsonWriter& json, const char* name, bool isTrue);
void writeText(JsonWriter& json, const char* name, std::string_view text);
///@}

/// The names of `ParserFlag` bits.
void writeFlags(JsonWriter& json, int flags);

/// A list of texts, which `textOf` makes of its elements; nothing where there are none.
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
