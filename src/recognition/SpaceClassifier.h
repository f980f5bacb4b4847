#pragma once

#include <locale>

namespace tarv_3_3 {

/// Tells what is white space in the global locale at the time of its construction. Looking up a locale costs
/// more than splitting an argument, so one classifier serves many arguments.
class SpaceClassifier {
public:
    SpaceClassifier() : m_classes(&std::use_facet<std::ctype<char>>(m_locale)) {}

    /// Switches to the present global locale.
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
