/// LLVM's CommandLine, linked statically so that the hundreds of options inside the shared LLVM do
/// not count; the few of its support library are there all the same. Options register with the
/// process when they are made. `removeArgument` takes them back, as LLVM's own tests do it.

#include "adapters/candidates.h"
#include "adapters/notation.h"

#include <llvm/Support/CommandLine.h>
#include <llvm/Support/raw_ostream.h>

namespace bench {

namespace {

namespace cl = llvm::cl;

class Llvm final : public Library {
public:
    ~Llvm() override {
        for (const std::unique_ptr<cl::Option>& alias : m_aliases)
            alias->removeArgument();
        for (const std::unique_ptr<cl::Option>& option : m_options)
            option->removeArgument();
    }

    void declare(const std::vector<Option>& options) override {
        m_declared = &options;
        for (const Option& option : options) {
            m_options.push_back(option.hasDefault ? makeWithDefault(option) : make(option));
            if (option.alias)
                m_aliases.emplace_back(
                    new cl::alias(llvm::StringRef(&option.alias, 1), cl::aliasopt(*m_options.back())));
        }
    }

    void watch() override {
        for (std::size_t i = 0; i < m_options.size(); ++i) {
            cl::Option& option = *m_options[i];
            switch ((*m_declared)[i].kind) {
            case Kind::Switch:
                static_cast<cl::opt<bool>&>(option).setCallback([](const bool&) {});
                break;
            case Kind::Integer:
                static_cast<cl::opt<int>&>(option).setCallback([](const int&) {});
                break;
            case Kind::Number:
                static_cast<cl::opt<double>&>(option).setCallback([](const double&) {});
                break;
            case Kind::Text:
                static_cast<cl::opt<std::string>&>(option).setCallback([](const std::string&) {});
                break;
            case Kind::List:
            case Kind::Positional:
                static_cast<cl::list<std::string>&>(option).setCallback([](const std::string&) {});
                break;
            }
        }
    }

    void parse(int argc, char** argv) override {
        if (!cl::ParseCommandLineOptions(argc, argv, "A program with a command line.", &llvm::errs()))
            fail("refused");
    }

    void read(const std::vector<Option>& options, Answer& answer) override {
        for (std::size_t i = 0; i < options.size(); ++i) {
            cl::Option& option = *m_options[i];
            const std::size_t slot = options[i].slot;
            switch (options[i].kind) {
            case Kind::Switch:
                answer.switches[slot] = static_cast<cl::opt<bool>&>(option);
                break;
            case Kind::Integer:
                answer.integers[slot] = static_cast<cl::opt<int>&>(option);
                break;
            case Kind::Number:
                answer.numbers[slot] = static_cast<cl::opt<double>&>(option);
                break;
            case Kind::Text:
                answer.texts[slot] = static_cast<cl::opt<std::string>&>(option).getValue();
                break;
            case Kind::List:
            case Kind::Positional: {
                const std::vector<std::string>& values = static_cast<cl::list<std::string>&>(option);
                answer.lists[slot].assign(values.begin(), values.end());
                break;
            }
            }
        }
    }

    void forget() override { cl::ResetAllOptionOccurrences(); }

    /// Writes to the standard output; there is no other way.
    std::string help() override {
        cl::PrintHelpMessage();
        llvm::outs().flush();
        return {};
    }

private:
    using Made = std::unique_ptr<cl::Option>;

    static Made make(const Option& option) {
        const llvm::StringRef name(option.name);
        const cl::desc description(option.description);
        switch (option.kind) {
        case Kind::Switch:
            return Made(new cl::opt<bool>(name, description));
        case Kind::Integer:
            return Made(new cl::opt<int>(name, description));
        case Kind::Number:
            return Made(new cl::opt<double>(name, description));
        case Kind::Text:
            return Made(new cl::opt<std::string>(name, description));
        case Kind::List:
            return Made(new cl::list<std::string>(name, description, cl::CommaSeparated));
        default:
            return Made(new cl::list<std::string>(cl::Positional, description));
        }
    }

    static Made makeWithDefault(const Option& option) {
        const llvm::StringRef name(option.name);
        const cl::desc description(option.description);
        switch (option.kind) {
        case Kind::Switch:
            return Made(new cl::opt<bool>(name, description, cl::init(false)));
        case Kind::Integer:
            return Made(new cl::opt<int>(name, description, cl::init(defaultInteger)));
        case Kind::Number:
            return Made(new cl::opt<double>(name, description, cl::init(defaultNumber)));
        default:
            return Made(new cl::opt<std::string>(name, description, cl::init(defaultText)));
        }
    }

    const std::vector<Option>* m_declared = nullptr;
    std::vector<Made> m_options;
    std::vector<Made> m_aliases;
};

} // namespace

const Candidate llvmCandidate = {
    "LLVM CommandLine", {}, nameAlone, make<Llvm>, takesBack | collects | helps | watches};

} // namespace bench
