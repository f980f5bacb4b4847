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
    option.isBegun = false;
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
        names.push_back("'" + shownName(*option) + "'");
    }
    return names;
}

void checkActions(CommandLine& line) {
    if (!line.chosen->hasActions()) {
        return;
    }
    const Option* action = nullptr;
    for (const Occurrence& occurrence : line.occurrences) {
        if (occurrence.option->role != roleAction) {
            continue;
        }
        if (action != nullptr && action != occurrence.option) {
            line.complain(messages::twoActions(shownName(*action), shownName(*occurrence.option)));
        }
        action = occurrence.option;
    }
    for (const Occurrence& occurrence : line.occurrences) {
        if (occurrence.source == fromCommandLine && action != nullptr &&
            !goesWith(*occurrence.option, action)) {
            line.complain(messages::doesNotGoWith(shownName(*occurrence.option), shownName(*action)));
        }
        if (occurrence.source == fromCommandLine && action == nullptr) {
            line.complain(messages::noAction);
        }
    }
}

void checkOption(const Option& option, const Option* action, CommandLine& line) {
    const bool isMissing = (option.isRequired || option.least > 0) && !isOn(option);
    if (isMissing && goesWith(option, action)) {
        line.complain(option.isPositional() ? messages::argumentIsMissing(argumentName(option))
                                            : messages::isRequired(shownName(option)));
    } else if (option.isGiven() && option.state->source == fromCommandLine &&
               option.positions.size() < option.least) {
        line.complain(messages::tooFewArguments(argumentName(option), option.least));
    }
    for (const Option* needed : option.needed) {
        if (isOn(option) && !isOn(*needed)) {
            line.complain(messages::needs(shownName(option), shownName(*needed)));
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
        line.complain(messages::excludeEachOther(shownName(*given[0]), shownName(*given[1])));
    } else if ((rule.kind == atLeastOne || rule.kind == exactlyOne) && given.empty()) {
        line.complain(messages::oneIsRequired(quotedNames(rule.options)));
    } else if (rule.kind == allOrNone && !given.empty() && missing != nullptr) {
        line.complain(messages::goTogether(quotedNames(rule.options), "'" + shownName(*missing) + "'"));
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
