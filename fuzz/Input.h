#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Cuts the bytes of a fuzzer into pieces. Inputs are text where possible, so that a corpus can be
/// read and written by hand: one line for one thing.
class Input {
public:
    Input(const std::uint8_t* bytes, std::size_t size) : m_rest(reinterpret_cast<const char*>(bytes), size) {}

    /// The next byte, 0 at the end.
    unsigned char byte() {
        const std::string_view taken = m_rest.substr(0, 1);
        m_rest.remove_prefix(taken.size());
        return taken.empty() ? 0 : static_cast<unsigned char>(taken.front());
    }

    /// What is left up to `end`, which is skipped; all of it when there is none.
    std::string until(char end) {
        const std::string_view taken = m_rest.substr(0, m_rest.find(end));
        m_rest.remove_prefix(taken.size() < m_rest.size() ? taken.size() + 1 : taken.size());
        return std::string(taken);
    }

    std::string rest() { return until('\0'); }

    /// The next byte, which stays; not at the end.
    char front() const { return m_rest.front(); }

    bool empty() const { return m_rest.empty(); }

    /// What is left as arguments, one a line, each up to its first zero byte.
    std::vector<std::string> arguments() {
        std::vector<std::string> lines;
        while (!empty()) {
            lines.emplace_back(until('\n').c_str());
        }
        return lines;
    }

private:
    std::string_view m_rest;
};
