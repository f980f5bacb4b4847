#pragma once

#include <string>

#include "mero_2_16/assertion.h"

/// Takes the place of the assertion handler for as long as it lives, notes what failed and returns,
/// so that the failed operation goes on.
class CapturedAssertions {
public:
    CapturedAssertions() : m_previous(MERO_2_16::set_assertion_handler(note)) { m_expressions.clear(); }

    CapturedAssertions(const CapturedAssertions&) = delete;
    CapturedAssertions& operator=(const CapturedAssertions&) = delete;

    ~CapturedAssertions() { MERO_2_16::set_assertion_handler(m_previous); }

    /// The failed expressions, separated by "; ".
    const std::string& expressions() const { return m_expressions; }

private:
    static void note(const char* expression, const char*, int) {
        m_expressions += (m_expressions.empty() ? "" : "; ") + std::string(expression);
    }

    // The handler is a plain function, so what it notes has no other home.
    static inline std::string m_expressions;
    MERO_2_16::assertion_handler_t m_previous;
};
