#include "help/WordWrappedText.h"

#include "help/paragraphString.h"

namespace tarv_3_3 {

WordWrappedText::WordWrappedText(const char* lead, const char* text, unsigned long indent,
                                 unsigned long rightEdge)
    : m_text(paragraphString(text, lead, indent, rightEdge - indent)) {}

WordWrappedText::~WordWrappedText() = default;

const char* WordWrappedText::getText() const {
    return m_text.c_str();
}

} // namespace tarv_3_3
