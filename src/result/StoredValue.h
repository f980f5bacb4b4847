#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <string>

#include "platform/Arena.h"
#include "tarv_3_3/internal/OptionData.h"
#include "tarv_3_3/variant.h"

namespace tarv_3_3::internal {

/// One value as a result keeps it. It takes 32 bytes, since there may be millions.
///
/// Where its text lies: in `value`, if that is the same text; else in this object, if it has at most 11
/// bytes; else in the arena.
class StoredValue {
public:
    /// Copies `given`, with its text into `memory` where that is needed.
    StoredValue(const OptionValue& given, Arena& memory)
        : value(given.value), position(given.position), m_text{} {
        if (value.type() == vtString && (given.text.empty() || given.text == value.get<const char*>())) {
            m_text.back() = inVariant;
        } else if (given.text.size() < m_text.size()) {
            std::memcpy(m_text.data(), given.text.c_str(), given.text.size());
        } else {
            const char* const kept = keep(given.text, memory);
            std::memcpy(m_text.data(), &kept, sizeof kept);
            m_text.back() = inArena;
        }
    }

    const char* text() const {
        switch (m_text.back()) {
        case inVariant:
            return value.get<const char*>();
        case inArena:
            return textInArena();
        default:
            return m_text.data();
        }
    }

    variant_t value;
    int position;

private:
    /// The last byte of `m_text` says where the text lies. It is 0 for a text in `m_text` itself.
    enum Place : char { inVariant = 1, inArena = 2 };

    static const char* keep(const std::string& text, Arena& memory) {
        const std::size_t size = text.size() + 1;
        return static_cast<const char*>(std::memcpy(memory.take(size, 1), text.c_str(), size));
    }

    const char* textInArena() const {
        const char* kept = nullptr;
        std::memcpy(&kept, m_text.data(), sizeof kept);
        return kept;
    }

    std::array<char, 12> m_text;
};

} // namespace tarv_3_3::internal
