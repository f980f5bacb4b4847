#include "options/OptionDescription.h"

#include "options/split.h"

namespace tarv_3_3 {

OptionDescription::OptionDescription() = default;
OptionDescription::OptionDescription(const OptionDescription&) = default;
OptionDescription::OptionDescription(OptionDescription&&) noexcept = default;
OptionDescription& OptionDescription::operator=(const OptionDescription&) = default;
OptionDescription& OptionDescription::operator=(OptionDescription&&) noexcept = default;
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
    if (tags != nullptr) {
        std::vector<std::string> words;
        split(tags, words);
        m_tags.insert(words.begin(), words.end());
    }
    return *this;
}

const std::string& OptionDescription::primaryName() const {
    static const std::string none;
    return m_names.empty() ? none : m_names.front();
}

bool OptionDescription::operator<(const OptionDescription& other) const {
    return primaryName() < other.primaryName();
}

} // namespace tarv_3_3
