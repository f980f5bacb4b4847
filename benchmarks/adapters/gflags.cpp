/// gflags. Flags belong to the process: `FlagRegisterer`, the object that a DEFINE_ macro makes
/// before main, adds one, and nothing takes it back. Declaring is therefore measured once, in a
/// process that did nothing before. A flag has one name and keeps its last value; there are no
/// aliases and no lists (the host splits at the commas). Names have underscores, and are found with
/// dashes as well.

#include "adapters/candidates.h"
#include "adapters/notation.h"

#include <gflags/gflags.h>

#include <deque>

namespace bench {

namespace {

class Gflags final : public Library {
public:
    void declare(const std::vector<Option>& options) override {
        m_options = &options;
        m_variables.resize(options.size());
        for (std::size_t i = 0; i < options.size(); ++i) {
            const char* name = options[i].declared.c_str();
            const char* description = options[i].description.c_str();
            Variable& variable = m_variables[i];
            setDefaults(options[i], variable);
            switch (options[i].kind) {
            case Kind::Switch:
                define(name, description, variable.on);
                break;
            case Kind::Integer:
                define(name, description, variable.integer);
                break;
            case Kind::Number:
                define(name, description, variable.number);
                break;
            case Kind::Text:
            case Kind::List:
                define(name, description, variable.text);
                break;
            case Kind::Positional:
                break;
            }
        }
    }

    void watch() override {
        for (std::size_t i = 0; i < m_options->size(); ++i) {
            const Variable& variable = m_variables[i];
            switch ((*m_options)[i].kind) {
            case Kind::Switch:
                gflags::RegisterFlagValidator(&variable.on.current, [](const char*, bool) { return true; });
                break;
            case Kind::Integer:
                gflags::RegisterFlagValidator(&variable.integer.current,
                                              [](const char*, gflags::int32) { return true; });
                break;
            case Kind::Number:
                gflags::RegisterFlagValidator(&variable.number.current,
                                              [](const char*, double) { return true; });
                break;
            case Kind::Text:
            case Kind::List:
                gflags::RegisterFlagValidator(&variable.text.current,
                                              [](const char*, const std::string&) { return true; });
                break;
            case Kind::Positional:
                break;
            }
        }
    }

    void parse(int argc, char** argv) override {
        const std::uint32_t first = gflags::ParseCommandLineFlags(&argc, &argv, false);
        m_positionals.assign(argv + first, argv + argc);
    }

    void read(const std::vector<Option>& options, Answer& answer) override {
        for (std::size_t i = 0; i < options.size(); ++i) {
            const Variable& variable = m_variables[i];
            const std::size_t slot = options[i].slot;
            switch (options[i].kind) {
            case Kind::Switch:
                answer.switches[slot] = variable.on.current;
                break;
            case Kind::Integer:
                answer.integers[slot] = variable.integer.current;
                break;
            case Kind::Number:
                answer.numbers[slot] = variable.number.current;
                break;
            case Kind::Text:
                answer.texts[slot] = variable.text.current;
                break;
            case Kind::List:
                splitAtCommas(variable.text.current, answer.lists[slot]);
                break;
            case Kind::Positional:
                answer.lists[slot].assign(m_positionals.begin(), m_positionals.end());
                break;
            }
        }
    }

    void forget() override {
        for (std::size_t i = 0; i < m_variables.size(); ++i) {
            m_variables[i] = Variable();
            setDefaults((*m_options)[i], m_variables[i]);
        }
    }

    std::string help() override {
        std::vector<gflags::CommandLineFlagInfo> flags;
        gflags::GetAllFlags(&flags);
        std::string text;
        for (const gflags::CommandLineFlagInfo& flag : flags)
            if (flag.filename == ownFile)
                text += gflags::DescribeOneFlag(flag);
        return text;
    }

private:
    static constexpr const char* ownFile = "program.cpp";

    template <class T>
    struct Flag {
        T current = T();
        T initial = T();
    };

    struct Variable {
        Flag<bool> on;
        Flag<gflags::int32> integer;
        Flag<double> number;
        Flag<std::string> text;
    };

    static void setDefaults(const Option& option, Variable& variable) {
        variable.on = {option.isOnAtFirst, option.isOnAtFirst};
        if (!option.hasDefault)
            return;
        variable.integer = {defaultInteger, defaultInteger};
        variable.number = {defaultNumber, defaultNumber};
        if (option.kind == Kind::Text)
            variable.text = {defaultText, defaultText};
    }

    template <class T>
    static void define(const char* name, const char* description, Flag<T>& flag) {
        gflags::FlagRegisterer(name, description, ownFile, &flag.current, &flag.initial);
    }

    const std::vector<Option>* m_options = nullptr;
    std::deque<Variable> m_variables;
    std::vector<const char*> m_positionals;
};

} // namespace

const Candidate gflagsCandidate = {
    "gflags", {true, '-', "no"}, underscoredName, make<Gflags>, helps | negates | watches};

} // namespace bench
