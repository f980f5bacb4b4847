#pragma once

#include <string>
#include <vector>

#include "tarv_3_3/export.h"

namespace tarv_3_3 {

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
