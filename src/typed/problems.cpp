#include "typed/problems.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <string_view>
#include <unordered_set>

#include "description/terminalText.h"
#include "options/findOption.h"
#include "recognition/tokenSyntax.h"
#include "typed/CommandLine.h"
#include "typed/Taking.h"
#include "typed/positionals.h"

namespace tarv_3_3::typed::engine {

namespace {

// Whether a byte of it would end it on a command line. Every name is asked in every run, and this is a tenth
// of the cost of std::string::find_first_of.
bool isCut(const std::string& name) {
    return std::strpbrk(name.c_str(), "= \t\n\v\f\r") != nullptr;
}

bool isOneOf(const std::string& text, std::initializer_list<const char*> texts) {
    return std::any_of(texts.begin(), texts.end(), [&](const char* known) { return text == known; });
}

// Commands nest only as deep as the host declares them.
// NOLINTBEGIN(misc-no-recursion)
/// The names of a command, which those of the commands above may not be.
class TakenNames {
public:
    explicit TakenNames(const TakenNames* above) : m_above(above) {}

    /// Takes all names of a command at once; false, with none taken, unless they are certainly free.
    bool takeAll(const Command& command) {
        for (const std::unique_ptr<Option>& option : command.options) {
            if (option->isPositional()) {
                continue;
            }
            for (const std::string& name : option->names) {
                m_names.push_back(name);
                if (option->isSwitch()) {
                    m_switches.push_back(name);
                }
            }
        }
        std::sort(m_names.begin(), m_names.end());
        std::sort(m_switches.begin(), m_switches.end());
        const bool isRepeated = std::adjacent_find(m_names.begin(), m_names.end()) != m_names.end();
        const bool areFree =
            !isRepeated && !negates(m_names, m_switches) && (m_above == nullptr || !m_above->holdAny(*this));
        if (!areFree) {
            m_names.clear();
            m_switches.clear();
        }
        return areFree;
    }

    /// Whether the name was free.
    bool take(std::string_view name, bool isSwitch) {
        const bool isFree = !isTaken(name) && !(isSwitch && isTaken("no-" + std::string(name)));
        insert(m_names, name);
        if (isSwitch) {
            insert(m_switches, name);
        }
        return isFree;
    }

    bool isTaken(std::string_view name) const { return isOwn(name) || isTakenAbove(name); }
    bool isTakenAbove(std::string_view name) const { return m_above != nullptr && m_above->isTaken(name); }

private:
    // Whether one of the names is the "no-" form of one of the switches.
    static bool negates(const std::vector<std::string_view>& names,
                        const std::vector<std::string_view>& switches) {
        return std::any_of(names.begin(), names.end(), [&](std::string_view name) {
            return beginsWithNegation(name) && holds(switches, name.substr(negation.size()));
        });
    }

    // Whether one of the names is here or above, also as the "no-" form of a switch.
    bool holdAny(const TakenNames& below) const {
        const auto isKnown = [this](std::string_view name) { return isTaken(name); };
        return std::any_of(below.m_names.begin(), below.m_names.end(), isKnown) ||
               negates(m_names, below.m_switches) || (m_above != nullptr && m_above->holdAny(below));
    }

    bool isOwn(std::string_view name) const {
        return holds(m_names, name) ||
               (beginsWithNegation(name) && holds(m_switches, name.substr(negation.size())));
    }

    static bool holds(const std::vector<std::string_view>& names, std::string_view name) {
        return std::binary_search(names.begin(), names.end(), name);
    }
    static void insert(std::vector<std::string_view>& names, std::string_view name) {
        names.insert(std::upper_bound(names.begin(), names.end(), name), name);
    }

    const TakenNames* m_above;
    /// Sorted, as those of switches are.
    std::vector<std::string_view> m_names;
    std::vector<std::string_view> m_switches;
};

/// Looks at a program, verb by verb.
class ProblemFinder {
public:
    ProblemFinder(bool areNamesFree, bool hasBodies) : m_areNamesFree(areNamesFree), m_hasBodies(hasBodies) {}

    void look(const Command& command, const TakenNames* above) {
        m_where = command.path();
        TakenNames names(above);
        const bool areFree = m_areNamesFree || names.takeAll(command);
        for (const std::unique_ptr<Option>& option : command.options) {
            std::for_each(option->names.begin(), option->names.end(),
                          [&](const auto& name) { lookAtName(name); });
            if (!areFree && !option->isPositional()) {
                takeNames(*option, names);
            }
            lookAtOption(*option);
        }
        lookAtPositionals(command);
        lookAtRules(command);
        lookAtVerbs(command);
        for (const std::unique_ptr<Command>& verb : command.verbs) {
            look(*verb, &names);
        }
    }

    std::vector<std::string> take() { return std::move(m_problems); }

private:
    void add(const std::string& name, const std::string& what) {
        m_problems.push_back(m_where + ": '" + name + "': " + what);
    }

    // Whether what every name must be holds.
    void lookAtName(const std::string& name) {
        if (name.empty()) {
            add(name, "a name is empty");
        } else if (dashLength(name) != 0) {
            add(name, "names are without dashes in front");
        } else if (isCut(name)) {
            add(name, "a name has no blank and no '='");
        }
    }

    void takeNames(const Option& option, TakenNames& names) {
        for (const std::string& name : option.names) {
            const bool isAbove = names.isTakenAbove(name);
            if (!names.take(name, option.isSwitch())) {
                add(name,
                    isAbove ? "the name is taken by an option of the command above" : "the name is taken");
            }
        }
    }

