#include "recognition/DecomposedName.h"

namespace tarv_3_3 {

namespace {

constexpr std::size_t usualWords = 3;

} // namespace

DecomposedName::DecomposedName(const std::string& name) {
    m_words.reserve(usualWords);
    std::size_t start = 0;
    for (std::size_t dash = name.find('-'); dash != std::string::npos; dash = name.find('-', start)) {
        m_words.emplace_back(name, start, dash - start);
        start = dash + 1;
    }
    m_words.emplace_back(name, start);
}

DecomposedName::DecomposedName(const DecomposedName&) = default;
DecomposedName::DecomposedName(DecomposedName&&) noexcept = default;
DecomposedName& DecomposedName::operator=(const DecomposedName&) = default;
DecomposedName& DecomposedName::operator=(DecomposedName&&) noexcept = default;
DecomposedName::~DecomposedName() = default;

std::string DecomposedName::getName() const {
    std::string name = m_words.front();
    for (std::size_t i = 1; i < m_words.size(); ++i) {
        name.append("-").append(m_words[i]);
    }
    return name;
}

} // namespace tarv_3_3
