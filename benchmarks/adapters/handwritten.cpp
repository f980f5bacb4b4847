/// What is left when a host does without a library: a loop that compares names. No help, no
/// abbreviations, no messages. The floor under all figures, not a peer.

#include "adapters/candidates.h"

#include <cstdlib>
#include <cstring>

namespace bench {

namespace {

class Handwritten final : public Library {
public:
    void declare(const std::vector<Option>& options) override {
        m_options = &options;
        m_values.resize(options.size());
        m_positional = options.size() - 1;
    }

    void parse(int argc, char** argv) override {
        for (int i = 1; i < argc; ++i) {
            const char* argument = argv[i];
            if (argument[0] != '-') {
                m_values[m_positional].push_back(argument);
                continue;
            }
            const char* name = argument + 2;
            const std::size_t length = std::strcspn(name, "=");
            const std::size_t index = find({name, length});
            if ((*m_options)[index].kind == Kind::Switch)
                m_values[index].push_back("1");
            else if (name[length] == '=')
                m_values[index].push_back(name + length + 1);
            else
                m_values[index].push_back(argv[++i]);
        }
    }

    void read(const std::vector<Option>& options, Answer& answer) override {
        for (std::size_t i = 0; i < options.size(); ++i) {
            const std::vector<const char*>& values = m_values[i];
            const std::size_t slot = options[i].slot;
            if (values.empty())
                continue;
            switch (options[i].kind) {
            case Kind::Switch: answer.switches[slot] = true; break;
            case Kind::Integer: answer.integers[slot] = std::atoi(values.back()); break;
            case Kind::Number: answer.numbers[slot] = std::strtod(values.back(), nullptr); break;
            case Kind::Text: answer.texts[slot] = values.back(); break;
            case Kind::List:
                for (const char* value : values)
                    splitAtCommas(value, answer.lists[slot]);
                break;
            case Kind::Positional: answer.lists[slot].assign(values.begin(), values.end()); break;
            }
        }
    }

    void forget() override {
        for (std::vector<const char*>& values : m_values)
            values.clear();
    }

    std::string help() override { return {}; }

private:
    std::size_t find(std::string_view name) const {
        for (std::size_t i = 0; i < m_options->size(); ++i)
            if ((*m_options)[i].name == name)
                return i;
        fail("unknown option " + std::string(name));
    }

    const std::vector<Option>* m_options = nullptr;
    std::vector<std::vector<const char*>> m_values;
    std::size_t m_positional = 0;
};

} // namespace

const Candidate handwrittenCandidate = {
    "handwritten", {}, nameAlone, [] { return std::unique_ptr<Library>(new Handwritten); }, false, true, false};

} // namespace bench
