#include "parser/phaseTwo.h"

#include <vector>

#include "parser/BasicParser.h"
#include "parser/messages.h"
#include "result/ParseResult.h"

namespace tarv_3_3 {

namespace messages = internal::messages;

namespace {

struct StoredOption {
    const OptionDescription* option;
    bool isGiven;
};

int checkTags(const BasicParser& parser, const OptionDescription& action,
              const std::vector<StoredOption>& others, std::string& message) {
    for (const StoredOption& other : others) {
        const auto& tags = other.option->m_tags;
        if (other.isGiven && !tags.empty() && !parser.isIntersected(action.m_tags, tags)) {
            message = messages::optionNotAccepted(action.primaryName(), other.option->primaryName());
            return parseFailed;
        }
    }
    return parseOk;
}

} // namespace

// Goes through the names in sorted order. That order decides which of two actions a message names first.
int checkStoredOptions(BasicParser& parser, const ParseResult& result, std::string& message) {
    RegisteredOptionStorage& registry = parser.registry();
    const OptionDescription* action = nullptr;
    std::vector<StoredOption> others;
    for (const internal::Entries::Entry* const entry : result.entries().listByName()) {
        unsigned long index = 0;
        const int status = registry.find(entry->name(), index);
        if (status != 0) {
            return status;
        }
        const OptionDescription& option = registry.m_options[index];
        if (option.m_kind != Action) {
            others.push_back({&option, !entry->group().positions.empty()});
        } else if (action == nullptr) {
            action = &option;
        } else if (action != &option) {
            message = messages::twoActions(option.primaryName(), action->primaryName());
            parser.setLastError(message);
            return parseFailed;
        }
    }
    if (action != nullptr) {
        return checkTags(parser, *action, others, message);
    }
    if (registry.m_hasActions && !others.empty()) {
        message = messages::noActionDefined;
        return parseFailed;
    }
    return parseOk;
}

} // namespace tarv_3_3
