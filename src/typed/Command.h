#pragma once

#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "typed/Option.h"
#include "typed/OptionNames.h"

namespace tarv_3_3 {

class BasicParser;

namespace typed::engine {

class Work;

/// The names in a list with commas; one empty name where there are none.
std::vector<std::string> namesOf(const char* names);

/// A rule over several options.
struct GroupRule {
    int kind;
    std::vector<Option*> options;
};

// Commands nest only as deep as the host declares them.
// NOLINTBEGIN(misc-no-recursion)
/// A program or a verb. Verbs belong to the command above them; the topmost one, which has no parent, has
/// what concerns the program as a whole.
struct Command {
    Command(Command* itsParent, const char* itsNames, const char* itsText);
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
    ~Command();

    const std::string& name() const { return names.front(); }
    Command& program() { return parent != nullptr ? parent->program() : *this; }
    const Command& program() const { return parent != nullptr ? parent->program() : *this; }
    /// The names of all commands down to this one, as in "vcs log".
    std::string path() const;
    bool isWithin(const Command& other) const {
        return this == &other || (parent != nullptr && parent->isWithin(other));
    }
    bool hasActions() const;
    /// The verb with exactly this name, or null.
    Command* findVerb(std::string_view wanted) const;
    /// The option of this command, or of those above it, with exactly this name, or null.
    Option* findOption(std::string_view wanted) const;
    /// Of its own options.
    const OptionNames& optionNames() const {
        m_optionNames.learn(options);
        return m_optionNames;
    }

    Command* parent;
    std::vector<std::string> names;
    std::string text;
    std::vector<std::unique_ptr<Command>> verbs;
    std::vector<std::unique_ptr<Option>> options;
    std::vector<GroupRule> rules;
    Body* body = nullptr;
    /// What stands for it in the host.
    void* face = nullptr;

    ///@{
    /// Of the program alone.
    bool hasVersion = false;
    std::string version;
    std::string settingsFile;
    Option* settingsOption = nullptr;
    /// What values without memory of their own point to; a list leaves its elements where they are.
    std::list<std::string> keptTexts;
    bool joinsLetters = false;
    /// Whether something could not be declared.
    bool isOutOfMemory = false;
    /// Whether the parse at hand could not be done.
    bool hasParseFailed = false;
    std::unique_ptr<Work> work;
    std::string problems;
    bool isProblemTold = false;
    /// Ready before there is no memory to make it.
    std::string outOfMemory;
    Result result = {};
    ///@}

private:
    mutable OptionNames m_optionNames;
};

/// Calls `visit` with every option of a command and of the verbs below it.
template <class Visit>
void forEachOptionBelow(Command& command, Visit visit) {
    for (const std::unique_ptr<Option>& option : command.options) {
        visit(*option);
    }
    for (const std::unique_ptr<Command>& verb : command.verbs) {
        forEachOptionBelow(*verb, visit);
    }
}

/// Calls `visit` with every option that goes with a command: those of the topmost one first.
template <class Visit>
void forEachOptionAbove(const Command& command, Visit visit) {
    if (command.parent != nullptr) {
        forEachOptionAbove(*command.parent, visit);
    }
    for (const std::unique_ptr<Option>& option : command.options) {
        visit(*option);
    }
}

// NOLINTEND(misc-no-recursion)

} // namespace typed::engine

} // namespace tarv_3_3
