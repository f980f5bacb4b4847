#pragma once

#include <string>

#include "support/CapturedOutput.h"
#include "tarv_3_3/internal/log.h"

/// Switches the trace on and catches standard output, for as long as it lives.
class CapturedLog {
public:
    CapturedLog() { tarv_3_3::internal::tarvLogEnabled = true; }

    CapturedLog(const CapturedLog&) = delete;
    CapturedLog& operator=(const CapturedLog&) = delete;

    ~CapturedLog() { tarv_3_3::internal::tarvLogEnabled = false; }

    std::string text() const { return m_output.text(); }

private:
    CapturedOutput m_output;
};
