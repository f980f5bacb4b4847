#pragma once

#include <string>
#include <vector>

#include "completion/Admission.h"
#include "completion/KeptCompletion.h"
#include "reading/Reader.h"

namespace tarv_3_3 {

class BasicParser;

/// Offers the names that `word` may be completed to. `word` is empty, or begins with a dash and has no value;
/// `read` is what the reader tells of it.
class NameOffer {
public:
    NameOffer(const BasicParser& parser, Reader& reader, const Admission& admission, const std::string& word,
              const ReadArgument& read);

    void addTo(KeptCompletion& kept);

private:
    void offer(std::size_t index, KeptCompletion& kept);
    void offerOneOf(std::size_t index, bool isNegated, KeptCompletion& kept);
    bool isGivenBy(const std::string& name, std::size_t index);
    bool mayBegin(std::size_t index) const;
    bool isNegationTyped() const;

    const std::vector<OptionDescription>& m_options;
    Reader& m_reader;
    const Admission& m_admission;
    std::string m_dashes;
    std::string m_typed;
    /// The names that were offered.
    std::vector<std::string> m_names;
};

} // namespace tarv_3_3
