#include "platform/Arena.h"

#include <gtest/gtest.h>

#include <cstring>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "reliability/FailingAllocations.h"

namespace tarv_3_3::internal {
namespace {

/// Pieces that were taken, each filled with a byte of its own.
class Pieces {
public:
    explicit Pieces(Arena& arena) : m_arena(arena) {}

    void take(std::size_t size, std::size_t alignment) {
        auto* const piece = static_cast<char*>(m_arena.take(size, alignment));
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(piece) % alignment, 0U);
        std::memset(piece, fill(m_pieces.size()), size);
        m_pieces.emplace_back(piece, size);
    }

    bool areWhole() const {
        for (std::size_t i = 0; i < m_pieces.size(); ++i) {
            const auto [piece, size] = m_pieces[i];
            if (std::string(piece, size) != std::string(size, fill(i))) {
                return false;
            }
        }
        return true;
    }

private:
    static char fill(std::size_t number) { return static_cast<char>(number % 251); }

    Arena& m_arena;
    std::vector<std::pair<char*, std::size_t>> m_pieces;
};

using Words = std::vector<std::uint64_t, ArenaAllocator<std::uint64_t>>;

TEST(Arena, GivesPiecesOfItsRoomFirst) {
    const long before = failing::liveBlocks();
    ArenaWithRoom<64> arena;
    char* const first = static_cast<char*>(arena.take(60, 1));
    EXPECT_EQ(arena.take(4, 4), first + 60);
    EXPECT_EQ(failing::liveBlocks(), before);
    arena.take(1, 1);
    EXPECT_EQ(failing::liveBlocks(), before + 1);
}

TEST(Arena, GivesBackItsBlocksWhenItEnds) {
    const long before = failing::liveBlocks();
    {
        ArenaWithRoom<64> arena;
        for (int i = 0; i < 100; ++i) {
            arena.take(60, 1);
        }
        EXPECT_GT(failing::liveBlocks(), before + 3);
    }
    EXPECT_EQ(failing::liveBlocks(), before);
}

TEST(Arena, GivesPiecesThatDoNotOverlap) {
    ArenaWithRoom<128> arena;
    Pieces pieces(arena);
    const std::size_t sizes[] = {1, 0, 7, 8, 100, 3, 1000, 16, 70000, 2, 600000, 5};
    for (int round = 0; round < 20; ++round) {
        for (const std::size_t size : sizes) {
            for (const std::size_t alignment : {1U, 2U, 4U, 8U, 16U}) {
                pieces.take(size, alignment);
            }
        }
    }
    EXPECT_TRUE(pieces.areWhole());
}

TEST(Arena, AsksForFewBlocks) {
    const long before = failing::liveBlocks();
    ArenaWithRoom<64> arena;
    for (int i = 0; i < 1000; ++i) {
        arena.take(1000, 8);
    }
    EXPECT_LE(failing::liveBlocks() - before, 20);
}

TEST(Arena, GoesOnAfterABlockThatCouldNotBeHad) {
    ArenaWithRoom<64> arena;
    Pieces pieces(arena);
    pieces.take(40, 1);
    failing::arm(1, failing::Mode::once);
    EXPECT_THROW(arena.take(60, 1), std::bad_alloc);
    failing::disarm();
    pieces.take(24, 1);
    pieces.take(60, 1);
    EXPECT_TRUE(pieces.areWhole());
}

TEST(ArenaAllocator, TakesFromTheHeapWithoutAnArena) {
    const long before = failing::liveBlocks();
    Words words;
    EXPECT_EQ(words.get_allocator().arena(), nullptr);
    words.push_back(1);
    EXPECT_EQ(failing::liveBlocks(), before + 1);
    Words().swap(words);
    EXPECT_EQ(failing::liveBlocks(), before);
}

TEST(ArenaAllocator, TakesFromItsArena) {
    const long before = failing::liveBlocks();
    ArenaWithRoom<256> arena;
    Words words(arena);
    words.assign(4, 7);
    words.assign(8, 9);
    EXPECT_EQ(failing::liveBlocks(), before);
    EXPECT_EQ(words, Words(8, 9, arena));
}

TEST(ArenaAllocator, GivesLargePiecesBackToTheHeap) {
    const long before = failing::liveBlocks();
    ArenaWithRoom<8192> arena;
    Words words(arena);
    words.resize(512);
    EXPECT_EQ(failing::liveBlocks(), before + 1);
    words.resize(5120);
    EXPECT_EQ(failing::liveBlocks(), before + 1);
    words.clear();
    words.shrink_to_fit();
    EXPECT_EQ(failing::liveBlocks(), before);
    words.resize(511);
    EXPECT_EQ(failing::liveBlocks(), before);
}

TEST(ArenaAllocator, IsNotCopiedWithItsContainer) {
    Words copy;
    {
        ArenaWithRoom<256> arena;
        const Words words(5, 7, arena);
        copy = words;
        EXPECT_EQ(copy.get_allocator().arena(), nullptr);
        EXPECT_EQ(Words(words).get_allocator().arena(), nullptr);
    }
    EXPECT_EQ(copy, Words(5, 7));
}

TEST(ArenaAllocator, IsMovedWithItsContainer) {
    ArenaWithRoom<256> arena;
    Words words(5, 7, arena);
    const std::uint64_t* const elements = words.data();
    const Words moved(std::move(words));
    EXPECT_EQ(moved.get_allocator().arena(), &arena);
    EXPECT_EQ(moved.data(), elements);
}

TEST(ArenaAllocator, IsTheSameAsAnotherOfItsArenaOnly) {
    ArenaWithRoom<64> arena;
    ArenaWithRoom<64> other;
    EXPECT_EQ(ArenaAllocator<int>(arena), ArenaAllocator<int>(arena));
    EXPECT_NE(ArenaAllocator<int>(arena), ArenaAllocator<int>(other));
    EXPECT_NE(ArenaAllocator<int>(arena), ArenaAllocator<int>());
    EXPECT_EQ(ArenaAllocator<int>(), ArenaAllocator<int>());
}

} // namespace
} // namespace tarv_3_3::internal
