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

// What lies behind the head of a block is aligned for everything.
void* Arena::takeFromNewBlock(std::size_t size) {
    const std::size_t blockSize = std::max(m_nextBlockSize, sizeof(Block) + size);
    auto* const block = static_cast<std::byte*>(::operator new(blockSize));
    m_lastBlock = new (block) Block{m_lastBlock};
    m_nextBlockSize = std::min(2 * m_nextBlockSize, largestBlock);
    std::byte* const piece = block + sizeof(Block);
    m_next = piece + size;
    m_end = block + blockSize;
    return piece;
}

} // namespace tarv_3_3::internal
