/// Boost.Program_options. It has no separator within a value: the host splits lists.

#include "adapters/candidates.h"
#include "adapters/notation.h"

#include <boost/program_options.hpp>

#include <sstream>

namespace bench {

namespace {

namespace po = boost::program_options;

using Texts = std::vector<std::string>;

class Boost final : public Library {
public:
    void declare(const std::vector<Option>& options) override {
        po::options_description_easy_init add = m_options.add_options();
        for (const Option& option : options) {
            const char* names = option.declared.c_str();
            const char* description = option.description.c_str();
            switch (option.kind) {
            case Kind::Switch:
                add(names, po::bool_switch(), description);
                break;
            case Kind::Integer:
                add(names,
                    option.hasDefault ? po::value<int>()->default_value(defaultInteger) : po::value<int>(),
                    description);
                break;
            case Kind::Number:
                add(names,
                    option.hasDefault ? po::value<double>()->default_value(defaultNumber)
                                      : po::value<double>(),
                    description);
                break;
            case Kind::Text:
                add(names,
                    option.hasDefault ? po::value<std::string>()->default_value(defaultText)
                                      : po::value<std::string>(),
                    description);
                break;
            case Kind::List:
                add(names, po::value<Texts>(), description);
                break;
            case Kind::Positional:
                add(names, po::value<Texts>(), description);
                m_positional.add(names, -1);
                break;
            }
        }
    }

    void parse(int argc, char** argv) override {
        po::store(po::command_line_parser(argc, argv).options(m_options).positional(m_positional).run(),
                  m_values);
        po::notify(m_values);
    }

    void read(const std::vector<Option>& options, Answer& answer) override {
        for (const Option& option : options) {
            const po::variable_value& found = m_values[option.name.c_str()];
            const std::size_t slot = option.slot;
            if (found.empty())
                continue;
            switch (option.kind) {
            case Kind::Switch:
                answer.switches[slot] = found.as<bool>();
                break;
            case Kind::Integer:
                answer.integers[slot] = found.as<int>();
                break;
            case Kind::Number:
                answer.numbers[slot] = found.as<double>();
                break;
            case Kind::Text:
                answer.texts[slot] = found.as<std::string>();
                break;
            case Kind::List:
                for (const std::string& value : found.as<Texts>())
                    splitAtCommas(value, answer.lists[slot]);
                break;
            case Kind::Positional: {
                const Texts& values = found.as<Texts>();
                answer.lists[slot].assign(values.begin(), values.end());
                break;
            }
            }
        }
    }

    void forget() override { m_values = po::variables_map(); }

    std::string help() override {
        std::ostringstream text;
        text << m_options;
        return text.str();
    }

private:
    po::options_description m_options{"Options"};
    po::positional_options_description m_positional;
    po::variables_map m_values;
};

} // namespace

const Candidate boostCandidate = {"Boost.Program_options", {}, nameAndAlias, make<Boost>};

} // namespace bench
