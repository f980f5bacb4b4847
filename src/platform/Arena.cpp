#include "platform/Arena.h"

#include <algorithm>

namespace tarv_3_3::internal {

namespace {

// Blocks grow, so that a large owner asks the heap seldom, up to this size, so that it has at most this much
// too much.
constexpr std::size_t largestBlock = std::size_t(256) * 1024;

} // namespace

Arena::~Arena() {
    while (m_lastBlock != nullptr) {
        Block* const block = m_lastBlock;
        m_lastBlock = block->previous;
        ::operator delete(block);
    }
}

void* Arena::takeFromNewBlock(std::size_t size, std::size_t alignment) {
    const std::size_t blockSize = std::max(m_nextBlockSize, sizeof(Block) + size + alignment);
    m_lastBlock = new (::operator new(blockSize)) Block{m_lastBlock};
    m_nextBlockSize = std::min(2 * m_nextBlockSize, largestBlock);
    m_next = reinterpret_cast<std::uintptr_t>(m_lastBlock + 1);
    m_end = reinterpret_cast<std::uintptr_t>(m_lastBlock) + blockSize;
    return take(size, alignment);
}

} // namespace tarv_3_3::internal
