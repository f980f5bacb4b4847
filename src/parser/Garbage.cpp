#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {

namespace {

constexpr std::size_t firstBlock = 2048;

} // namespace

Garbage::Garbage() : m_memory(firstBlock), m_strings(m_memory) {}

Garbage::~Garbage() = default;

const char* Garbage::init(const char* text) {
    return text != nullptr ? m_strings.insert(text).bytes() : "";
}

} // namespace tarv_3_3
