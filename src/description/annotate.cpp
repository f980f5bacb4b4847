#include <algorithm>
#include <exception>
#include <string_view>

#include "description/declarationFacts.h"
#include "parser/BasicParser.h"
#include "parser/Remarks.h"
#include "tarv_3_3/description.h"

namespace tarv_3_3 {

namespace {

bool isOneOf(std::string_view text, std::initializer_list<std::string_view> texts) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

// A key without a dot must be known. Otherwise a misspelt key would go unnoticed, and a later library could
// not give a new key a meaning.
bool isAcceptable(std::string_view key, std::string_view value) {
    if (key.find('.') != std::string_view::npos) {
        return true;
    }
    if (key == "complete") {
        return isOneOf(value, {"file", "directory", "none"});
    }
    if (key == "required") {
        return value == "1";
    }
    return isOneOf(key, {"environment", "value", "deprecated", "range"});
}

void note(internal::Remarks::Notes& notes, const char* key, const char* value) {
    const auto known =
        std::find_if(notes.begin(), notes.end(), [&](const auto& entry) { return entry.first == key; });
    if (known == notes.end()) {
        notes.emplace_back(key, value);
    } else {
        known->second = value;
    }
}

int annotateOwn(BasicParser& parser, const char* name, const char* key, const char* value) {
    RegisteredOptionStorage& registry = parser.registry();
    const std::size_t index = registry.indexOfExactName(name);
    if (index == registry.m_options.size() || !isAcceptable(key, value)) {
        return remarkRefused;
    }
    std::vector<internal::Remarks::Notes>& all = parser.ownRemarks().notes;
    if (all.size() <= index) {
        all.resize(index + 1);
    }
    note(all[index], key, value);
    return remarkStored;
}

} // namespace

int annotate(IParser* parser, const char* name, const char* key, const char* value) {
    BasicParser* const own = internal::ownParser(parser);
    if (own == nullptr || name == nullptr || key == nullptr || value == nullptr) {
        return remarkRefused;
    }
    try {
        return annotateOwn(*own, name, key, value);
    } catch (const std::exception&) {
        return remarkException;
    }
}

} // namespace tarv_3_3
