/// getopt_long of the C library: names only. Conversion, lists and the storage are the host's.
/// Its table is built while "declaring"; a host would write it as a constant.
///
/// By itself it moves the positional arguments to the end, at a cost that grows with the square of the
/// command line. With "-" before the letters it yields them in order, as occurrences of an option 1.

#include "adapters/HostValues.h"
#include "adapters/candidates.h"
#include "adapters/notation.h"

#include <getopt.h>

namespace bench {

namespace {

template <bool inOrder>
class Getopt final : public Library {
public:
    void declare(const std::vector<Option>& options) override {
        m_values.resize(options.size());
        m_positional = options.size() - 1;
        m_letters = inOrder ? "-" : "";
        for (std::size_t i = 0; i < options.size(); ++i) {
            const Option& option = options[i];
            if (option.kind == Kind::Positional)
                continue;
            const int argument = option.kind == Kind::Switch ? no_argument : required_argument;
            const int code = option.alias ? option.alias : firstCode + static_cast<int>(i);
            m_table.push_back({option.name.c_str(), argument, nullptr, code});
            if (option.alias)
                m_letters.append(1, option.alias).append(argument == required_argument ? ":" : "");
            if (option.alias)
                m_indexOfLetter[static_cast<unsigned char>(option.alias)] = i;
        }
        m_table.push_back({nullptr, 0, nullptr, 0});
    }

    void parse(int argc, char** argv) override {
        optind = 0;
        for (int code; (code = getopt_long(argc, argv, m_letters.c_str(), m_table.data(), nullptr)) != -1;) {
            if (code == '?')
                fail("refused");
            m_values.add(indexOf(code), optarg ? optarg : "1");
        }
        for (; optind < argc; ++optind)
            m_values.add(m_positional, argv[optind]);
    }

    void read(const std::vector<Option>& options, Answer& answer) override { m_values.read(options, answer); }

    void forget() override { m_values.clear(); }

    std::string help() override { return {}; }

private:
    static constexpr int positionalCode = 1;
    static constexpr int firstCode = 256;

    std::size_t indexOf(int code) const {
        if (code == positionalCode)
            return m_positional;
        return code >= firstCode ? static_cast<std::size_t>(code - firstCode) : m_indexOfLetter[code];
    }

    std::vector<option> m_table;
    std::string m_letters;
    std::size_t m_indexOfLetter[firstCode] = {};
    HostValues m_values;
    std::size_t m_positional = 0;
};

} // namespace

const Candidate getoptCandidate = {"getopt_long", {}, nameAlone, make<Getopt<false>>, takesBack | collects};
const Candidate getoptInOrderCandidate = {
    "getopt_long, in order", {}, nameAlone, make<Getopt<true>>, takesBack | collects};

} // namespace bench
