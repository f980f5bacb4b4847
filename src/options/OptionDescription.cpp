#include "options/OptionDescription.h"

#include <cstddef>
#include <new>
#include <utility>

#include "options/split.h"

namespace tarv_3_3 {

OptionDescription::OptionDescription() = default;

OptionDescription::OptionDescription(Names&& names, std::set<std::string>&& tags, const Topic& topic,
                                     const char* description, OptionKind kind, das_variant_type_t type,
                                     Garbage* garbage, internal::Arena& memory)
    : m_names(std::move(names), memory), m_tags(std::move(tags)), m_topic(topic),
      m_description(description, memory), m_kind(kind), m_type(type), m_garbage(garbage) {}

OptionDescription::OptionDescription(const OptionDescription&) = default;
OptionDescription::OptionDescription(OptionDescription&&) noexcept = default;
OptionDescription& OptionDescription::operator=(const OptionDescription&) = default;
OptionDescription::~OptionDescription() = default;

IOption& OptionDescription::synonym(const char* name) {
    if (name != nullptr) {
        m_names.emplace_back(name);
    }
    return *this;
}

IOption& OptionDescription::allowValue(const variant_t& value) {
    if (m_tokenizer == 0) {
        m_tokenizer = ',';
    }
    m_allowedValues.push_back(value);
    return *this;
}

IOption& OptionDescription::defaultValue(const variant_t& value) {
    m_default = value;
    m_defaultText = variant_t();
    m_hasDefault = true;
    return *this;
}

IOption& OptionDescription::tokenize(char separator) {
    m_tokenizer = separator;
    return *this;
}

IOption& OptionDescription::positional() {
    m_positional = true;
    return *this;
}

IOption& OptionDescription::tag(const char* tags) {
    insertTags(m_tags, tags);
    return *this;
}

void OptionDescription::insertTags(std::set<std::string>& tags, const char* words) {
    if (words != nullptr) {
        std::vector<std::string> pieces;
        split(words, pieces);
        tags.insert(pieces.begin(), pieces.end());
    }
}

// Never destroyed: a host may parse in the destructor of a static object.
const std::string& OptionDescription::noName() {
    alignas(std::string) static std::byte room[sizeof(std::string)];
    static const std::string* const none = new (room) std::string;
    return *none;
}

} // namespace tarv_3_3
