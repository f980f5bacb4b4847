#pragma once

#include <iostream>
#include <sstream>
#include <string>

#include "tarv_3_3/internal/log.h"

/// Switches the trace on and catches standard output, for as long as it lives.
class CapturedLog {
public:
    CapturedLog() : m_output(std::cout.rdbuf(m_text.rdbuf())) { tarv_3_3::internal::tarvLogEnabled = true; }

    CapturedLog(const CapturedLog&) = delete;
    CapturedLog& operator=(const CapturedLog&) = delete;

    ~CapturedLog() {
        tarv_3_3::internal::tarvLogEnabled = false;
        std::cout.rdbuf(m_output);
    }

    std::string text() const { return m_text.str(); }

private:
    std::ostringstream m_text;
    std::streambuf* m_output;
};
