#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <list>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "Input.h"
#include "MemoryFile.h"
#include "oracles.h"
#include "tarv_3_3/typed.h"

namespace tarv = tarv_3_3::typed;

namespace {

using Texts = std::vector<std::string>;

enum class Paper { a4, letter, legal };

constexpr char variable[] = "TARV_FUZZ";

std::string shown(const std::string& text) {
    return text;
}
template <class N, class = std::enable_if_t<std::is_arithmetic_v<N>>>
std::string shown(N number) {
    return std::to_string(number);
}
std::string shown(const tarv::Size& size) {
    return std::to_string(size.bytes);
}
std::string shown(std::chrono::milliseconds duration) {
    return std::to_string(duration.count());
}
std::string shown(Paper paper) {
    return std::to_string(static_cast<int>(paper));
}
template <class T>
std::string shown(const std::optional<T>& value) {
    return value ? shown(*value) : "none";
}
template <class T>
std::string shown(const std::vector<T>& list) {
    std::string text;
    for (const T& element : list) {
        text += shown(element) + ",";
    }
    return text;
}

/// What is asked of an option that was declared, whatever its type is.
struct Declared {
    std::size_t command;
    std::function<bool()> isOn;
    std::function<bool()> isGiven;
    std::function<void()> requireSound;
    std::function<std::string()> dump;
};

struct Rule {
    char kind;
    std::size_t command;
    std::function<bool()> one;
    std::function<bool()> other;
};

/// A program that lines declare, and what must hold of it after every parse.
///
/// A line is a kind, its refinements, a blank and names: "ir max-count,n" is an `int` that is required.
/// Other lines are commands: "> log" opens a verb and "<" goes back, "1fi" is a rule, "j" joins letters,
/// "= level=3" is a line of the settings, "$ 3" the variable of the environment.
class RandomProgram {
public:
    void declare(const std::string& line) {
        const std::string head = line.substr(0, line.find(' '));
        const std::string names = head.size() < line.size() ? line.substr(head.size() + 1) : "";
        const std::string refinements = head.empty() ? "" : head.substr(1);
        switch (head.empty() ? '\0' : head[0]) {
        case '>':
            open(names);
            break;
        case '<':
            m_at = m_commands[m_at].parent;
            break;
        case '1':
        case '2':
        case '3':
        case '4':
            addRule(head);
            break;
        case 'j':
            m_program.joinLetters();
            break;
        case '=':
            m_settings += names + "\n";
            break;
        case '$':
            m_variable = names;
            break;
        default:
            declareOption(head.empty() ? '\0' : head[0], refinements, names.c_str());
            break;
        }
    }

    void parse(const Texts& arguments) {
        const MemoryFile settings(m_settings);
        m_program.settingsFile(settings.path().c_str());
        if (*m_program.problems() != '\0') {
            return;
        }
        setenv(variable, m_variable.c_str(), 1);
        const std::string first = parseOnce(arguments);
        require(parseOnce(arguments) == first, "the second parse says something else", first);
        ask(arguments);
        unsetenv(variable);
    }

private:
    struct Level {
        tarv::Command* command;
        std::size_t parent;
    };

    tarv::Command& command() { return *m_commands[m_at].command; }

    void open(const std::string& names) {
        if (m_commands.size() < mostCommands) {
            tarv::Command& verb = command().verb(names.c_str(), "A verb.");
            verb.does([] {});
            m_commands.push_back({&verb, m_at});
            m_at = m_commands.size() - 1;
        }
    }