    void lookAtOption(Option& option) {
        for (const std::string& fault : option.faults) {
            add(option.name(), fault);
        }
        if (option.isRequired && option.hasDefault) {
            add(option.name(), "it is required and has a default");
        }
        lookForNegation(option);
        if (!option.isPositional() && option.isMany() && option.least + option.most != 0) {
            add(option.name(), "times() is for positional arguments");
        }
        if (option.most != 0 && option.least > option.most) {
            add(option.name(), "it takes fewer arguments at most than at least");
        }
        if (option.isPositional() && option.least > 1 && !option.environment.empty()) {
            add(option.name(), "it takes at least " + std::to_string(option.least) +
                                   " arguments, and its environment variable holds one");
        }
        if (!option.completeAs.empty() && !isOneOf(option.completeAs, {"file", "directory", "none"})) {
            add(option.name(), "shells complete \"file\", \"directory\" or \"none\"");
        }
        if (option.environment.find('=') != std::string::npos) {
            add(option.name(), "the name of an environment variable holds no '='");
        }
        lookAtDefault(option);
        lookAtOthers(option);
    }

    // The parse takes it as "no-" in front of a name.
    void lookForNegation(const Option& option) {
        if (!option.isSwitch()) {
            return;
        }
        for (const std::string& name : option.names) {
            if (beginsWithNegation(name)) {
                add(name, "a switch whose name begins with \"no-\" is off when it is given");
            }
        }
    }

    void lookAtDefault(Option& option) {
        if (!option.hasDefault || option.isSwitch()) {
            return;
        }
        for (const std::string& text : option.defaults) {
            Taking taking;
            taking.option = &option;
            const bool isTextAtWill = text.empty() && option.choices.empty();
            if (option.shape().kind != kindForeign && !isTextAtWill && !isValue(taking, text.c_str())) {
                add(option.name(), "its default " + internal::terminalText(text) + " " + taking.reason);
            }
        }
    }

    void lookAtOthers(const Option& option) {
        for (const Option* needed : option.needed) {
            if (needed == nullptr || !option.owner->isWithin(*needed->owner)) {
                add(option.name(), "it needs an option that does not go with it");
            }
        }
        for (const Option* action : option.actions) {
            if (action == nullptr || action->role != roleAction) {
                add(option.name(), "goesWith() takes actions");
            }
        }
    }

    void lookAtPositionals(const Command& command) {
        int lists = 0;
        bool isBehindRest = false;
        for (const Option* option : positionalsOf(command)) {
            lists += option->isMany() ? 1 : 0;
            if (isBehindRest) {
                add(option->name(), "nothing stands behind a rest");
            } else if (option->isMany() && lists > 1) {
                add(option->name(), "a second list of positional arguments");
            }
            isBehindRest = isBehindRest || option->role == roleRest;
            if (!command.verbs.empty()) {
                add(option->name(), "a command with verbs takes no positional arguments");
            }
        }
    }

    void lookAtRules(const Command& command) {
        for (const GroupRule& rule : command.rules) {
            if (rule.options.size() < 2) {
                add(command.name(), "a rule is over two options or more");
            }
            std::unordered_set<const Option*> seen;
            for (const Option* option : rule.options) {
                if (option != nullptr && !seen.insert(option).second) {
                    add(option->name(), "it stands twice in a rule");
                }
                if (option == nullptr || !command.isWithin(*option->owner)) {
                    add(option != nullptr ? option->name() : "", "a rule is over options of another command");
                }
            }
        }
    }

    void lookAtVerbs(const Command& command) {
        std::set<std::string_view> names;
        for (const std::unique_ptr<Command>& verb : command.verbs) {
            for (const std::string& name : verb->names) {
                lookAtName(name);
                if (!names.insert(name).second) {
                    add(name, "the name of the verb is taken");
                }
            }
        }
        if (!command.verbs.empty() && command.hasActions()) {
            add(command.name(), "a program has verbs or actions, not both");
        }
        lookForBodies(command);
    }

    // A host that never gives a body only parses, and reads handles.
    void lookForBodies(const Command& command) {
        for (const std::unique_ptr<Command>& verb : command.verbs) {
            if (m_hasBodies && verb->verbs.empty() && verb->body == nullptr) {
                add(verb->name(), "the verb has no body, although another command has one");
            }
        }
    }

    /// Whether no name of an option is taken; then they need not be looked at one by one.
    const bool m_areNamesFree;
    /// Whether a command of the program has one.
    const bool m_hasBodies;
    std::string m_where;
    std::vector<std::string> m_problems;
};

bool areNamesFree(const Command& command) {
    return areNamesUnique(command) && std::all_of(command.verbs.begin(), command.verbs.end(),
                                                  [](const auto& verb) { return areNamesFree(*verb); });
}

bool hasBodies(const Command& command) {
    return command.body != nullptr || std::any_of(command.verbs.begin(), command.verbs.end(),
                                                  [](const auto& verb) { return hasBodies(*verb); });
}

// NOLINTEND(misc-no-recursion)

} // namespace

std::vector<std::string> findProblems(const Command& program) {
    ProblemFinder finder(areNamesFree(program), hasBodies(program));
    finder.look(program, nullptr);
    return finder.take();
}

} // namespace tarv_3_3::typed::engine
