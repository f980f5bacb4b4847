/// popt stores into the host's variables. A context is made for a table and a command line
/// together, so every parse makes one. It has no separator within a value: the host splits lists.

#include "adapters/candidates.h"
#include "adapters/notation.h"

#include <popt.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>

namespace bench {

namespace {

class Popt final : public Library {
public:
    ~Popt() override {
        for (Variable& variable : m_variables)
            clear(variable);
        poptFreeContext(m_context);
    }

    void declare(const std::vector<Option>& options) override {
        m_options = &options;
        m_variables.resize(options.size());
        setDefaults();
        for (std::size_t i = 0; i < options.size(); ++i) {
            const Option& option = options[i];
            if (option.kind != Kind::Positional)
                m_table.push_back({option.name.c_str(), option.alias, typeOf(option.kind),
                                   storageOf(option.kind, m_variables[i]), 0, option.description.c_str(),
                                   nullptr});
        }
        m_table.push_back({});
    }

    void parse(int argc, char** argv) override {
        m_context = poptGetContext(nullptr, argc, const_cast<const char**>(argv), m_table.data(), 0);
        if (const int code = poptGetNextOpt(m_context); code != -1)
            fail(poptStrerror(code));
    }

    void read(const std::vector<Option>& options, Answer& answer) override {
        for (std::size_t i = 0; i < options.size(); ++i) {
            const Variable& variable = m_variables[i];
            const std::size_t slot = options[i].slot;
            switch (options[i].kind) {
            case Kind::Switch:
                answer.switches[slot] = variable.on != 0;
                break;
            case Kind::Integer:
                answer.integers[slot] = variable.integer;
                break;
            case Kind::Number:
                answer.numbers[slot] = variable.number;
                break;
            case Kind::Text:
                if (variable.text)
                    answer.texts[slot] = variable.text;
                break;
            case Kind::List:
                for (char** value = variable.list; value && *value; ++value)
                    splitAtCommas(*value, answer.lists[slot]);
                break;
            case Kind::Positional:
                for (const char** value = poptGetArgs(m_context); value && *value; ++value)
                    answer.lists[slot].push_back(*value);
                break;
            }
        }
    }

    void forget() override {
        for (Variable& variable : m_variables)
            clear(variable);
        setDefaults();
        m_context = poptFreeContext(m_context);
    }

    std::string help() override {
        const char* noArguments[] = {"program", nullptr};
        const poptContext context = poptGetContext(nullptr, 1, noArguments, m_table.data(), 0);
        char* text = nullptr;
        std::size_t length = 0;
        std::FILE* const file = open_memstream(&text, &length);
        poptPrintHelp(context, file, 0);
        std::fclose(file);
        poptFreeContext(context);
        const std::string help(text, length);
        std::free(text);
        return help;
    }

private:
    struct Variable {
        int on = 0;
        int integer = 0;
        double number = 0;
        char* text = nullptr;
        char** list = nullptr;
    };

    static void clear(Variable& variable) {
        std::free(variable.text);
        for (char** value = variable.list; value && *value; ++value)
            std::free(*value);
        std::free(variable.list);
        variable = Variable();
    }

    /// A text belongs to popt, which replaces it.
    void setDefaults() {
        for (std::size_t i = 0; i < m_variables.size(); ++i) {
            const Option& option = (*m_options)[i];
            if (!option.hasDefault)
                continue;
            m_variables[i].integer = defaultInteger;
            m_variables[i].number = defaultNumber;
            if (option.kind == Kind::Text)
                m_variables[i].text = strdup(defaultText);
        }
    }

    static unsigned typeOf(Kind kind) {
        switch (kind) {
        case Kind::Switch:
            return POPT_ARG_NONE;
        case Kind::Integer:
            return POPT_ARG_INT;
        case Kind::Number:
            return POPT_ARG_DOUBLE;
        case Kind::Text:
            return POPT_ARG_STRING;
        default:
            return POPT_ARG_ARGV;
        }
    }

    static void* storageOf(Kind kind, Variable& variable) {
        switch (kind) {
        case Kind::Switch:
            return &variable.on;
        case Kind::Integer:
            return &variable.integer;
        case Kind::Number:
            return &variable.number;
        case Kind::Text:
            return &variable.text;
        default:
            return &variable.list;
        }
    }

    const std::vector<Option>* m_options = nullptr;
    std::deque<Variable> m_variables;
    std::vector<poptOption> m_table;
    poptContext m_context = nullptr;
};

} // namespace

const Candidate poptCandidate = {"popt", {}, nameAlone, make<Popt>};

} // namespace bench
