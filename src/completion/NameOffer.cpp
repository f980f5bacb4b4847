#include "completion/NameOffer.h"

#include "completion/commonBeginning.h"
#include "description/declarationFacts.h"
#include "options/findOption.h"
#include "parser/BasicParser.h"
#include "recognition/nameMatching.h"

namespace tarv_3_3 {

namespace {

bool takesValue(const OptionDescription& option) {
    return option.m_type != vtNull && option.m_type != vtBool;
}

} // namespace

// After one dash, the user may still type a second one.
NameOffer::NameOffer(const BasicParser& parser, Reader& reader, const Admission& admission,
                     const std::string& word, const ReadArgument& read)
    : m_options(parser.registry().m_options), m_reader(reader), m_admission(admission), m_dashes("--") {
    const bool hasDashesAlone = word.size() < 2 || read.role == ArgumentRole::endMarker;
    if (!hasDashesAlone) {
        m_dashes = word.substr(0, read.token.nameStart);
        m_typed = read.token.nameIn(word);
    }
}

void NameOffer::addTo(KeptCompletion& kept) {
    if (!m_typed.empty() && !isOptionName(m_typed)) {
        return;
    }
    for (std::size_t index = 0; index < m_options.size(); ++index) {
        offer(index, kept);
    }
    if (kept.candidateCount == 1) {
        kept.setCommon(kept.candidates[0].text);
    } else if (!m_names.empty()) {
        kept.setCommon(m_dashes + commonWords(m_typed, m_names));
    }
}

void NameOffer::offer(std::size_t index, KeptCompletion& kept) {
    if (m_typed.empty() && !mayBegin(index)) {
        return;
    }
    if (m_admission.mayStand(index)) {
        offerOneOf(index, false, kept);
    }
    if (m_options[index].m_type == vtBool && m_admission.maySwitchOff(index) && isNegationTyped()) {
        offerOneOf(index, true, kept);
    }
}

// Whether an option is offered before a letter of its name is typed.
bool NameOffer::mayBegin(std::size_t index) const {
    return internal::maySuggest(m_options[index]) && !m_admission.isGiven(index);
}

// Whether "no-" is typed, or "no", or a word and a dash that abbreviate it. "n" alone does not count, since
// it begins many names.
bool NameOffer::isNegationTyped() const {
    return m_typed + "-" == negation || mayBeNegated(m_typed);
}

// The primary name, or the first synonym that fits.
void NameOffer::offerOneOf(std::size_t index, bool isNegated, KeptCompletion& kept) {
    const OptionDescription& option = m_options[index];
    for (const std::string& name : option.m_names) {
        std::string whole = NameCandidate{name, isNegated}.text();
        if (scoreName(m_typed, whole).score != 0 && isGivenBy(whole, index)) {
            kept.add(m_dashes + whole + (takesValue(option) ? "=" : ""), std::string(option.m_description));
            m_names.push_back(std::move(whole));
            return;
        }
    }
}

// Whether a parse takes `name` for this declaration. Another one may have the same name, and some names
// cannot be typed.
bool NameOffer::isGivenBy(const std::string& name, std::size_t index) {
    const ReadArgument read = m_reader.look(m_dashes + name, nullptr);
    return read.role == ArgumentRole::named && read.index == index && read.name == name &&
           !read.isAbbreviated;
}

} // namespace tarv_3_3