    // Kinds are letters: small ones are options, capital ones arguments without a name.
    void declareOption(char kind, const std::string& refinements, const char* names) {
        tarv::Command& in = command();
        switch (kind) {
        case 'b':
            m_flag = keep(in.flag(names, "Flag."), refinements);
            break;
        case 'f':
            keep(in.option(names, "Flag.", true), refinements);
            break;
        case 'v':
            keep(in.counter(names, "Counter."), refinements);
            break;
        case 'i':
            m_int = keep(in.option<int>(names, "Number.").range(1, 99), refinements,
                         [](int value) { return 1 <= value && value <= 99; });
            break;
        case 'k':
            keep(in.bind(names, m_bound.emplace_back(7), "Bound."), refinements);
            break;
        case 'u':
            keep(in.option<unsigned char>(names, "Byte."), refinements);
            break;
        case 'd':
            keep(in.option(names, "Real.", 1.0).range(0.5, 5), refinements,
                 [](double value) { return 0.5 <= value && value <= 5; });
            break;
        case 'z':
            keep(in.option<tarv::Size>(names, "Size.").range(1, 4096), refinements,
                 [](const tarv::Size& size) { return 1 <= size.bytes && size.bytes <= 4096; });
            break;
        case 't':
            keep(in.option<std::chrono::milliseconds>(names, "Time."), refinements);
            break;
        case 'e':
            keep(in.option<Paper>(names, "Paper."), refinements,
                 [](Paper paper) { return Paper::a4 <= paper && paper <= Paper::legal; });
            break;
        case 'c':
            keep(in.option(names, "Character.", '\0'), refinements);
            break;
        case 's':
            keep(in.option<std::string>(names, "Text."), refinements,
                 [](const std::string& text) { return !text.empty(); });
            break;
        case 'y':
            keep(in.option<std::string>(names, "Text.").mayBeEmpty(), refinements);
            break;
        case 'o':
            keep(in.option<std::string>(names, "Word.").oneOf("red", "green", "grey"), refinements,
                 [](const std::string& text) { return text == "red" || text == "green" || text == "grey"; });
            break;
        case 'n':
            keep(in.option<std::optional<int>>(names, "Perhaps."), refinements,
                 [](const std::optional<int>& value) { return value.has_value(); });
            break;
        case 'l':
            keep(in.option<std::vector<int>>(names, "Numbers.").range(-9, 9).check("even", isEven),
                 refinements, areAllEven);
            break;
        case 'm':
            keep(in.option<Texts>(names, "Texts.").separator(':'), refinements,
                 [](const Texts& texts) { return !texts.empty(); });
            break;
        case 'a':
            m_action = keep(in.action(names, "Action."), refinements);
            break;
        case 'P':
            keep(in.positional<int>(names, "Number."), refinements);
            break;
        case 'Q':
            keep(in.positional<std::string>(names, "Text."), refinements);
            break;
        case 'R':
            keep(in.rest<Texts>(names, "Rest."), refinements);
            break;
        case 'S':
            m_files = keep(in.positional<Texts>(names, "Texts.").times(2, 3), refinements,
                           [](const Texts& texts) { return texts.size() == 2 || texts.size() == 3; });
            break;
        case 'T':
            keep(in.positional<std::vector<double>>(names, "Numbers."), refinements);
            break;
        default:
            break;
        }
    }

    static bool isEven(int value) { return value % 2 == 0; }
    static bool areAllEven(const std::vector<int>& list) {
        return std::all_of(list.begin(), list.end(),
                           [](int value) { return -9 <= value && value <= 9 && isEven(value); });
    }

    template <class T>
    tarv::Handle<T> keep(tarv::Handle<T> handle, const std::string& refinements) {
        return keep(handle, refinements, [](const T&) { return true; });
    }

