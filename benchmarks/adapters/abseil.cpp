/// Abseil flags. Flags belong to the process: an ABSL_FLAG macro defines a constant-initialised
/// flag, and a registrar that adds it before main; nothing takes it back, and none may be added
/// after the first parse. Declaring makes the same two objects and is measured once, in a process
/// that did nothing before. A flag has one name and keeps its last value; there are no aliases.
/// Names have underscores, on the command line too. There is no way back to the defaults but to
/// set every flag.

#include "adapters/candidates.h"
#include "adapters/notation.h"

#include <absl/flags/flag.h>
#include <absl/flags/parse.h>
#include <absl/flags/usage_config.h>

#include <absl/flags/internal/usage.h>

#include <sstream>
#include <type_traits>

namespace bench {

namespace {

using Texts = std::vector<std::string>;

constexpr const char* ownFile = "program.cpp";

template <class T>
void makeEmpty(void* memory) {
    new (memory) T();
}

template <class T>
T valueAtFirst(const Option& option) {
    if constexpr (std::is_same_v<T, bool>)
        return option.isOnAtFirst;
    else if constexpr (std::is_same_v<T, int>)
        return option.hasDefault ? defaultInteger : 0;
    else if constexpr (std::is_same_v<T, double>)
        return option.hasDefault ? defaultNumber : 0;
    else if constexpr (std::is_same_v<T, std::string>)
        return option.hasDefault ? defaultText : "";
    else
        return T();
}

// ABSL_FLAG makes such a function of every default, so it knows nothing of the option.
template <class T>
void makeDefault(void* memory) {
    Option option = {};
    option.hasDefault = true;
    option.isOnAtFirst = true;
    new (memory) T(valueAtFirst<T>(option));
}

template <class T>
using FlagOf = std::unique_ptr<absl::Flag<T>>;

class Abseil final : public Library {
public:
    void declare(const std::vector<Option>& options) override {
        m_options = &options;
        m_flags.resize(options.size());
        for (std::size_t i = 0; i < options.size(); ++i) {
            const Option& option = options[i];
            Flags& flags = m_flags[i];
            switch (option.kind) {
            case Kind::Switch:
                define(option, flags.on);
                break;
            case Kind::Integer:
                define(option, flags.integer);
                break;
            case Kind::Number:
                define(option, flags.number);
                break;
            case Kind::Text:
                define(option, flags.text);
                break;
            case Kind::List:
                define(option, flags.list);
                break;
            case Kind::Positional:
                break;
            }
        }
    }

    void parse(int argc, char** argv) override { m_positionals = absl::ParseCommandLine(argc, argv); }

    void read(const std::vector<Option>& options, Answer& answer) override {
        for (std::size_t i = 0; i < options.size(); ++i) {
            Flags& flags = m_flags[i];
            const std::size_t slot = options[i].slot;
            switch (options[i].kind) {
            case Kind::Switch:
                answer.switches[slot] = absl::GetFlag(*flags.on);
                break;
            case Kind::Integer:
                answer.integers[slot] = absl::GetFlag(*flags.integer);
                break;
            case Kind::Number:
                answer.numbers[slot] = absl::GetFlag(*flags.number);
                break;
            // A flag is read as a copy, which has to live as long as the answer.
            case Kind::Text:
                answer.texts[slot] = flags.textRead = absl::GetFlag(*flags.text);
                break;
            case Kind::List:
                flags.listRead = absl::GetFlag(*flags.list);
                answer.lists[slot].assign(flags.listRead.begin(), flags.listRead.end());
                break;
            case Kind::Positional:
                answer.lists[slot].assign(m_positionals.begin() + 1, m_positionals.end());
                break;
            }
        }
    }

    void forget() override {
        for (std::size_t i = 0; i < m_flags.size(); ++i) {
            Flags& flags = m_flags[i];
            const Option& option = (*m_options)[i];
            reset(option, flags.on);
            reset(option, flags.integer);
            reset(option, flags.number);
            reset(option, flags.text);
            reset(option, flags.list);
        }
    }

    std::string help() override {
        std::ostringstream text;
        absl::flags_internal::FlagsHelp(text, ownFile, absl::flags_internal::HelpFormat::kHumanReadable,
                                        "A program with a command line.");
        return text.str();
    }

private:
    struct Flags {
        FlagOf<bool> on;
        FlagOf<int> integer;
        FlagOf<double> number;
        FlagOf<std::string> text;
        FlagOf<Texts> list;
        std::string textRead;
        Texts listRead;
    };

    template <class T>
    static void define(const Option& option, FlagOf<T>& flag) {
        namespace internal = absl::flags_internal;
        const internal::FlagHelpArg help{internal::FlagHelpMsg(option.description.c_str()),
                                         internal::FlagHelpKind::kLiteral};
        const bool isEmpty = valueAtFirst<T>(option) == T();
        const internal::FlagDefaultArg initial{
            internal::FlagDefaultSrc(isEmpty ? makeEmpty<T> : makeDefault<T>),
            internal::FlagDefaultKind::kGenFunc};
        flag.reset(new absl::Flag<T>{option.declared.c_str(), ownFile, help, initial});
        internal::FlagRegistrar<T, true>(*flag, ownFile);
    }

    template <class T>
    static void reset(const Option& option, const FlagOf<T>& flag) {
        if (flag)
            absl::SetFlag(flag.get(), valueAtFirst<T>(option));
    }

    const std::vector<Option>* m_options = nullptr;
    // The registry refers to the flags until the process ends, so they are never deleted.
    std::vector<Flags>& m_flags = *new std::vector<Flags>;
    std::vector<char*> m_positionals;
};

} // namespace

const Candidate abseilCandidate = {
    "abseil flags", {true, '_', "no"}, underscoredName, make<Abseil>, helps | negates};

} // namespace bench
