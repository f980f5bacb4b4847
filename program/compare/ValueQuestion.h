#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/CommandLine.h"
#include "model/rebuild.h"

namespace tarv_program {

/// What an option makes of a value, without regard to what else is declared: asked of a parser that knows
/// only this option.
class ValueQuestion {
public:
    explicit ValueQuestion(const Option& option);

    /// The values that are stored where `text` is given, "" for none; none where it is refused, by the parser
    /// or by the range that is said of the option.
    std::optional<std::vector<std::string>> accept(const std::string& text) const;

private:
    bool isInRange(const std::string& text) const;

    tarv_3_3::das_variant_type_t m_kind;
    /// An argument without a name that is empty is a text like any other.
    bool m_takesEmptyWord;
    bool m_isSlot;
    std::optional<std::string> m_range;
    Parser m_parser;
};

/// Values that tell options apart: allowed ones, bounds, numbers of every size, texts and lists.
std::vector<std::string> telltaleValues(const Option& older, const Option& newer);

/// A value that the option takes, the plainest there is; none if it takes none, or refuses all that were
/// tried.
std::optional<std::string> sampleValue(const Option& option);

} // namespace tarv_program
