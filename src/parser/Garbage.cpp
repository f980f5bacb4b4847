#include "tarv_3_3/internal/Garbage.h"

#include "platform/TextMap.h"

namespace tarv_3_3 {

namespace internal {

class TextSet {
public:
    const char* insert(const char* text) { return m_texts.insert(text).bytes(); }

private:
    struct NoValue {};

    ArenaWithRoom<2048> m_memory;
    TextMap<NoValue> m_texts{m_memory};
};

} // namespace internal

Garbage::Garbage() : m_strings(std::make_unique<internal::TextSet>()) {}

Garbage::~Garbage() = default;

const char* Garbage::init(const char* text) {
    return text != nullptr ? m_strings->insert(text) : "";
}

} // namespace tarv_3_3
