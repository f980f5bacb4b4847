#include "recognition/ArgumentWindow.h"

#include <algorithm>
#include <utility>

namespace tarv_3_3 {

namespace {

constexpr std::size_t lookahead = 2;

auto at(std::vector<std::string>& arguments, std::size_t place) {
    return arguments.begin() + static_cast<std::ptrdiff_t>(place);
}

} // namespace

ArgumentWindow::ArgumentWindow(std::vector<std::string>& arguments) : m_arguments(arguments) {
    m_front.reserve(lookahead);
}

ArgumentWindow::~ArgumentWindow() {
    const std::size_t consumed = m_taken - m_front.size();
    std::move(m_front.begin(), m_front.end(), at(m_arguments, consumed));
    m_arguments.erase(m_arguments.begin(), at(m_arguments, consumed));
}

bool ArgumentWindow::fill() {
    if (m_front.size() < lookahead) {
        take(std::min(lookahead - m_front.size(), m_arguments.size() - m_taken));
    }
    return !m_front.empty();
}

void ArgumentWindow::fillWithRest() {
    m_front.reserve(m_front.size() + m_arguments.size() - m_taken);
    take(m_arguments.size() - m_taken);
}

void ArgumentWindow::take(std::size_t count) {
    for (; count > 0; --count) {
        m_front.push_back(std::move(m_arguments[m_taken]));
        ++m_taken;
    }
}

} // namespace tarv_3_3
