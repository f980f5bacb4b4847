/// cxxopts keeps its values in a result that each parse makes anew.

#include "adapters/candidates.h"

#include <cxxopts.hpp>

#include <optional>

namespace bench {

namespace {

class Cxxopts final : public Library {
public:
    void declare(const std::vector<Option>& options) override {
        cxxopts::OptionAdder add = m_options.add_options();
        for (const Option& option : options) {
            add(option.declared.c_str(), option.description.c_str(), valueOf(option));
            if (option.kind == Kind::Positional)
                m_options.parse_positional({option.name.c_str()});
        }
    }

    void parse(int argc, char** argv) override { m_result.emplace(m_options.parse(argc, argv)); }

    void read(const std::vector<Option>& options, Answer& answer) override {
        for (const Option& option : options) {
            const cxxopts::OptionValue& found = (*m_result)[option.name.c_str()];
            const std::size_t slot = option.slot;
            if (found.count() == 0 && !option.hasDefault)
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
            case Kind::Positional: {
                const std::vector<std::string>& values = found.as<std::vector<std::string>>();
                answer.lists[slot].assign(values.begin(), values.end());
                break;
            }
            }
        }
    }

    void forget() override { m_result.reset(); }

    std::string help() override { return m_options.help(); }

private:
    static std::shared_ptr<cxxopts::Value> valueOf(const Option& option) {
        const std::shared_ptr<cxxopts::Value> value = valueOf(option.kind);
        if (!option.hasDefault)
            return value;
        switch (option.kind) {
        case Kind::Switch:
            return value->default_value("false");
        case Kind::Integer:
            return value->default_value(std::to_string(defaultInteger));
        case Kind::Number:
            return value->default_value("1.5");
        default:
            return value->default_value(defaultText);
        }
    }

    static std::shared_ptr<cxxopts::Value> valueOf(Kind kind) {
        switch (kind) {
        case Kind::Switch:
            return cxxopts::value<bool>();
        case Kind::Integer:
            return cxxopts::value<int>();
        case Kind::Number:
            return cxxopts::value<double>();
        case Kind::Text:
            return cxxopts::value<std::string>();
        default:
            return cxxopts::value<std::vector<std::string>>();
        }
    }

    cxxopts::Options m_options{"program", "A program with a command line."};
    std::optional<cxxopts::ParseResult> m_result;
};

std::string aliasAndName(const Option& option) {
    return option.alias ? std::string(1, option.alias) + ',' + option.name : option.name;
}

} // namespace

const Candidate cxxoptsCandidate = {"cxxopts", {}, aliasAndName, make<Cxxopts>};

} // namespace bench
