#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {

Garbage::Garbage() = default;

Garbage::~Garbage() = default;

const char* Garbage::init(const char* text) {
    return text != nullptr ? m_strings.insert(text).bytes() : "";
}

} // namespace tarv_3_3
