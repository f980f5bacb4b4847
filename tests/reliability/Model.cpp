#include "reliability/Model.h"

#include <algorithm>

#include "reliability/ModelValues.h"

using namespace tarv_3_3;

namespace model {

namespace {

constexpr int noStatus = -1;

using Words = std::vector<std::string>;

struct Candidate {
    std::string name;
    int score;
};

std::size_t dashAt(const std::string& text, std::size_t position) {
    for (const std::string dash : {"-", "\u2012", "\u2013", "\u2014", "\u2015", "\u2053"}) {
        if (text.compare(position, dash.size(), dash) == 0) {
            return dash.size();
        }
    }
    return 0;
}

struct Token {
    std::string name;
    std::string value;
};

Token cut(const std::string& argument) {
    std::size_t start = dashAt(argument, 0);
    start += dashAt(argument, start);
    const std::string blanks = " \t\n\v\f\r";
    const std::size_t end = argument.find_first_of("=" + blanks, start);
    if (end == std::string::npos) {
        return {argument.substr(start), ""};
    }
    std::string value = argument.substr(end + 1);
    if (argument[end] != '=') {
        value.erase(0, std::min(value.find_first_not_of(blanks), value.size()));
    }
    return {argument.substr(start, end - start), value};
}

Words wordsOf(const std::string& name) {
    Words words = {""};
    for (const char character : name) {
        if (character == '-') {
            words.emplace_back();
        } else {
            words.back() += character;
        }
    }
    return words;
}

// 2 for every word in full, 1 for every proper prefix; 0 when the name does not match.
int scoreOf(const std::string& typed, const std::string& name) {
    const Words typedWords = wordsOf(typed);
    const Words words = wordsOf(name);
    if (typedWords.size() != words.size()) {
        return 0;
    }
    int score = 0;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (!beginsWith(words[i], typedWords[i])) {
            return 0;
        }
        score += words[i] == typedWords[i] ? 2 : 1;
    }
    return score;
}

std::vector<std::string> bestNames(const std::vector<Option>& table, const std::string& typed) {
    std::vector<std::string> candidates;
    for (const Option& option : table) {
        for (const std::string& name : option.names) {
            candidates.push_back(name);
            if (option.kind == vtBool) {
                candidates.push_back("no-" + name);
            }
        }
    }
    int best = 1;
    for (const std::string& name : candidates) {
        best = std::max(best, scoreOf(typed, name));
    }
    std::vector<std::string> names;
    for (const std::string& name : candidates) {
        if (scoreOf(typed, name) == best) {
            names.push_back(name);
        }
    }
    return names;
}

const Option* find(const std::vector<Option>& table, const std::string& wanted) {
    for (const Option& option : table) {
        for (const std::string& name : option.names) {
            if (wanted == name || (option.kind == vtBool && wanted == "no-" + name)) {
                return &option;
            }
        }
    }
    return nullptr;
}

const Option* positionalOf(const std::vector<Option>& table) {
    for (const Option& option : table) {
        if (option.positional) {
            return &option;
        }
    }
    return nullptr;
}

/// One command line on its way.
class Parse {
public:
    Parse(const std::vector<Option>& table, int flags) : m_table(table), m_flags(flags) {}

    Outcome run(std::vector<std::string> arguments) {
        applyDefaults();
        if (!arguments.empty()) {
            m_outcome.status = upToMarker(arguments);
            if (m_outcome.status == 0) {
                m_outcome.status = behindMarker(arguments);
            }
            if (m_outcome.status == 0) {
                m_outcome.status = checkActions();
            }
        }
        return m_outcome;
    }

private:
    void applyDefaults() {
        for (const Option& option : m_table) {
            if (option.kind == vtNull || option.defaultText.empty()) {
                continue;
            }
            for (const std::string& name : option.names) {
                m_outcome.entries[name].defaultText = option.defaultText;
                m_outcome.entries[name].defaultPosition = m_next++;
            }
        }
    }

    int fail(int status, const std::string& message) {
        m_outcome.message = message;
        return status;
    }

