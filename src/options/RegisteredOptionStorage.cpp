#include "options/RegisteredOptionStorage.h"

#include <algorithm>
#include <cstring>

#include "options/findOption.h"
#include "options/messages.h"
#include "options/split.h"
#include "platform/logLine.h"

namespace tarv_3_3 {

namespace {

const char* orEmpty(const char* text) {
    return text != nullptr ? text : "";
}

constexpr std::size_t firstBlock = 4096;

// Most programs declare a few dozen options: their table is not to move over and over.
constexpr std::size_t expectedOptions = 32;

// Larger tables move seldom, since to move a record costs about as much as to add one.
constexpr std::size_t growth = 4;

// Most declarations have a name, or a name and a short form.
constexpr std::size_t usualNames = 2;

bool isNegated(std::string_view name) {
    return name.size() >= negation.size() && std::memcmp(name.data(), negation.data(), negation.size()) == 0;
}

} // namespace

RegisteredOptionStorage::RegisteredOptionStorage() : m_memory(firstBlock), m_names(m_memory) {}

RegisteredOptionStorage::~RegisteredOptionStorage() = default;

IOption& RegisteredOptionStorage::option(const char* names, const char* tags, const char* description,
                                         bool isAction, das_variant_type_t type, const char* topic) {
    const Topic& registeredTopic = registerTopic(orEmpty(topic));
    m_invalidOption.m_status = declarationInProgress;
    if (names == nullptr) {
        return refuse();
    }
    Names nameList(&m_memory);
    nameList.reserve(usualNames);
    split(names, nameList);
    if (validateName(nameList) != 0) {
        return refuse();
    }
    NameEntries entries{};
    if (isTaken(nameList, entries)) {
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
                           isAction ? Action : Option, type, m_garbage, &m_memory);
    OptionDescription& declared = m_options.back();
    declared.m_tokenizer = m_defaultTokenizer;
    m_learntNames = declared.m_names.size();
    for (std::size_t i = 0; i < m_learntNames; ++i) {
        entries[i]->note = m_options.size();
    }
    return declared;
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

// Names of refused declarations get entries as well, which note nothing.
bool RegisteredOptionStorage::isTaken(const Names& names, NameEntries& entries) {
    if (hasNewSynonyms()) {
        learnSynonyms();
    }
    bool taken = false;
    for (std::size_t i = 0; i < names.size(); ++i) {
        entries[i] = &m_names.insert(names[i]);
        taken = taken || noteFor(names[i], entries[i]->note) != 0;
    }
    unsigned long index = 0;
    return taken || (m_sharesNames && findOption(names, index, m_options) == 0);
}

int RegisteredOptionStorage::find(const internal::HashedText& name, unsigned long& index) {
    if (hasNewSynonyms()) {
        learnSynonyms();
    }
    const internal::TextSet::Entry* const entry = m_names.find(name);
    const std::size_t note = noteFor(name.text, entry != nullptr ? entry->note : 0);
    // A host that holds on to a reference for too long may have given a name unseen.
    if (note == 0 || m_sharesNames) {
        return findOption(std::string(name.text), index, m_options);
    }
    index = note - 1;
    return 0;
}

// Of the record that has the name as it is, and the switch that has it behind "no-", the first one.
std::size_t RegisteredOptionStorage::noteFor(std::string_view name, std::size_t plain) const {
    if (!isNegated(name)) {
        return plain;
    }
    const internal::TextSet::Entry* const entry = m_names.find(name.substr(negation.size()));
    const std::size_t negated = entry != nullptr ? entry->note : 0;
    const bool isSwitch = negated != 0 && m_options[negated - 1].m_type == vtBool;
    return isSwitch && (plain == 0 || negated < plain) ? negated : plain;
}

// Its host may add synonyms to the last record until the next declaration.
bool RegisteredOptionStorage::hasNewSynonyms() const {
    return !m_options.empty() && m_learntNames < m_options.back().m_names.size();
}

// Nobody checks synonyms.
void RegisteredOptionStorage::learnSynonyms() {
    const Names& names = m_options.back().m_names;
    for (; m_learntNames < names.size(); ++m_learntNames) {
        std::size_t& note = m_names.insert(names[m_learntNames]).note;
        m_sharesNames = m_sharesNames || note != 0;
        note = m_options.size();
    }
}

void RegisteredOptionStorage::makeRoom() {
    if (m_options.size() < m_options.capacity()) {
        return;
    }
    const std::size_t room = std::max(expectedOptions, growth * m_options.capacity());
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

int validateName(const Names& names) {
    const bool tooMany = names.size() > mostNames;
    const bool longThirdName = names.size() == 3 && names[2].size() > 2;
    return tooMany || longThirdName ? 1 : 0;
}

} // namespace tarv_3_3
