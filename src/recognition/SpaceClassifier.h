#pragma once

#include <locale>

namespace tarv_3_3 {

/// Knows what the global locale of its construction calls white space. Asking a locale costs more
/// than splitting an argument, so ask once for many.
class SpaceClassifier {
public:
    SpaceClassifier() : m_classes(&std::use_facet<std::ctype<char>>(m_locale)) {}

    /// Goes over to what is the global locale now.
    void follow() {
        if (m_locale != std::locale()) {
            *this = SpaceClassifier();
        }
    }

    bool isSpace(char character) const { return m_classes->is(std::ctype_base::space, character); }

private:
    std::locale m_locale;
    const std::ctype<char>* m_classes;
};

} // namespace tarv_3_3
