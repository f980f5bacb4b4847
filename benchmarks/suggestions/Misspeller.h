#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

/// How the words are made that suggestions are measured with. The same seed makes the same words on
/// every machine.
class Misspeller {
public:
    explicit Misspeller(std::uint32_t seed) : m_random(seed) {}

    /// A letter more, less or other, or two neighbours swapped.
    std::string edit(std::string name);

    /// Each word of three letters or more cut at a random place, two letters being left at least.
    std::string cutShort(const std::string& name);

    /// One of the words left out.
    std::string leaveOutWord(const std::string& name);

    /// From `least` to `most` random letters.
    std::string nonsense(std::size_t least, std::size_t most);

    /// A number below `end`.
    std::size_t below(std::size_t end) { return m_random() % end; }

private:
    char letter() { return static_cast<char>('a' + below(26)); }

    std::mt19937 m_random;
};
