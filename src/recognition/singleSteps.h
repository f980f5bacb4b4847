#pragma once

#include <string>
#include <vector>

#include "tarv_3_3/export.h"

/// The steps of recognition one by one, for tools and tests. No parse calls them: it cuts an argument with
/// `splitToken` and matches its name with `NameMatcher`, by the same rules and without copies of the names.
///
/// With them go `AbbreviationParser::makeOptionNamesList`, `makeNameMatch` and `findBest`.
namespace tarv_3_3 {

/// The length in bytes of the dash that begins at byte `pos` of `text`; see `dashLength`.
TARV_API unsigned long getDashLength(const std::string& text, unsigned long pos);

/// `splitToken` into strings, with the white space of the global locale. Returns whether there is a value; if
/// not, `value` is left alone.
TARV_API bool splitOptionValue(const std::string& arg, std::string* name, std::string* value);

/// An option name cut into words at every '-'. There is always at least one word; words may be
/// empty, and joining them gives the name back.
class TARV_API DecomposedName {
public:
    explicit DecomposedName(const std::string& name);
    DecomposedName(const DecomposedName&);
    DecomposedName(DecomposedName&&) noexcept;
    DecomposedName& operator=(const DecomposedName&);
    DecomposedName& operator=(DecomposedName&&) noexcept;
    ~DecomposedName();

    /// The words joined with '-'.
    std::string getName() const;

    std::vector<std::string> m_words;
};

} // namespace tarv_3_3
