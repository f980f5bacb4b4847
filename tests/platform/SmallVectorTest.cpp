#include "platform/SmallVector.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <string>

#include "reliability/FailingAllocations.h"

namespace tarv_3_3::internal {
namespace {

using Numbers = SmallVector<int>;
/// Long texts, which the heap holds: an element that is not destroyed, or twice, is seen by a checking build.
using Texts = SmallVector<std::string>;

std::string line(const Texts& texts) {
    std::string joined;
    for (const std::string& text : texts) {
        joined += text + ";";
    }
    return joined;
}

TEST(SmallVector, IsEmptyAtFirst) {
    ArenaWithRoom<64> memory;
    const Numbers numbers(memory);
    EXPECT_TRUE(numbers.empty());
    EXPECT_EQ(numbers.size(), 0U);
    EXPECT_EQ(numbers.begin(), numbers.end());
}

TEST(SmallVector, HasItsFirstElementInItself) {
    ArenaWithRoom<64> memory;
    Numbers numbers(memory);
    numbers.emplace_back(7);
    const auto* const bytes = reinterpret_cast<const std::byte*>(&numbers.front());
    EXPECT_GE(bytes, reinterpret_cast<const std::byte*>(&numbers));
    EXPECT_LT(bytes, reinterpret_cast<const std::byte*>(&numbers + 1));
    numbers.emplace_back(8);
    EXPECT_EQ(numbers[0], 7);
    EXPECT_EQ(numbers[1], 8);
    EXPECT_EQ(numbers.back(), 8);
    EXPECT_EQ(numbers.size(), 2U);
}

// Beyond 4,096 bytes they lie on the heap, however few of them there are.
TEST(SmallVector, GivesRoomBackThatItDoesNotUse) {
    const long before = failing::liveBlocks();
    {
        ArenaWithRoom<64> memory;
        Numbers numbers(memory);
        numbers.makeRoom(10000);
        numbers.emplace_back(1);
        numbers.makeRoom(20000);
    }
    EXPECT_EQ(failing::liveBlocks(), before);
}

// Beyond 4,096 bytes they lie on the heap.
TEST(SmallVector, KeepsItsElementsAsItGrowsAndGivesThemBack) {
    const long before = failing::liveBlocks();
    {
        ArenaWithRoom<64> memory;
        Texts texts(memory);
        for (int i = 0; i < 1000; ++i) {
            texts.emplace_back("a text of more than fifteen bytes, number " + std::to_string(i));
        }
        ASSERT_EQ(texts.size(), 1000U);
        for (std::size_t i = 0; i < texts.size(); ++i) {
            ASSERT_EQ(texts[i], "a text of more than fifteen bytes, number " + std::to_string(i));
        }
    }
    EXPECT_EQ(failing::liveBlocks(), before);
}

TEST(SmallVector, NeedsNoMemoryForWhatItHasRoomFor) {
    ArenaWithRoom<256> memory;
    Numbers numbers(memory);
    numbers.makeRoom(5);
    const int* const elements = numbers.begin();
    for (int i = 0; i < 5; ++i) {
        numbers.emplace_back(i);
    }
    EXPECT_EQ(numbers.begin(), elements);
    EXPECT_EQ(numbers[4], 4);
}

TEST(SmallVector, IsCopiedWithAllElements) {
    ArenaWithRoom<256> memory;
    for (const int count : {0, 1, 2, 3}) {
        SCOPED_TRACE(count);
        auto texts = std::make_unique<Texts>(memory);
        std::string expected;
        for (int i = 0; i < count; ++i) {
            texts->emplace_back("a text of more than fifteen bytes");
            expected += "a text of more than fifteen bytes;";
        }
        Texts copy(*texts);
        texts.reset();
        EXPECT_EQ(line(copy), expected);
        copy.emplace_back("one more");
        EXPECT_EQ(line(copy), expected + "one more;");
    }
}

TEST(SmallVector, StaysAsItIsWhenMemoryRunsOut) {
    alignas(std::max_align_t) std::byte room[8];
    Arena memory(room, sizeof room);
    Texts texts(memory);
    texts.emplace_back("a text of more than fifteen bytes");
    failing::arm(1, failing::Mode::forGood);
    EXPECT_THROW(texts.makeRoom(1), std::bad_alloc);
    failing::disarm();
    EXPECT_EQ(line(texts), "a text of more than fifteen bytes;");
}

} // namespace
} // namespace tarv_3_3::internal
