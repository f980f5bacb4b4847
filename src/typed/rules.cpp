#include "typed/rules.h"

#include <algorithm>

#include "typed/messages.h"
#include "typed/numbers.h"

namespace tarv_3_3::typed::engine {

namespace {

// A switch that was turned off counts as not given.
bool isOn(const Option& option) {
    return option.isGiven() && !(option.isSwitch() && readSwitchText(option.lastText) == 0);
}

void forget(Option& option) {
    option.state->given = 0;
    option.state->count = 0;
    option.state->source = fromInitial;
    option.state->positions = nullptr;
    option.positions.clear();
    option.lastText = "";
    option.storedCount = 0;
    option.elementCount = 0;
}

void note(const Occurrence& occurrence) {
    Option& option = *occurrence.option;
    option.positions.push_back(occurrence.place);
    option.lastText = occurrence.text;
    option.state->given = 1;
    option.state->source = occurrence.source;
    option.state->count = static_cast<int>(option.positions.size());
    option.state->positions = option.positions.data();
}

void drop(Option& option, CommandLine& line) {
    forget(option);
    for (Occurrence& occurrence : line.occurrences) {
        occurrence.isOnlyChecked = occurrence.isOnlyChecked || occurrence.option == &option;
    }
}

// Commands nest only as deep as the host declares them.
// NOLINTBEGIN(misc-no-recursion)
template <class Visit>
void forEachCommandAbove(const Command& command, Visit visit) {
    if (command.parent != nullptr) {
        forEachCommandAbove(*command.parent, visit);
    }
    visit(command);
}

// NOLINTEND(misc-no-recursion)

bool isForOne(const GroupRule& rule) {
    return rule.kind == atMostOne || rule.kind == exactlyOne;
}

void dropWeaker(const GroupRule& rule, CommandLine& line) {
    int strongest = fromInitial;
    for (const Option* option : rule.options) {
        strongest = std::max(strongest, isOn(*option) ? option->state->source : strongest);
    }
    for (Option* option : rule.options) {
        if (isOn(*option) && option->state->source < strongest) {
            drop(*option, line);
        }
    }
}

const Option* givenAction(const Command& command) {
    const Option* given = nullptr;
    forEachOptionAbove(command, [&](const Option& option) {
        given = option.role == roleAction && option.isGiven() ? &option : given;
    });
    return given;
}

bool goesWith(const Option& option, const Option* action) {
    return option.actions.empty() || action == nullptr ||
           std::find(option.actions.begin(), option.actions.end(), action) != option.actions.end();
}

// An action of the command line takes the place of one in a settings file.
void dropWeakerActions(CommandLine& line) {
    GroupRule actions = {atMostOne, {}};
    forEachOptionAbove(*line.chosen, [&](Option& option) {
        if (option.role == roleAction) {
            actions.options.push_back(&option);
        }
    });
    dropWeaker(actions, line);
}

void dropByAction(CommandLine& line) {
    const Option* const action = givenAction(*line.chosen);
    forEachOptionAbove(*line.chosen, [&](Option& option) {
        if (option.isGiven() && option.state->source < fromCommandLine && !goesWith(option, action)) {
            drop(option, line);
        }
    });
}

std::vector<std::string> quotedNames(const std::vector<Option*>& options) {
    std::vector<std::string> names;
    names.reserve(options.size());
    for (const Option* option : options) {
        names.push_back(quotedName(*option));
    }
    return names;
}

// What all of them are; empty where they are of several kinds.
const char* kindsOf(const std::vector<Option*>& options) {
    const auto areAll = [&](auto isOne) {
        return std::all_of(options.begin(), options.end(),
                           [&](const Option* option) { return isOne(*option); });
    };
    return areAll([](const Option& option) { return option.role == roleOption; })   ? "options"
           : areAll([](const Option& option) { return option.role == roleAction; }) ? "actions"
           : areAll([](const Option& option) { return option.isPositional(); })     ? "arguments"
                                                                                    : "";
}

void complainOfTwo(Option* one, Option* other, CommandLine& line) {
    const std::vector<Option*> both = {one, other};
    line.complain(messages::excludeEachOther(kindsOf(both), quotedNames(both)));
}

void checkActions(CommandLine& line) {
    if (!line.chosen->hasActions()) {
        return;
    }
    Option* action = nullptr;
    for (const Occurrence& occurrence : line.occurrences) {
        if (occurrence.option->role != roleAction || occurrence.isOnlyChecked) {
            continue;
        }
        if (action != nullptr && action != occurrence.option) {
            complainOfTwo(action, occurrence.option, line);
        }
        action = occurrence.option;
    }
    if (action == nullptr) {
        line.complain(messages::noAction);
        return;
    }
    for (const Occurrence& occurrence : line.occurrences) {
        if (occurrence.source == fromCommandLine && !goesWith(*occurrence.option, action)) {
            line.complain(messages::doesNotGoWith(calledName(*occurrence.option), calledName(*action)));
        }
    }
}

void checkOption(const Option& option, const Option* action, CommandLine& line) {
    const bool isMissing = (option.isRequired || option.least > 0) && !isOn(option);
    if (isMissing && goesWith(option, action)) {
        line.complain(option.isPositional() ? messages::argumentIsMissing(calledName(option))
                                            : messages::isRequired(calledName(option)));
    } else if (option.isGiven() && option.elementCount < option.least) {
        line.complain(messages::tooFewArguments(calledName(option), option.least));
    }
    for (const Option* needed : option.needed) {
        if (isOn(option) && !isOn(*needed)) {
            line.complain(messages::needs(calledName(option), calledName(*needed)));
        }
    }
}

void checkGroup(const GroupRule& rule, CommandLine& line) {
    std::vector<Option*> given;
    const Option* missing = nullptr;
    for (Option* option : rule.options) {
        if (isOn(*option)) {
            given.push_back(option);
        } else if (missing == nullptr) {
            missing = option;
        }
    }
    if (isForOne(rule) && given.size() > 1) {
        complainOfTwo(given[0], given[1], line);
    } else if ((rule.kind == atLeastOne || rule.kind == exactlyOne) && given.empty()) {
        line.complain(messages::oneIsRequired(kindsOf(rule.options), quotedNames(rule.options)));
    } else if (rule.kind == allOrNone && !given.empty() && missing != nullptr) {
        line.complain(
            messages::goTogether(kindsOf(rule.options), quotedNames(rule.options), quotedName(*missing)));
    }
}

} // namespace

void noteGiven(Command& program, const CommandLine& line) {
    forEachOptionBelow(program, forget);
    for (const Occurrence& occurrence : line.occurrences) {
        if (!occurrence.isOnlyChecked) {
            note(occurrence);
        }
    }
}

void dropExcluded(CommandLine& line) {
    forEachCommandAbove(*line.chosen, [&](const Command& command) {
        for (const GroupRule& rule : command.rules) {
            if (isForOne(rule)) {
                dropWeaker(rule, line);
            }
        }
    });
    dropWeakerActions(line);
    dropByAction(line);
}

void checkRules(CommandLine& line) {
    checkActions(line);
    const Option* const action = givenAction(*line.chosen);
    forEachOptionAbove(*line.chosen, [&](const Option& option) { checkOption(option, action, line); });
    forEachCommandAbove(*line.chosen, [&](const Command& command) {
        for (const GroupRule& rule : command.rules) {
            checkGroup(rule, line);
        }
    });
}

} // namespace tarv_3_3::typed::engine
