/// What is left when a host does without a library: a loop that compares names. No help, no
/// abbreviations, no messages. The floor under all figures, not a peer.

#include "adapters/HostValues.h"
#include "adapters/candidates.h"
#include "adapters/notation.h"

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
                m_values.add(m_positional, argument);
                continue;
            }
            const char* name = argument + 2;
            const std::size_t length = std::strcspn(name, "=");
            const std::size_t index = find({name, length});
            if ((*m_options)[index].kind == Kind::Switch)
                m_values.add(index, "1");
            else if (name[length] == '=')
                m_values.add(index, name + length + 1);
            else
                m_values.add(index, argv[++i]);
        }
    }

    void read(const std::vector<Option>& options, Answer& answer) override { m_values.read(options, answer); }

    void forget() override { m_values.clear(); }

    std::string help() override { return {}; }

private:
    std::size_t find(std::string_view name) const {
        for (std::size_t i = 0; i < m_options->size(); ++i)
            if ((*m_options)[i].name == name)
                return i;
        fail("unknown option " + std::string(name));
    }

    const std::vector<Option>* m_options = nullptr;
    HostValues m_values;
    std::size_t m_positional = 0;
};

} // namespace

const Candidate handwrittenCandidate = {
    "handwritten", {}, nameAlone, make<Handwritten>, takesBack | collects};

} // namespace bench
