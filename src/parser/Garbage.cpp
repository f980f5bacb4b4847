#include "tarv_3_3/internal/Garbage.h"

#include <string_view>

namespace tarv_3_3 {

Garbage::Garbage() = default;

Garbage::~Garbage() = default;

const char* Garbage::init(const char* text) {
    if (text == nullptr) {
        return "";
    }
    const std::string_view wanted(text);
    const auto place = m_strings.lower_bound(wanted);
    if (place != m_strings.end() && *place == wanted) {
        return place->c_str();
    }
    return m_strings.emplace_hint(place, wanted)->c_str();
}

} // namespace tarv_3_3
