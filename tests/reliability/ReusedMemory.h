#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

/// Takes blocks of all sizes, fills them, and keeps them for as long as it lives. What was freed before
/// then says something else, also in a build without a sanitizer.
class ReusedMemory {
public:
    ReusedMemory() {
        for (std::size_t size = 16; size <= 2048; size += 16) {
            take(size, 32);
        }
        for (std::size_t size = 4096; size <= 65536; size += 4096) {
            take(size, 4);
        }
        overwriteStack();
    }

private:
    void take(std::size_t size, int count) {
        for (int i = 0; i < count; ++i) {
            m_blocks.push_back(std::make_unique<char[]>(size));
            std::memset(m_blocks.back().get(), '#', size);
        }
    }

    [[gnu::noinline]] static void overwriteStack() {
        volatile char frame[16384];
        for (volatile char& byte : frame) {
            byte = '#';
        }
    }

    std::vector<std::unique_ptr<char[]>> m_blocks;
};
