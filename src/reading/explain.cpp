#include "tarv_3_3/explain.h"

#include <exception>
#include <memory>
#include <string>
#include <vector>

#include "parser/BasicParser.h"
#include "reading/Reader.h"

namespace tarv_3_3 {

namespace {

static_assert(static_cast<int>(ArgumentRole::ambiguous) == explainedAmbiguous);
static_assert(static_cast<int>(ValueSource::nextLooksLikeOption) == sourceNextLooksLikeOption);

/// An explanation and what it points to.
class KeptExplanation : public Explanation {
public:
    explicit KeptExplanation(std::vector<ReadArgument> readings)
        : Explanation{sizeof(Explanation), sizeof(ExplainedArgument), 0, nullptr},
          m_readings(std::move(readings)), m_candidates(m_readings.size()) {
        for (std::size_t i = 0; i < m_readings.size(); ++i) {
            for (const std::string& name : m_readings[i].candidates) {
                m_candidates[i].push_back(name.c_str());
            }
            m_list.push_back(explained(m_readings[i], m_candidates[i]));
        }
        argumentCount = static_cast<unsigned>(m_list.size());
        arguments = m_list.data();
    }

private:
    static ExplainedArgument explained(const ReadArgument& read, const std::vector<const char*>& candidates) {
        ExplainedArgument argument = {};
        argument.role = static_cast<int>(read.role);
        argument.place = read.index == ReadArgument::nowhere ? -1 : static_cast<int>(read.index);
        argument.name = read.name.c_str();
        argument.nameStart = static_cast<unsigned>(read.token.nameStart);
        argument.nameEnd = static_cast<unsigned>(read.token.nameEnd);
        argument.valueStart = static_cast<unsigned>(read.token.valueStart);
        argument.isAbbreviated = read.isAbbreviated ? 1 : 0;
        argument.isNegated = read.isNegated ? 1 : 0;
        argument.isRefused = read.isRefused ? 1 : 0;
        argument.source = static_cast<int>(read.source);
        argument.candidates = candidates.data();
        argument.candidateCount = static_cast<unsigned>(candidates.size());
        return argument;
    }

    std::vector<ReadArgument> m_readings;
    std::vector<std::vector<const char*>> m_candidates;
    std::vector<ExplainedArgument> m_list;
};

} // namespace

const Explanation* explain(IParser* parser, int argc, const char* const* argv) {
    auto* const own = dynamic_cast<BasicParser*>(parser);
    if (own == nullptr) {
        return nullptr;
    }
    try {
        std::vector<std::string> arguments;
        for (int i = 1; i < argc; ++i) {
            if (argv[i] == nullptr) {
                return nullptr;
            }
            arguments.emplace_back(argv[i]);
        }
        return new KeptExplanation(readArguments(*own, arguments));
    } catch (const std::exception&) {
        return nullptr;
    }
}

void release(const Explanation* explanation) {
    delete static_cast<const KeptExplanation*>(explanation);
}

} // namespace tarv_3_3
