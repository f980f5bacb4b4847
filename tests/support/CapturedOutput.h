#pragma once

#include <iostream>
#include <sstream>
#include <string>

/// Catches standard output as long as it lives, and leaves the trace as it is.
class CapturedOutput {
public:
    CapturedOutput() : m_output(std::cout.rdbuf(m_text.rdbuf())) {}

    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;

    ~CapturedOutput() { std::cout.rdbuf(m_output); }

    std::string text() const { return m_text.str(); }

private:
    std::ostringstream m_text;
    std::streambuf* m_output;
};
