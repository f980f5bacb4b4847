/// TCLAP. One delimiter holds for all options of a process: with the blank, which lets a value
/// follow as the next argument, "--name=value" is unknown. It is therefore given every value as an
/// argument of its own, 24 arguments instead of 20. It has no separator within a value: the host
/// splits lists.

#include "adapters/candidates.h"
#include "adapters/notation.h"

#include <tclap/CmdLine.h>

#include <iostream>
#include <sstream>

namespace bench {

namespace {

class Tclap final : public Library {
public:
    void declare(const std::vector<Option>& options) override {
        m_commandLine.setExceptionHandling(false);
        for (const Option& option : options) {
            const std::string alias = option.alias ? std::string(1, option.alias) : std::string();
            m_arguments.push_back(make(option, alias, option.name.c_str(), option.description.c_str()));
            m_commandLine.add(*m_arguments.back());
        }
    }

    void parse(int argc, char** argv) override {
        try {
            m_commandLine.parse(argc, argv);
        } catch (TCLAP::ArgException& error) {
            fail(error.error() + " " + error.argId());
        }
    }

    void read(const std::vector<Option>& options, Answer& answer) override {
        for (std::size_t i = 0; i < options.size(); ++i) {
            TCLAP::Arg& argument = *m_arguments[i];
            const std::size_t slot = options[i].slot;
            switch (options[i].kind) {
            case Kind::Switch:
                answer.switches[slot] = static_cast<TCLAP::SwitchArg&>(argument).getValue();
                break;
            case Kind::Integer:
                answer.integers[slot] = valueOf<int>(argument);
                break;
            case Kind::Number:
                answer.numbers[slot] = valueOf<double>(argument);
                break;
            case Kind::Text:
                answer.texts[slot] = valueOf<std::string>(argument);
                break;
            case Kind::List:
                for (const std::string& value :
                     static_cast<TCLAP::MultiArg<std::string>&>(argument).getValue())
                    splitAtCommas(value, answer.lists[slot]);
                break;
            case Kind::Positional: {
                const std::vector<std::string>& values =
                    static_cast<TCLAP::UnlabeledMultiArg<std::string>&>(argument).getValue();
                answer.lists[slot].assign(values.begin(), values.end());
                break;
            }
            }
        }
    }

    void forget() override { m_commandLine.reset(); }

    std::string help() override {
        std::ostringstream text;
        std::streambuf* const standardOutput = std::cout.rdbuf(text.rdbuf());
        m_commandLine.getOutput()->usage(m_commandLine);
        std::cout.rdbuf(standardOutput);
        return text.str();
    }

private:
    using Argument = std::unique_ptr<TCLAP::Arg>;

    static Argument make(const Option& option, const std::string& alias, const char* name, const char* text) {
        switch (option.kind) {
        case Kind::Switch:
            return Argument(new TCLAP::SwitchArg(alias, name, text));
        case Kind::Integer:
            return Argument(new TCLAP::ValueArg<int>(alias, name, text, false,
                                                     option.hasDefault ? defaultInteger : 0, "number"));
        case Kind::Number:
            return Argument(new TCLAP::ValueArg<double>(alias, name, text, false,
                                                        option.hasDefault ? defaultNumber : 0, "number"));
        case Kind::Text:
            return Argument(new TCLAP::ValueArg<std::string>(alias, name, text, false,
                                                             option.hasDefault ? defaultText : "", "text"));
        case Kind::List:
            return Argument(new TCLAP::MultiArg<std::string>(alias, name, text, false, "text"));
        default:
            return Argument(new TCLAP::UnlabeledMultiArg<std::string>(name, text, false, "text"));
        }
    }

    template <class T>
    static T& valueOf(TCLAP::Arg& argument) {
        return static_cast<TCLAP::ValueArg<T>&>(argument).getValue();
    }

    // The parser refers to the arguments, so they go after it.
    std::vector<Argument> m_arguments;
    TCLAP::CmdLine m_commandLine{"A program with a command line.", ' ', "1.0"};
};

} // namespace

const Candidate tclapCandidate = {"TCLAP", {false, '-'}, nameAlone, make<Tclap>};

} // namespace bench
