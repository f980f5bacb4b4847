#include "typed/Command.h"

#include <algorithm>

#include "typed/Work.h"

namespace tarv_3_3::typed::engine {

Option::~Option() {
    if (state == nullptr) {
        return;
    }
    for (Owned* check = state->checks; check != nullptr;) {
        Owned* const behind = check->next;
        check->destroy(check);
        check = behind;
    }
    if (state->completer != nullptr) {
        state->completer->destroy(state->completer);
    }
    if (!isPlain()) {
        state->shape->destroy(state);
    }
}

bool Option::hasName(std::string_view wanted) const {
    return std::find(names.begin(), names.end(), wanted) != names.end();
}

Command::Command(Command* itsParent, const char* itsNames, const char* itsText)
    : parent(itsParent), names(namesOf(itsNames)), text(itsText != nullptr ? itsText : "") {}

Command::~Command() {
    if (body != nullptr) {
        body->destroy(body);
    }
}

std::vector<std::string> namesOf(const char* names) {
    std::string_view rest = names != nullptr ? names : "";
    std::vector<std::string> list;
    list.reserve(static_cast<std::size_t>(std::count(rest.begin(), rest.end(), ',')) + 1);
    for (std::size_t comma = rest.find(','); comma != std::string_view::npos; comma = rest.find(',')) {
        list.emplace_back(rest.substr(0, comma));
        rest.remove_prefix(comma + 1);
    }
    list.emplace_back(rest);
    return list;
}

// Commands nest only as deep as the host declares them.
// NOLINTBEGIN(misc-no-recursion)
std::string Command::path() const {
    return parent != nullptr ? parent->path() + " " + name() : name();
}

bool Command::hasActions() const {
    const bool hasOwn = std::any_of(options.begin(), options.end(),
                                    [](const auto& option) { return option->role == roleAction; });
    return hasOwn || (parent != nullptr && parent->hasActions());
}

Command* Command::findVerb(std::string_view wanted) const {
    for (const std::unique_ptr<Command>& verb : verbs) {
        if (std::find(verb->names.begin(), verb->names.end(), wanted) != verb->names.end()) {
            return verb.get();
        }
    }
    return nullptr;
}

Option* Command::findOption(std::string_view wanted) const {
    for (const std::unique_ptr<Option>& option : options) {
        if (!option->isPositional() && option->hasName(wanted)) {
            return option.get();
        }
    }
    return parent != nullptr ? parent->findOption(wanted) : nullptr;
}

// NOLINTEND(misc-no-recursion)

} // namespace tarv_3_3::typed::engine
