#include "typed/OptionNames.h"

#include <algorithm>

#include "options/findOption.h"
#include "platform/hashOf.h"
#include "typed/Command.h"

namespace tarv_3_3::typed::engine {

namespace {

// The switch that a name turns off, or null.
Option* findNegated(const OptionNames& names, std::string_view name) {
    Option* const option = beginsWithNegation(name) ? names.find(name.substr(negation.size())) : nullptr;
    return option != nullptr && option->isSwitch() ? option : nullptr;
}

// Whether a name of one command is given in another one.
bool haveCommonName(const Command& below, const OptionNames& above) {
    const auto isKnown = [&](const std::string& name) {
        return above.find(name) != nullptr || findNegated(above, name) != nullptr;
    };
    const bool isNegated =
        std::any_of(above.negativeNames().begin(), above.negativeNames().end(),
                    [&](std::string_view name) { return findNegated(below.optionNames(), name) != nullptr; });
    return isNegated || std::any_of(below.options.begin(), below.options.end(), [&](const auto& option) {
               return !option->isPositional() &&
                      std::any_of(option->names.begin(), option->names.end(), isKnown);
           });
}

} // namespace

void OptionNames::learn(const std::vector<std::unique_ptr<Option>>& options) {
    if (m_learned == options.size()) {
        return;
    }
    std::size_t names = 0;
    for (const std::unique_ptr<Option>& option : options) {
        names += option->names.size();
    }
    makeRoom(names);
    for (const std::unique_ptr<Option>& option : options) {
        if (!option->isPositional()) {
            std::for_each(option->names.begin(), option->names.end(),
                          [&](const std::string& name) { add(*option, name); });
        }
    }
    for (const std::string_view name : m_negativeNames) {
        m_isAnyTwice = m_isAnyTwice || findNegated(*this, name) != nullptr;
    }
    m_learned = options.size();
}

void OptionNames::makeRoom(std::size_t names) {
    std::size_t slots = 16;
    while (slots < 2 * names) {
        slots *= 2;
    }
    m_slots.assign(slots, Slot{0, nullptr});
    m_negativeNames.clear();
    m_isAnyTwice = false;
}

void OptionNames::add(Option& option, std::string_view name) {
    const std::size_t hash = internal::hashOf(name);
    std::size_t slot = hash & (m_slots.size() - 1);
    for (; m_slots[slot].option != nullptr; slot = (slot + 1) & (m_slots.size() - 1)) {
        m_isAnyTwice = m_isAnyTwice || (m_slots[slot].hash == hash && m_slots[slot].option->hasName(name));
    }
    m_slots[slot] = {hash, &option};
    if (beginsWithNegation(name)) {
        m_negativeNames.push_back(name);
    }
}

Option* OptionNames::find(std::string_view name) const {
    if (m_slots.empty()) {
        return nullptr;
    }
    const std::size_t hash = internal::hashOf(name);
    std::size_t slot = hash & (m_slots.size() - 1);
    while (m_slots[slot].option != nullptr &&
           (m_slots[slot].hash != hash || !m_slots[slot].option->hasName(name))) {
        slot = (slot + 1) & (m_slots.size() - 1);
    }
    return m_slots[slot].option;
}

bool areNamesUnique(const Command& command) {
    bool areUnique = true;
    for (const Command* below = &command; below != nullptr && areUnique; below = below->parent) {
        areUnique = !below->optionNames().isAnyTwice();
        for (const Command* above = below->parent; above != nullptr && areUnique; above = above->parent) {
            areUnique = !haveCommonName(*below, above->optionNames());
        }
    }
    return areUnique;
}

Option* findWhole(const Command& command, std::string_view typed) {
    Option* found = nullptr;
    bool isOne = true;
    for (const Command* each = &command; each != nullptr; each = each->parent) {
        Option* const own = each->optionNames().find(typed);
        Option* const negated = findNegated(each->optionNames(), typed);
        isOne = isOne && (own == nullptr || negated == nullptr) &&
                (found == nullptr || (own == nullptr && negated == nullptr));
        found = own != nullptr ? own : negated != nullptr ? negated : found;
    }
    return isOne ? found : nullptr;
}

} // namespace tarv_3_3::typed::engine
