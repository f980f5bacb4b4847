#include <algorithm>
#include <iterator>

#include "help/messages.h"
#include "help/paragraphString.h"
#include "help/synopsis.h"
#include "parser/BasicParser.h"

namespace tarv_3_3 {

namespace messages = internal::messages;

namespace {

constexpr char hiddenTopic[] = "tarv_hidden";
constexpr unsigned long descriptionColumn = 30;
constexpr unsigned long descriptionWidth = 50;
constexpr unsigned long titleColumn = 1;
constexpr unsigned long titleWidth = 80;
constexpr std::size_t typicalEntrySize = 128;

// Hidden help shows the hidden topic and nothing else.
bool isShown(const std::string& topicName, bool hidden) {
    return (topicName == hiddenTopic) == hidden;
}

using TopicNames = std::vector<std::string_view>;

TopicNames sortedNames(const std::vector<Topic>& topics) {
    TopicNames names;
    names.reserve(topics.size());
    for (const Topic& topic : topics) {
        names.emplace_back(topic.first);
    }
    std::sort(names.begin(), names.end(), NameOrder());
    return names;
}

// The index of a topic among the sorted names; their number when it is none of them.
std::size_t rankOf(std::string_view topic, const TopicNames& names) {
    const auto found = std::lower_bound(names.begin(), names.end(), topic, NameOrder());
    return found != names.end() && *found == topic ? static_cast<std::size_t>(found - names.begin())
                                                   : names.size();
}

/// An option and what it is sorted by.
struct Listed {
    std::size_t topicRank;
    std::string_view name;
    const OptionDescription* option;
};

bool isTopicBefore(const Listed& left, const Listed& right) {
    return left.topicRank < right.topicRank;
}

// Under each topic, options are sorted by `OptionDescription::operator<`.
std::vector<Listed> sortedByTopicAndName(const std::vector<OptionDescription>& options,
                                         const TopicNames& names) {
    std::vector<Listed> sorted;
    sorted.reserve(options.size());
    std::string_view topic;
    std::size_t rank = rankOf(topic, names);
    for (const OptionDescription& option : options) {
        // Most options have the topic of the one before.
        if (option.m_topic.first != topic) {
            topic = option.m_topic.first;
            rank = rankOf(topic, names);
        }
        if (!option.m_positional) {
            sorted.push_back({rank, option.primaryName(), &option});
        }
    }
    std::stable_sort(sorted.begin(), sorted.end(), [](const Listed& left, const Listed& right) {
        return left.topicRank != right.topicRank ? isTopicBefore(left, right)
                                                 : NameOrder()(left.name, right.name);
    });
    return sorted;
}

void appendHeading(std::string& text, const Topic& topic) {
    const auto& [name, title] = topic;
    if (!name.empty()) {
        text.append(name).append("\n");
    }
    if (!title.empty()) {
        text.append(paragraphString(title, "", titleColumn, titleWidth)).append("\n");
    }
}

void appendEntry(std::string& text, const OptionDescription& option) {
    std::string synopsis = makeSynopsis(option);
    if (synopsis.size() >= descriptionColumn) {
        text.append(synopsis).append("\n");
        synopsis.clear();
    }
    text.append(paragraphString(std::string(option.m_description), std::move(synopsis), descriptionColumn,
                                descriptionWidth));
}

std::string renderHelp(const std::vector<Topic>& topics, const std::vector<OptionDescription>& options,
                       bool hidden) {
    const TopicNames names = sortedNames(topics);
    const std::vector<Listed> sorted = sortedByTopicAndName(options, names);
    std::string text;
    text.reserve(typicalEntrySize * options.size());
    for (const Topic& topic : topics) {
        if (!isShown(topic.first, hidden)) {
            continue;
        }
        appendHeading(text, topic);
        const Listed here = {rankOf(topic.first, names), {}, nullptr};
        const auto [first, last] = std::equal_range(sorted.begin(), sorted.end(), here, isTopicBefore);
        for (auto listed = first; listed != last; ++listed) {
            appendEntry(text, *listed->option);
        }
        text.append("\n");
    }
    return text;
}

} // namespace

const char* BasicParser::getDescription(std::vector<Topic> topics,
                                        const std::vector<OptionDescription>& options, bool hidden) {
    try {
        return m_garbage.init(renderHelp(topics, options, hidden).c_str());
    } catch (...) {
        m_lastError = messages::unknownErrorHandled;
        return getErrorDesc();
    }
}

const char* BasicParser::getDescription(bool hidden) {
    std::vector<std::string> names;
    for (const OptionDescription& option : m_registry.m_options) {
        if (option.m_kind == Action && isShown(option.m_topic.first, hidden)) {
            names.push_back(option.primaryName());
        }
    }
    if (names.empty()) {
        return getDescription(m_registry.m_topics, m_registry.m_options, hidden);
    }
    std::sort(names.begin(), names.end());
    std::string text;
    for (const std::string& name : names) {
        text.append("    ").append(name).append("\n");
    }
    return m_garbage.init(text.c_str());
}

const char* BasicParser::getDescription(const char* topic, bool hidden) {
    if (topic == nullptr) {
        return getDescription(hidden);
    }
    unsigned long index = 0;
    if (m_registry.find(topic, index) != 0) {
        return describeUnknown(topic, hidden);
    }
    const std::vector<OptionDescription> described(1, m_registry.m_options[index]);
    return getDescription(m_registry.m_topics, described, hidden);
}

const char* BasicParser::getActionModifiersDescription(const char* action, bool hidden) {
    if (action == nullptr) {
        return getDescription(hidden);
    }
    unsigned long index = 0;
    if (m_registry.find(action, index) != 0) {
        return describeUnknown(action, hidden);
    }
    std::vector<OptionDescription> modifiers;
    findActionModifiers(index, modifiers);
    return modifiers.empty() ? "" : getDescription(m_registry.m_topics, modifiers, hidden);
}

const char* BasicParser::getGlobalModifiersDescription(bool hidden) {
    const std::vector<OptionDescription> modifiers = getGlobalModifiers();
    return modifiers.empty() ? "" : getDescription(m_registry.m_topics, modifiers, hidden);
}

const char* BasicParser::describeUnknown(const char* name, bool hidden) {
    return m_garbage.init((messages::helpNotAvailable(name) + getDescription(hidden)).c_str());
}

void BasicParser::findActionModifiers(unsigned long actionIndex, std::vector<OptionDescription>& out) {
    const OptionDescription& action = m_registry.m_options.at(actionIndex);
    for (const OptionDescription& option : m_registry.m_options) {
        if (&option != &action && option.m_kind != Action && isIntersected(option.m_tags, action.m_tags)) {
            out.push_back(option);
        }
    }
}

std::vector<OptionDescription> BasicParser::getGlobalActions() const {
    std::vector<OptionDescription> actions;
    std::copy_if(m_registry.m_options.begin(), m_registry.m_options.end(), std::back_inserter(actions),
                 [](const OptionDescription& option) { return option.m_kind == Action; });
    return actions;
}

std::vector<OptionDescription> BasicParser::getGlobalModifiers() const {
    std::vector<OptionDescription> modifiers;
    std::copy_if(
        m_registry.m_options.begin(), m_registry.m_options.end(), std::back_inserter(modifiers),
        [](const OptionDescription& option) { return option.m_kind != Action && option.m_tags.empty(); });
    return modifiers;
}

} // namespace tarv_3_3
