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

// Most programs declare a few dozen options. Their table never has to grow.
constexpr std::size_t expectedOptions = 32;

// Moving a record costs about as much as adding one, so a larger table grows by a large factor.
constexpr std::size_t growth = 4;

// Most declarations have a name, or a name and a short form.
constexpr std::size_t typicalNames = 2;

} // namespace

RegisteredOptionStorage::RegisteredOptionStorage() : m_names(m_memory), m_topicNames(m_memory) {}

RegisteredOptionStorage::~RegisteredOptionStorage() = default;

IOption& RegisteredOptionStorage::option(const char* names, const char* tags, const char* description,
                                         bool isAction, das_variant_type_t type, const char* topic) {
    const Topic& registeredTopic = registerTopic(orEmpty(topic));
    m_invalidOption.m_status = declarationInProgress;
    if (names == nullptr) {
        return refuse();
    }
    Names nameList(m_memory);
    nameList.reserve(typicalNames);
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
    m_hasActions = m_hasActions || isAction;
    makeRoom();
    m_options.emplace_back(std::move(nameList), std::move(tagWords), registeredTopic, orEmpty(description),
                           isAction ? Action : Option, type, m_garbage, m_memory);
    OptionDescription& declared = m_options.back();
    declared.m_tokenizer = m_defaultTokenizer;
    m_learntNames = declared.m_names.size();
    for (std::size_t i = 0; i < m_learntNames; ++i) {
        learnName(entries[i]->value);
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
    // Most declarations follow others of their topic.
    if (!m_topics.empty() && m_topics.back().first == name) {
        return m_topics.back();
    }
    std::size_t& index = m_topicNames.insert(name).value.index;
    if (index == nowhere) {
        const std::string_view title = name.size() < topic.size() ? topic.substr(name.size() + 1) : "";
        m_topics.emplace_back(name, title);
        index = m_topics.size() - 1;
    }
    return m_topics[index];
}

// Adds an entry for each name. Where the declaration is refused, these entries have no owner.
bool RegisteredOptionStorage::isTaken(const Names& names, NameEntries& entries) {
    if (hasNewSynonyms()) {
        learnSynonyms();
    }
    bool taken = false;
    for (std::size_t i = 0; i < names.size(); ++i) {
        entries[i] = &m_names.insert(names[i]);
        taken = taken || indexOf(names[i], entries[i]->value) != nowhere;
    }
    return taken;
}

int RegisteredOptionStorage::find(const internal::HashedText& name, unsigned long& index) {
    if (hasNewSynonyms()) {
        learnSynonyms();
    }
    const Index::Entry* const entry = m_names.find(name);
    const std::size_t found = indexOf(name.text, entry != nullptr ? entry->value : Owners());
    if (found == nowhere) {
        // A host may have added a synonym to a record that is no longer the last one. The index lacks it.
        return findOption(std::string(name.text), index, m_options);
    }
    index = found;
    return 0;
}

bool RegisteredOptionStorage::findOnly(const internal::HashedText& name, std::size_t& index) {
    if (hasNewSynonyms()) {
        learnSynonyms();
    }
    const Index::Entry* const whole = m_names.find(name);
    const Index::Entry* const negated =
        beginsWithNegation(name.text) ? m_names.find(name.text.substr(negation.size())) : nullptr;
    const bool hasName = whole != nullptr && whole->value.first != nowhere;
    const bool hasSwitch = negated != nullptr && negated->value.firstSwitch != nowhere;
    if (hasName == hasSwitch) {
        return false;
    }
    const Owners& owners = hasName ? whole->value : negated->value;
    index = hasName ? owners.first : owners.firstSwitch;
    return !owners.isRepeated;
}

// Like `find`: the index may lack a synonym.
std::size_t RegisteredOptionStorage::indexOfExactName(const internal::HashedText& name) {
    if (hasNewSynonyms()) {
        learnSynonyms();
    }
    const Index::Entry* const entry = m_names.find(name);
    const bool isKnown = entry != nullptr && entry->value.first != nowhere;
    return isKnown ? entry->value.first : internal::indexOfExactName(name.text, m_options);
}

// The first record that has the name as it is, or that is a switch and has it behind "no-".
std::size_t RegisteredOptionStorage::indexOf(std::string_view name, const Owners& owners) const {
    if (!beginsWithNegation(name)) {
        return owners.first;
    }
    const Index::Entry* const negated = m_names.find(name.substr(negation.size()));
    return negated != nullptr ? std::min(owners.first, negated->value.firstSwitch) : owners.first;
}

// Adds the last record to the owners of a name.
void RegisteredOptionStorage::learnName(Owners& owners) {
    const std::size_t last = m_options.size() - 1;
    owners.isRepeated = owners.first != nowhere;
    owners.first = std::min(owners.first, last);
    if (m_options[last].m_type == vtBool) {
        owners.firstSwitch = std::min(owners.firstSwitch, last);
    }
}

bool RegisteredOptionStorage::hasNewSynonyms() const {
    return !m_options.empty() && m_learntNames < m_options.back().m_names.size();
}

// Synonyms are not checked, so they may repeat names.
void RegisteredOptionStorage::learnSynonyms() {
    const Names& names = m_options.back().m_names;
    for (; m_learntNames < names.size(); ++m_learntNames) {
        learnName(m_names.insert(names[m_learntNames]).value);
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
    const bool tooMany = names.size() > maxNames;
    const bool longThirdName = names.size() == 3 && names[2].size() > 2;
    return tooMany || longThirdName ? 1 : 0;
}

} // namespace tarv_3_3
