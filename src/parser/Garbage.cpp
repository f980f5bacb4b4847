#include "tarv_3_3/internal/Garbage.h"

#include "platform/TextMap.h"

namespace tarv_3_3 {

namespace internal {

class TextSet {
public:
    // Not defaulted: value-initialisation would then fill the whole object with zeros first.
    TextSet() {}

    const char* insert(const char* text) { return m_texts.insert(text).bytes(); }

private:
    struct NoValue {};

    ArenaWithRoom<2048> m_memory;
    TextMap<NoValue> m_texts{m_memory};
};

} // namespace internal

Garbage::Garbage() = default;

Garbage::~Garbage() = default;

const char* Garbage::init(const char* text) {
    if (text == nullptr) {
        return "";
    }
    if (!m_strings) {
        m_strings = std::make_unique<internal::TextSet>();
    }
    return m_strings->insert(text);
}

} // namespace tarv_3_3
