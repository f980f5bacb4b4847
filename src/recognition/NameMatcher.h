#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "recognition/SpaceClassifier.h"
#include "recognition/nameMatching.h"
#include "recognition/tokenSyntax.h"

namespace tarv_3_3 {

class RegisteredOptionStorage;

/// How many declared names a typed name stands for: one, none or several.
enum class NameOutcome { found = 0, none = 1, ambiguous = 2 };

/// Finds the declared name that an argument gives, whole or abbreviated. It keeps what it found, and its
/// memory, until it is asked again.
class NameMatcher {
public:
    /// Cuts `argument` into its pieces and matches its name. An argument that does not begin with a dash,
    /// or has nothing behind it, gives none. Where `registry` is not null, `options` is its table.
    NameOutcome look(const std::string& argument, const std::vector<OptionDescription>& options,
                     RegisteredOptionStorage* registry);

    /// Goes over to what the global locale calls white space now.
    void followLocale() { m_classifier.follow(); }

    /// The argument that was last looked at, cut into pieces.
    const Token& token() const { return m_token; }

    /// The index of the record that has the one best name, -1 when there is not exactly one.
    std::int64_t index() const { return m_index; }

    /// The one best candidate, `argument` being the one that was last looked at. Throws `std::out_of_range`
    /// when there is none.
    std::string_view bestNameIn(std::string_view argument) const {
        return m_isWhole ? m_token.nameIn(argument) : std::string_view(m_bestNames.at(0));
    }

    /// The best candidates, in the order of the table. Empty where the name is given whole.
    const std::vector<std::string>& bestNames() const { return m_bestNames; }

    NameOutcome outcome() const {
        return m_isWhole || m_bestNames.size() == 1 ? NameOutcome::found
               : m_bestNames.empty()                ? NameOutcome::none
                                                    : NameOutcome::ambiguous;
    }

    /// The search by hand: `forget` begins it, then each candidate for which `isBest` is true is given to
    /// `keep`.
    void forget();
    bool isBest(NameScore found);
    void keep(std::string name) { m_bestNames.push_back(std::move(name)); }

private:
    bool findWholeName(std::string_view typed, RegisteredOptionStorage& registry);
    void keepBest(std::string_view typed, const std::vector<OptionDescription>& options);

    std::int64_t m_index = -1;
    /// Whether the one best candidate equals the typed name, which is not kept then.
    bool m_isWhole = false;
    std::vector<std::string> m_bestNames;
    /// What each of them scored.
    std::int32_t m_bestScore = 0;
    Token m_token;
    SpaceClassifier m_classifier;
};

/// Whether a typed name may be that of an option. An empty name, and one that begins with a third dash, are
/// errors even if they match a declared name.
inline bool isOptionName(std::string_view name) {
    return !name.empty() && name.front() != '-';
}

} // namespace tarv_3_3
