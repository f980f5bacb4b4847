#pragma once

#include <string>

#include "tarv_3_3/export.h"

namespace tarv_3_3 {

/// A text laid out once by `paragraphString`.
class TARV_API WordWrappedText {
public:
    /// `rightEdge` is a column, not a width: lines end before it. It must not lie left of `indent`.
    WordWrappedText(const char* lead, const char* text, unsigned long indent, unsigned long rightEdge);
    ~WordWrappedText();

    /// Valid while this object lives.
    const char* getText() const;

private:
    std::string m_text;
};

} // namespace tarv_3_3
