#include "adapters/candidates.h"
#include "adapters/notation.h"

#include <optional>

#include "tarv_3_3/typed.h"

namespace bench {

namespace {

namespace tarv = tarv_3_3::typed;

/// The typed face: a host keeps a handle for each option, and reads values from it.
class Typed final : public Library {
public:
    void declare(const std::vector<Option>& options) override {
        m_program.emplace("bench");
        reserveHandles(options);
        for (const Option& option : options)
            declareOne(option);
    }

    void parse(int argc, char** argv) override {
        const tarv::Outcome outcome = m_program->parse(argc, argv);
        if (!outcome.goesOn())
            fail(outcome.errors());
    }

    void read(const std::vector<Option>&, Answer& answer) override {
        copyValues(m_switches, answer.switches);
        copyValues(m_integers, answer.integers);
        copyValues(m_numbers, answer.numbers);
        copyValues(m_texts, answer.texts);
        copyValues(m_lists, answer.lists);
    }

    /// Every parse begins anew.
    void forget() override {}

    std::string help() override {
        const char* const line[] = {"bench", "--help"};
        return m_program->parse(2, line).output();
    }

private:
    using List = std::vector<std::string_view>;
    template <class T>
    using Handles = std::vector<tarv::Handle<T>>;

    void reserveHandles(const std::vector<Option>& options) {
        m_switches.reserve(options.size());
        m_integers.reserve(options.size());
        m_numbers.reserve(options.size());
        m_texts.reserve(options.size());
        m_lists.reserve(options.size());
    }

    void declareOne(const Option& option) {
        switch (option.kind) {
        case Kind::Switch:
            m_switches.push_back(
                declared(option, option.isOnAtFirst, option.isOnAtFirst || option.hasDefault));
            break;
        case Kind::Integer:
            m_integers.push_back(declared(option, defaultInteger, option.hasDefault));
            break;
        case Kind::Number:
            m_numbers.push_back(declared(option, defaultNumber, option.hasDefault));
            break;
        case Kind::Text:
            m_texts.push_back(declared(option, std::string_view(defaultText), option.hasDefault));
            break;
        case Kind::List:
            m_lists.push_back(m_program->option<List>(option.declared.c_str(), option.description.c_str()));
            break;
        case Kind::Positional:
            m_lists.push_back(
                m_program->positional<List>(option.declared.c_str(), option.description.c_str()));
            break;
        }
    }

    template <class T>
    tarv::Handle<T> declared(const Option& option, T initial, bool hasDefault) {
        return hasDefault ? m_program->option(option.declared.c_str(), option.description.c_str(), initial)
                          : m_program->option<T>(option.declared.c_str(), option.description.c_str());
    }

    /// The slots of a kind are counted in the order in which its options are declared.
    template <class Handles, class Values>
    static void copyValues(const Handles& handles, Values& values) {
        for (std::size_t slot = 0; slot < handles.size(); ++slot)
            values[slot] = *handles[slot];
    }

    std::optional<tarv::Program> m_program;
    Handles<bool> m_switches;
    Handles<int> m_integers;
    Handles<double> m_numbers;
    Handles<std::string_view> m_texts;
    Handles<List> m_lists;
};

} // namespace

const Candidate typedCandidate = {
    "tarv typed", {}, nameAndAlias, make<Typed>, takesBack | collects | helps | negates | abbreviates};

} // namespace bench
