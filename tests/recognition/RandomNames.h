#pragma once

#include <random>
#include <string>

/// Names and abbreviations of few letters, so that many fit each other.
class RandomNames {
public:
    std::string next() {
        static const char* const words[] = {"", "n", "no", "non", "a", "ab", "\xFF", "\xFF\x80"};
        std::string name = words[pick(8)];
        for (unsigned left = pick(4); left > 0; --left) {
            name.append("-").append(words[pick(8)]);
        }
        return name;
    }

    bool nextBool() { return pick(2) == 0; }

    unsigned pick(unsigned below) { return static_cast<unsigned>(m_engine()) % below; }

private:
    std::mt19937 m_engine{7};
};
