#include "options/RegisteredOptionStorage.h"

#include <algorithm>

#include "options/findOption.h"
#include "options/messages.h"
#include "options/split.h"
#include "tarv_3_3/internal/log.h"

namespace tarv_3_3 {

namespace {

const char* orEmpty(const char* text) {
    return text != nullptr ? text : "";
}

// Most programs declare a few dozen options: their table is not to move over and over.
constexpr std::size_t expectedOptions = 32;

// And give them a name, or a name and a short form.
constexpr std::size_t usualNames = 2;

} // namespace

RegisteredOptionStorage::RegisteredOptionStorage() = default;

RegisteredOptionStorage::~RegisteredOptionStorage() = default;

IOption& RegisteredOptionStorage::option(const char* names, const char* tags, const char* description,
                                         bool isAction, das_variant_type_t type, const char* topic) {
    const Topic& registeredTopic = registerTopic(orEmpty(topic));
    m_invalidOption.m_status = declarationInProgress;
    if (names == nullptr) {
        return refuse();
    }
    std::vector<std::string> nameList;
    nameList.reserve(usualNames);
    split(names, nameList);
    if (validateName(nameList) != 0) {
        return refuse();
    }
    unsigned long index = 0;
    if (findOption(nameList, index, m_options) == 0) {
        internal::writeLogLine(internal::messages::nameAlreadyRegistered, names);
        return refuse();
    }

    std::set<std::string> tagWords;
    OptionDescription::insertTags(tagWords, tags);
    if (isAction) {
        OptionDescription::insertTags(tagWords, names);
    }
    makeRoom();
    m_options.emplace_back(std::move(nameList), std::move(tagWords), registeredTopic, orEmpty(description),
                           isAction ? Action : Option, type, m_garbage);
    m_options.back().tokenize(m_defaultTokenizer);
    return m_options.back();
}

IOption& RegisteredOptionStorage::action(const char* names, const char* description, das_variant_type_t type,
                                         const char* topic) {
    return option(names, nullptr, description, true, type, topic);
}

IOption& RegisteredOptionStorage::modifier(const char* names, const char* tags, const char* description,
                                           das_variant_type_t type, const char* topic) {
    return option(names, tags, description, false, type, topic);
}

const Topic& RegisteredOptionStorage::registerTopic(std::string_view topic) {
    const std::string_view name = topic.substr(0, topic.find(':'));
    const auto known = std::find_if(m_topics.begin(), m_topics.end(),
                                    [&](const Topic& other) { return other.first == name; });
    if (known != m_topics.end()) {
        return *known;
    }
    const std::string_view title = name.size() < topic.size() ? topic.substr(name.size() + 1) : "";
    return m_topics.emplace_back(name, title);
}

void RegisteredOptionStorage::makeRoom() {
    if (m_options.size() < m_options.capacity()) {
        return;
    }
    const std::size_t room = std::max(expectedOptions, 2 * m_options.capacity());
    if (m_pins == 0) {
        m_options.reserve(room);
        return;
    }
    std::vector<OptionDescription> larger;
    larger.reserve(room);
    larger.assign(m_options.begin(), m_options.end());
    m_outgrown.emplace_back();
    m_outgrown.back().swap(m_options);
    m_options.swap(larger);
}

RegisteredOptionStorage::Pin::Pin(RegisteredOptionStorage& storage) : m_storage(storage) {
    ++m_storage.m_pins;
}

RegisteredOptionStorage::Pin::~Pin() {
    --m_storage.m_pins;
    if (m_storage.m_pins == 0) {
        m_storage.m_outgrown.clear();
    }
}

IOption& RegisteredOptionStorage::refuse() {
    m_invalidOption.m_status = declarationRefused;
    return m_invalidOption;
}

int validateName(const std::vector<std::string>& names) {
    const bool tooMany = names.size() > 3;
    const bool longThirdName = names.size() == 3 && names[2].size() > 2;
    return tooMany || longThirdName ? 1 : 0;
}

} // namespace tarv_3_3
