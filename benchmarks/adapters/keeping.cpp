/// The hand-written loop, made to keep what a parse with tarv keeps, in the same containers: a copy of
/// every argument, of every text value in the parser's keeper, in a shared variant and in the result,
/// with position indices. No abbreviations, no other dashes, no allowed values, no events, no messages,
/// no trace. The floor under tarv's figures.

#include "adapters/HostValues.h"
#include "adapters/candidates.h"
#include "adapters/notation.h"

#include "options/Names.h"
#include "platform/TextMap.h"
#include "tarv_3_3/internal/Garbage.h"
#include "tarv_3_3/internal/OptionData.h"

#include <algorithm>
#include <deque>
#include <memory>

namespace bench {

namespace {

namespace tarv = tarv_3_3;

/// What was given, and where it is by name.
struct Kept {
    static constexpr auto nowhere = static_cast<std::size_t>(-1);
    struct Place {
        std::size_t place = nowhere;
    };
    using Names = tarv::internal::TextMap<Place>;

    tarv::internal::ArenaWithRoom<6144> memory;
    Names names{memory};
    std::deque<tarv::OptionData, tarv::internal::ArenaAllocator<tarv::OptionData>> data{memory};
};

class Keeping final : public Library {
public:
    void declare(const std::vector<Option>& options) override {
        for (const Option& option : options) {
            m_names.emplace_back();
            m_names.back().emplace_back(option.name);
            m_kinds.push_back(option.kind);
        }
    }

    void parse(int argc, char** argv) override {
        m_kept = std::make_unique<Kept>();
        const std::vector<std::string> arguments(argv + 1, argv + argc);
        for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
            if (argument->front() != '-') {
                keep(m_names.size() - 1, *argument);
                continue;
            }
            const std::size_t equals = std::min(argument->find('='), argument->size());
            const std::size_t option = find(std::string_view(*argument).substr(2, equals - 2));
            if (m_kinds[option] == Kind::Switch)
                keep(option, "1");
            else if (equals < argument->size())
                keep(option, argument->substr(equals + 1));
            else
                keep(option, *++argument);
        }
    }

    void read(const std::vector<Option>& options, Answer& answer) override {
        HostValues values;
        values.resize(options.size());
        for (std::size_t i = 0; i < options.size(); ++i) {
            const Kept::Names::Entry* const known = m_kept->names.find(m_names[i].front());
            if (known != nullptr)
                for (const tarv::OptionValue& value : m_kept->data[known->value.place].values)
                    values.add(i, value.text.c_str());
        }
        values.read(options, answer);
    }

    void forget() override { m_kept.reset(); }

    std::string help() override { return {}; }

private:
    std::size_t find(std::string_view name) const {
        for (std::size_t i = 0; i < m_names.size(); ++i)
            if (m_names[i].front() == name)
                return i;
        fail("unknown option " + std::string(name));
    }

    void keep(std::size_t option, const std::string& text) {
        Kept::Names::Entry& known = m_kept->names.insert(m_names[option].front());
        if (known.value.place == Kept::nowhere) {
            known.value.place = m_kept->data.size();
            m_kept->data.emplace_back();
        }
        tarv::OptionData& data = m_kept->data[known.value.place];
        data.positions.push_back(m_position++);
        data.values.push_back({text, tarv::variant_t(m_keeper.init(text.c_str())), m_position++});
    }

    std::vector<tarv::Names> m_names;
    std::vector<Kind> m_kinds;
    tarv::Garbage m_keeper;
    int m_position = 1;
    std::unique_ptr<Kept> m_kept;
};

} // namespace

const Candidate keepingCandidate = {"keeping", {}, nameAlone, make<Keeping>, takesBack | collects};

} // namespace bench
