#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "options/OptionDescription.h"

namespace tarv_3_3 {

/// A name that an argument may give, whole or abbreviated: a name of an option, or that name behind "no-".
struct NameCandidate {
    std::string text() const;

    std::string_view name;
    bool isNegated = false;
};

/// How well a candidate fits a typed name.
struct NameScore {
    /// Whether both have the same number of words. Only such a candidate can be chosen.
    bool sameWordCount;
    /// 2 for every typed word that is whole, 1 for every one that is abbreviated; 0 when some word does not
    /// fit, or the typed name has more words.
    std::int32_t score;
};

/// Calls `look` with every candidate of an option, in their order.
template <class Look>
void forEachCandidate(const OptionDescription& option, Look look) {
    for (const std::string& name : option.m_names) {
        look(NameCandidate{name, false});
        if (option.m_type == vtBool) {
            look(NameCandidate{name, true});
        }
    }
}

NameScore scoreName(std::string_view typed, std::string_view name);

/// The same for a candidate. Of a negated one the score counts only where the number of words is the same.
NameScore scoreCandidate(std::string_view typed, const NameCandidate& candidate);

/// Whether the first word of a typed name is "no", "n" or empty, so that it may match the "no" of a negated
/// candidate. There must be a second word.
bool mayBeNegated(std::string_view typed);

/// A pattern for `Names::mayFit`. An option whose names do not fit has no candidate for `typed`, so that most
/// options of a table need not be scored.
Names::Pattern patternOf(std::string_view typed);

} // namespace tarv_3_3