    template <class T, class IsSound>
    tarv::Handle<T> keep(tarv::Handle<T> handle, const std::string& refinements, IsSound isSound) {
        const std::function<bool()> isOn = onOf(handle);
        for (const char letter : refinements) {
            refine(handle, letter, isOn);
        }
        const auto requireSound = [handle, isSound] {
            require(!handle.given() || isSound(*handle), "a value that should have been refused",
                    shown(*handle));
            require(handle.given() == (handle.count() > 0), "a count of what is not given");
            require(handle.given() == (handle.source() != tarv::Source::initial), "a source of nothing");
            const bool isTyped = handle.source() == tarv::Source::commandLine;
            for (int i = 0; i < handle.count(); ++i) {
                require((handle.position(i) > 0) == isTyped, "a position of what is not typed");
            }
        };
        const auto dump = [handle] {
            std::string text = shown(*handle) + "/" + std::to_string(static_cast<int>(handle.source()));
            for (int i = 0; i < handle.count(); ++i) {
                text += "@" + std::to_string(handle.position(i));
            }
            return text + "\n";
        };
        m_declared.push_back({m_at, isOn, [handle] { return handle.given(); }, requireSound, dump});
        return handle;
    }

    template <class T>
    void refine(tarv::Handle<T> handle, char letter, const std::function<bool()>& isOn) {
        const std::function<bool()> isAlwaysOn = [] { return true; };
        switch (letter) {
        case 'r':
            handle.required();
            addRequirement(isAlwaysOn, isOn);
            break;
        case 'e':
            handle.env(variable);
            break;
        case 'h':
            handle.hidden();
            break;
        case 'd':
            handle.deprecated("--other");
            break;
        case 'n':
            handle.needs(m_flag);
            addRequirement(isOn, [flag = m_flag] { return flag.given() && *flag; });
            break;
        case 'a':
            handle.goesWith(m_action);
            m_hasModifiers = true;
            break;
        default:
            break;
        }
    }

    void addRequirement(std::function<bool()> asking, std::function<bool()> asked) {
        m_requirements.push_back({'>', m_at, std::move(asking), std::move(asked)});
    }

    template <class Act>
    void withHandle(char letter, Act act) {
        switch (letter) {
        case 'i':
            return act(m_int);
        case 'p':
            return act(m_files);
        case 'a':
            return act(m_action);
        default:
            return act(m_flag);
        }
    }

    template <class T>
    static std::function<bool()> onOf(tarv::Handle<T> handle) {
        return [handle] {
            if constexpr (std::is_same_v<T, bool>) {
                return handle.given() && *handle;
            } else {
                return handle.given();
            }
        };
    }

    // "1fi": the kind of the rule, and over what was declared last.
    void addRule(const std::string& head) {
        if (head.size() < 3) {
            return;
        }
        withHandle(head[1], [&](auto one) {
            withHandle(head[2], [&](auto other) {
                tarv::Command& in = command();
                head[0] == '1'   ? in.atMostOne(one, other)
                : head[0] == '2' ? in.atLeastOne(one, other)
                : head[0] == '3' ? in.exactlyOne(one, other)
                                 : in.allOrNone(one, other);
                m_rules.push_back({head[0], m_at, onOf(one), onOf(other)});
            });
        });
    }

    std::string parseOnce(const Texts& arguments) {
        std::vector<const char*> argv = {"fuzz"};
        for (const std::string& argument : arguments) {
            argv.push_back(argument.c_str());
        }
        const tarv::Outcome outcome = m_program.parse(static_cast<int>(argv.size()), argv.data());
        const std::string output = outcome.output();
        const std::string errors = outcome.errors();
        const bool isRequest = !arguments.empty() && arguments[0].rfind("tarvoption=", 0) == 0 &&
                               arguments[0] != "tarvoption=tarvlogenable=1";
        if (!isRequest) {
            requireReadable(outcome, output, errors);
        }
        std::string dump = std::to_string(outcome.exitCode()) + output + errors;
        for (const Declared& option : m_declared) {
            dump += option.dump();
        }
        if (outcome.goesOn()) {
            requireAccepted();
        }
        return dump;
    }

