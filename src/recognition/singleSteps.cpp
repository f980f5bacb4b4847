#include "recognition/singleSteps.h"

#include "options/OptionDescription.h"
#include "recognition/AbbreviationParser.h"
#include "recognition/SpaceClassifier.h"
#include "recognition/nameMatching.h"
#include "recognition/tokenSyntax.h"

namespace tarv_3_3 {

namespace {

constexpr std::size_t typicalWords = 3;

} // namespace

unsigned long getDashLength(const std::string& text, unsigned long pos) {
    return pos < text.size() ? dashLength(std::string_view(text).substr(pos)) : 0;
}

bool splitOptionValue(const std::string& arg, std::string* name, std::string* value) {
    const Token token = splitToken(arg, SpaceClassifier());
    name->assign(token.nameIn(arg));
    if (token.hasValue) {
        value->assign(token.valueIn(arg));
    }
    return token.hasValue;
}

DecomposedName::DecomposedName(const std::string& name) {
    m_words.reserve(typicalWords);
    std::size_t start = 0;
    for (std::size_t dash = name.find('-'); dash != std::string::npos; dash = name.find('-', start)) {
        m_words.emplace_back(name, start, dash - start);
        start = dash + 1;
    }
    m_words.emplace_back(name, start);
}

DecomposedName::DecomposedName(const DecomposedName&) = default;
DecomposedName::DecomposedName(DecomposedName&&) noexcept = default;
DecomposedName& DecomposedName::operator=(const DecomposedName&) = default;
DecomposedName& DecomposedName::operator=(DecomposedName&&) noexcept = default;
DecomposedName::~DecomposedName() = default;

std::string DecomposedName::getName() const {
    std::string name = m_words.front();
    for (std::size_t i = 1; i < m_words.size(); ++i) {
        name.append("-").append(m_words[i]);
    }
    return name;
}

void AbbreviationParser::makeOptionNamesList(std::vector<OptionDescription>& options,
                                             std::vector<DecomposedName>& names) {
    for (const OptionDescription& option : options) {
        forEachCandidate(option,
                         [&](const NameCandidate& candidate) { names.emplace_back(candidate.text()); });
    }
}

void AbbreviationParser::makeNameMatch(std::vector<NameMatch>& matches, const DecomposedName& typed,
                                       const std::vector<DecomposedName>& candidates) {
    const std::string typedName = typed.getName();
    for (const DecomposedName& candidate : candidates) {
        const std::string name = candidate.getName();
        const NameScore found = scoreName(typedName, name);
        if (found.score != 0) {
            matches.push_back({found.sameWordCount, found.score, candidate});
        }
    }
}

int AbbreviationParser::findBest(const std::vector<NameMatch>& matches, DecomposedName& best,
                                 std::string& message) {
    m_matcher.forget();
    for (const NameMatch& match : matches) {
        if (m_matcher.isBest({match.m_sameWordCount, match.m_score})) {
            m_matcher.keep(match.m_candidate.getName());
        }
    }
    const NameOutcome outcome = tellOutcome(message);
    if (outcome == NameOutcome::found) {
        best = DecomposedName(m_matcher.bestNames().front());
    }
    return static_cast<int>(outcome);
}

} // namespace tarv_3_3
