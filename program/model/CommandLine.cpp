#include "model/CommandLine.h"

#include <algorithm>

namespace tarv_program {

const std::string* Option::note(std::string_view key) const {
    for (const Note& said : notes) {
        if (said.first == key) {
            return &said.second;
        }
    }
    return nullptr;
}

std::string Option::shownName() const {
    if (positional == Positional::no) {
        return "--" + primaryName();
    }
    if (!isSlot()) {
        return primaryName();
    }
    if (const std::string* const value = note("value")) {
        return *value;
    }
    std::string name = primaryName();
    std::transform(name.begin(), name.end(), name.begin(), [](char byte) {
        return 'a' <= byte && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
    });
    return name;
}

std::vector<std::string> Option::typedNames() const {
    if (isSlot()) {
        return {};
    }
    std::vector<std::string> typed = names;
    if (isSwitch()) {
        for (const std::string& name : names) {
            typed.push_back("no-" + name);
        }
    }
    return typed;
}

} // namespace tarv_program