    static void requireReadable(const tarv::Outcome& outcome, const std::string& output,
                                const std::string& errors) {
        const bool isRefused = !outcome.goesOn() && outcome.exitCode() != 0;
        require(outcome.exitCode() == (isRefused ? 2 : 0), "an exit code", errors);
        require(output.empty() == (outcome.goesOn() || isRefused), "an output", output);
        require(!isRefused || errors.rfind("fuzz: ", 0) == 0, "whose message?", errors);
        require(!isRefused || errors.find("\nTry 'fuzz") != std::string::npos, "no help is named", errors);
        for (const std::string& text : {output, errors}) {
            require(text.empty() || text.back() == '\n', "a line without an end", text);
            require(std::none_of(text.begin(), text.end(),
                                 [](char byte) {
                                     return ('\0' <= byte && byte < ' ' && byte != '\n') || byte == 0x7f;
                                 }),
                    "a control character", text);
        }
    }

    // What is given below a command shows that the line named it.
    bool isChosen(std::size_t command) const {
        return command == 0 || std::any_of(m_declared.begin(), m_declared.end(), [&](const Declared& option) {
                   std::size_t owner = option.command;
                   while (owner != 0 && owner != command) {
                       owner = m_commands[owner].parent;
                   }
                   return owner == command && option.isGiven();
               });
    }

    void requireAccepted() const {
        for (const Declared& option : m_declared) {
            option.requireSound();
        }
        for (const Rule& rule : m_rules) {
            const int count = (rule.one() ? 1 : 0) + (rule.other() ? 1 : 0);
            const bool holds = rule.kind == '1'   ? count <= 1
                               : rule.kind == '2' ? count >= 1
                               : rule.kind == '3' ? count == 1
                                                  : count != 1;
            require(holds || !isChosen(rule.command), "a rule was broken", std::string(1, rule.kind));
        }
        for (const Rule& requirement : m_requirements) {
            const bool holds = !requirement.one() || requirement.other();
            require(holds || m_hasModifiers || !isChosen(requirement.command), "something is missing");
        }
    }

    // What shells and the companion program ask never fails.
    void ask(const Texts& arguments) {
        const char* const describe[] = {"fuzz", "tarvoption=describe"};
        const tarv::Outcome described = m_program.parse(2, describe);
        require(described.exitCode() == 0 && described.output()[0] == '{', "a description",
                described.output());
        std::string words("fuzz\0", 5);
        for (const std::string& argument : arguments) {
            words += argument + '\0';
        }
        const MemoryFile question(words);
        require(std::freopen(question.path().c_str(), "r", stdin) != nullptr, "freopen");
        const char* const complete[] = {"fuzz", "tarvoption=complete=zsh"};
        const tarv::Outcome answered = m_program.parse(2, complete);
        require(answered.exitCode() == 0 && *answered.errors() == '\0', "an answer", answered.errors());
    }

    static constexpr std::size_t mostCommands = 8;

    tarv::Program m_program{"fuzz", "1.0", "Does nothing."};
    std::vector<Level> m_commands = {{&m_program, 0}};
    std::size_t m_at = 0;
    std::list<int> m_bound;
    tarv::Handle<bool> m_flag;
    tarv::Handle<bool> m_action;
    tarv::Handle<int> m_int;
    tarv::Handle<Texts> m_files;
    bool m_hasModifiers = false;
    std::vector<Declared> m_declared;
    std::vector<Rule> m_rules;
    /// Where the first is on, the second is, too.
    std::vector<Rule> m_requirements;
    std::string m_settings;
    std::string m_variable;
};

// Texts of a host are fit for a terminal.
void replaceControls(std::string& line) {
    std::replace_if(
        line.begin(), line.end(), [](char byte) { return ('\0' <= byte && byte < ' ') || byte == 0x7f; },
        '_');
}

} // namespace

/// Declarations, one a line, up to an empty line, then arguments, one a line: what is accepted is as it was
/// declared, what is refused is said, and a second parse says the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Input input(bytes, size);
    RandomProgram program;
    for (std::string line = input.until('\n'); !line.empty(); line = input.until('\n')) {
        replaceControls(line);
        program.declare(line);
    }
    program.parse(input.arguments());
    return 0;
}