    bool isPositional(const std::string& argument) const {
        const bool barred = (m_flags & 0x08) != 0 && beginsWith(argument, "-");
        return !barred && positionalOf(m_table) != nullptr;
    }

    int upToMarker(std::vector<std::string>& arguments) {
        int status = 0;
        while (status == 0 && !arguments.empty() && arguments[0] != "--") {
            const std::string argument = arguments[0];
            const bool mayBeNamed = argument.size() >= 2 && dashAt(argument, 0) != 0;
            const std::vector<std::string> names =
                mayBeNamed ? bestNames(m_table, cut(argument).name) : std::vector<std::string>();
            status = !names.empty()           ? named(arguments, names)
                     : isPositional(argument) ? positional(arguments)
                                              : unknown(arguments);
        }
        return status;
    }

    int unknown(std::vector<std::string>& arguments) {
        const std::string argument = arguments[0];
        m_outcome.events.push_back("unknown " + argument);
        const bool isBlamed = argument.find("known") != std::string::npos;
        if ((m_flags & 0x02) != 0 && !isBlamed) {
            return fail(2, "Unknown option: " + argument);
        }
        arguments.erase(arguments.begin());
        return 0;
    }

    int named(std::vector<std::string>& arguments, const std::vector<std::string>& names) {
        const std::string argument = arguments[0];
        const std::string inArgument = " in argument: '" + argument + "'";
        const Token token = cut(argument);
        if (token.name.empty() || token.name[0] == '-') {
            return fail(2, "Unknown option '" + argument + "'");
        }
        if (names.size() > 1) {
            return fail(2, "Ambiguous option '" + token.name + "'" + inArgument +
                               ", could be: " + listed(names));
        }
        const Option& option = *find(m_table, names[0]);
        const std::string& name = option.names[0];
        std::string value = token.value;
        std::size_t consumed = 1;
        if (option.kind == vtNull) {
            if (!value.empty()) {
                return fail(2, "Option '" + name + "'does not requires a value" + inArgument);
            }
        } else if (option.kind == vtBool) {
            if (!value.empty()) {
                return fail(2, "Option '" + name +
                                   "' is boolean and should be declared in form '--option' or '--no-option'" +
                                   inArgument);
            }
            value = beginsWith(names[0], "no-") ? "0" : "1";
        } else if (value.empty()) {
            const std::string next = arguments.size() > 1 ? arguments[1] : "";
            if (next.empty()) {
                return fail(2, "Option '" + name + "' requires a value" + inArgument);
            }
            if (next[0] == '-') {
                return fail(2, "Option '" + name + "' received value from the next argument: '" + next +
                                   "', but it seems to be an option. Use '-option=value' declaration form or "
                                   "make sure that value is not missed");
            }
            value = next;
            consumed = 2;
        }
        m_outcome.events.push_back("option " + name);
        const int status = bind(value, option, argument);
        if (status == 0) {
            arguments.erase(arguments.begin(), arguments.begin() + static_cast<std::ptrdiff_t>(consumed));
        }
        return status;
    }

    int positional(std::vector<std::string>& arguments) {
        int status = noStatus;
        while (!arguments.empty() && (status == noStatus || (status == 0 && (m_flags & 0x10) != 0))) {
            m_outcome.events.push_back("option " + m_table[0].names[0]);
            status = bind(arguments[0], *positionalOf(m_table), arguments[0]);
            if (status == 0) {
                arguments.erase(arguments.begin());
            }
        }
        return status;
    }

    int bind(const std::string& value, const Option& option, const std::string& argument) {
        const std::string& name = option.names[0];
        Entry given;
        given.positions.push_back(m_next++);
        const std::vector<std::string> parts =
            value.empty() ? std::vector<std::string>() : pieces(value, option.separator);
        if (!value.empty() && parts.empty()) {
            return fail(2, "No value parsed in argument '" + value + "' for option '" + name + "'");
        }
        for (std::string part : parts) {
            const std::string complaint = validate(part, option);
            if (!complaint.empty()) {
                return fail(2, "Value validation problem in argument '" + argument + "': " + complaint);
            }
            const int position = m_next++;
            m_outcome.events.push_back("value " + name + "=" + part + "@" + std::to_string(position));
            if (part == "vv") {
                return fail(1, "Value '" + (option.separator == '\0' ? part : value) +
                                   "' is not valid for option '" + name + "' in argument '" + argument + "'");
            }
            given.values.push_back({part, position});
        }
        store(option, given);
        return 0;
    }

