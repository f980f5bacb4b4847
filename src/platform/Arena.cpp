#include "platform/Arena.h"

#include <algorithm>

namespace tarv_3_3::internal {

namespace {

// Each block is twice as large as the last one, so large owners need few blocks. This is the largest size. It
// bounds the memory that may stay unused.
constexpr std::size_t largestBlock = std::size_t(256) * 1024;

} // namespace

Arena::~Arena() {
    while (m_lastBlock != nullptr) {
        Block* const block = m_lastBlock;
        m_lastBlock = block->previous;
        ::operator delete(block);
    }
}

// The head of a block has the largest alignment, so the first piece behind it needs no padding.
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
