/// CLI11 binds options to the host's variables; reading is copying them. The variables have to be
/// reset before the parser is used again.

#include "adapters/candidates.h"

#include <CLI/CLI.hpp>

#include <deque>

namespace bench {

namespace {

class Cli11 final : public Library {
public:
    void declare(const std::vector<Option>& options) override {
        m_options = &options;
        m_variables.resize(options.size());
        setDefaults();
        for (std::size_t i = 0; i < options.size(); ++i) {
            const std::string& names = options[i].declared;
            const std::string& description = options[i].description;
            Variable& variable = m_variables[i];
            switch (options[i].kind) {
            case Kind::Switch:
                m_app.add_flag(options[i].isOnAtFirst ? withNegation(names) : names, variable.on,
                               description.c_str());
                break;
            case Kind::Integer:
                m_app.add_option(names.c_str(), variable.integer, description.c_str());
                break;
            case Kind::Number:
                m_app.add_option(names.c_str(), variable.number, description.c_str());
                break;
            case Kind::Text:
                m_app.add_option(names.c_str(), variable.text, description.c_str());
                break;
            case Kind::List:
                m_app.add_option(names.c_str(), variable.list, description.c_str())
                    ->delimiter(',')
                    ->allow_extra_args(false);
                break;
            case Kind::Positional:
                m_app.add_option(names.c_str(), variable.list, description.c_str());
                break;
            }
        }
    }

    void watch() override {
        for (CLI::Option* option : m_app.get_options())
            option->check(CLI::Validator([](std::string&) { return std::string(); }, ""));
    }

    void parse(int argc, char** argv) override { m_app.parse(argc, argv); }

    void read(const std::vector<Option>& options, Answer& answer) override {
        for (std::size_t i = 0; i < options.size(); ++i) {
            const Variable& variable = m_variables[i];
            const std::size_t slot = options[i].slot;
            switch (options[i].kind) {
            case Kind::Switch:
                answer.switches[slot] = variable.on;
                break;
            case Kind::Integer:
                answer.integers[slot] = variable.integer;
                break;
            case Kind::Number:
                answer.numbers[slot] = variable.number;
                break;
            case Kind::Text:
                answer.texts[slot] = variable.text;
                break;
            case Kind::List:
            case Kind::Positional:
                answer.lists[slot].assign(variable.list.begin(), variable.list.end());
                break;
            }
        }
    }

    void forget() override {
        for (Variable& variable : m_variables)
            variable = Variable();
        setDefaults();
    }

    std::string help() override { return m_app.help(); }

private:
    struct Variable {
        bool on = false;
        int integer = 0;
        double number = 0;
        std::string text;
        std::vector<std::string> list;
    };

    static std::string withNegation(const std::string& names) { return names + ",!--no-" + names.substr(2); }

    void setDefaults() {
        for (std::size_t i = 0; i < m_variables.size(); ++i) {
            const Option& option = (*m_options)[i];
            m_variables[i].on = option.isOnAtFirst;
            if (!option.hasDefault)
                continue;
            m_variables[i].integer = defaultInteger;
            m_variables[i].number = defaultNumber;
            m_variables[i].text = defaultText;
        }
    }

    const std::vector<Option>* m_options = nullptr;
    CLI::App m_app{"A program with a command line."};
    std::deque<Variable> m_variables;
};

std::string dashedNames(const Option& option) {
    if (option.kind == Kind::Positional)
        return option.name;
    return option.alias ? std::string("-") + option.alias + ",--" + option.name : "--" + option.name;
}

} // namespace

const Candidate cli11Candidate = {
    "CLI11", {}, dashedNames, make<Cli11>, takesBack | collects | helps | negates | watches};

} // namespace bench