    void store(const Option& option, const Entry& given) {
        const bool isFirst = m_outcome.entries.count(option.names[0]) == 0;
        for (const std::string& name : option.names) {
            Entry& entry = m_outcome.entries[name];
            if (isFirst) {
                entry = given;
            } else {
                entry.positions.insert(entry.positions.end(), given.positions.begin(), given.positions.end());
                entry.values.insert(entry.values.end(), given.values.begin(), given.values.end());
            }
        }
    }

    int behindMarker(const std::vector<std::string>& arguments) {
        for (std::size_t i = 1; i < arguments.size(); ++i) {
            m_outcome.plain.push_back(arguments[i]);
            ++m_next;
            if ((m_flags & 0x04) != 0 && positionalOf(m_table) != nullptr) {
                std::vector<std::string> one = {arguments[i]};
                const int status = positional(one);
                if (status != 0) {
                    return status;
                }
            }
        }
        return 0;
    }

    int checkActions() {
        const Option* action = nullptr;
        bool otherSeen = false;
        for (const auto& [name, entry] : m_outcome.entries) {
            const Option* const option = find(m_table, name);
            if (!option->isAction) {
                otherSeen = true;
            } else if (action != nullptr && action != option) {
                return fail(2, "Action '-" + option->names[0] + "' and action '-" + action->names[0] +
                                   "' were defined, but only one action possible.");
            } else {
                action = option;
            }
        }
        if (action == nullptr) {
            const bool areDeclared = std::any_of(m_table.begin(), m_table.end(),
                                                 [](const Option& option) { return option.isAction; });
            return areDeclared && otherSeen ? fail(2, "No action defined.") : 0;
        }
        for (const auto& [name, entry] : m_outcome.entries) {
            const Option* const option = find(m_table, name);
            const bool fits =
                std::any_of(option->tags.begin(), option->tags.end(),
                            [&](const std::string& tag) { return action->tags.count(tag) != 0; });
            if (!option->isAction && !option->tags.empty() && !fits && !entry.positions.empty()) {
                return fail(2, "Action '-" + action->names[0] + "' doesn't accept option '-" +
                                   option->names[0] + "'");
            }
        }
        return 0;
    }

    const std::vector<Option>& m_table;
    const int m_flags;
    int m_next = 1;
    Outcome m_outcome;
};

} // namespace

bool mayDeclare(const std::vector<Option>& table, const std::vector<std::string>& names) {
    return std::none_of(names.begin(), names.end(),
                        [&](const std::string& name) { return find(table, name) != nullptr; });
}

Outcome parse(const std::vector<Option>& table, int flags, std::vector<std::string> arguments) {
    return Parse(table, flags).run(std::move(arguments));
}

std::string query(const Outcome& outcome, const std::string& name, int lo, int hi) {
    const auto found = outcome.entries.find(name);
    if (found == outcome.entries.end()) {
        return "absent";
    }
    const Entry& entry = found->second;
    if (entry.positions.empty()) {
        return entry.defaultText.empty()
                   ? "absent"
                   : "default " + entry.defaultText + "@" + std::to_string(entry.defaultPosition);
    }
    auto position = std::find_if(entry.positions.begin(), entry.positions.end(),
                                 [&](int candidate) { return lo <= candidate && candidate < hi; });
    if (position == entry.positions.end()) {
        return "absent";
    }
    std::string line = "given";
    if (entry.values.empty()) {
        for (; position != entry.positions.end(); ++position) {
            line += " @" + std::to_string(*position);
        }
        return line;
    }
    // The upper bound counts for values, where it does not for occurrences.
    for (const Value& value : entry.values) {
        if (value.position > hi) {
            break;
        }
        if (value.position >= lo) {
            line += " " + value.text + "@" + std::to_string(value.position);
        }
    }
    return line;
}

} // namespace model
