#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>
#include <set>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

#include "dovel2/variant.h"
#include "support/printVariant.h"

namespace dovel2 {
namespace {

/// Hooks that know every block that was handed out, and can run dry.
class VariantMemory : public testing::Test {
protected:
    VariantMemory() : m_hooks(variant_t::m_mem) {
        blocks.clear();
        allocations = 0;
        foreignReleases = 0;
        exhausted = false;
        variant_t::m_mem = {allocate, release};
    }

    ~VariantMemory() override {
        variant_t::m_mem = m_hooks;
        EXPECT_EQ(blocks.size(), 0U) << "not every block was released";
        EXPECT_EQ(foreignReleases, 0);
    }

    static inline std::set<void*> blocks;
    static inline int allocations;
    static inline int foreignReleases;
    static inline bool exhausted;

private:
    static void* allocate(size_t bytes) {
        if (exhausted) {
            return nullptr;
        }
        ++allocations;
        void* const block = std::malloc(bytes);
        blocks.insert(block);
        return block;
    }

    static void release(void* block) {
        foreignReleases += blocks.erase(block) == 1 ? 0 : 1;
        std::free(block);
    }

    variant_memory_t m_hooks;
};

TEST_F(VariantMemory, IsUsedForTextsOnly) {
    const variant_t values[] = {variant_t(), true, 1, 1U, 1L, 1UL, 1.0};
    EXPECT_EQ(allocations, 0);
    EXPECT_EQ(std::size(values), 7U);
    const variant_t text("text");
    EXPECT_EQ(allocations, 1);
}

TEST_F(VariantMemory, IsOneBlockForAllCopiesOfAText) {
    variant_t last;
    {
        const variant_t first("a text");
        const variant_t second(first);
        last = second;
        EXPECT_EQ(second.get<const char*>(), first.get<const char*>());
        EXPECT_EQ(last.get<const char*>(), first.get<const char*>());
        EXPECT_EQ(allocations, 1);
    }
    EXPECT_EQ(blocks.size(), 1U);
    EXPECT_STREQ(last.get<const char*>(), "a text");
    last = variant_t();
    EXPECT_EQ(blocks.size(), 0U);
}

TEST_F(VariantMemory, IsReleasedWhenTheLastCopyTakesAnotherValue) {
    variant_t value("first");
    value = "second";
    EXPECT_EQ(blocks.size(), 1U);
    EXPECT_STREQ(value.get<const char*>(), "second");
    value = 5;
    EXPECT_EQ(blocks.size(), 0U);
    EXPECT_EQ(value, variant_t(5));
}

TEST_F(VariantMemory, OutlivesTheAssignmentOfAVariantToItself) {
    variant_t value("a text");
    variant_t& same = value;
    value = same;
    EXPECT_STREQ(value.get<const char*>(), "a text");
    value = std::move(same);
    EXPECT_STREQ(value.get<const char*>(), "a text");
    EXPECT_EQ(allocations, 1);
    EXPECT_EQ(blocks.size(), 1U);
}

TEST_F(VariantMemory, GoesAlongWithAMove) {
    variant_t source("a text");
    const char* const text = source.get<const char*>();
    const variant_t target(std::move(source));
    EXPECT_EQ(target.get<const char*>(), text);
    EXPECT_EQ(source, variant_t());
    EXPECT_EQ(allocations, 1);
    EXPECT_EQ(blocks.size(), 1U);
}

TEST_F(VariantMemory, IsExchangedByAMoveAssignment) {
    variant_t source("source");
    variant_t target(5);
    target = std::move(source);
    EXPECT_STREQ(target.get<const char*>(), "source");
    EXPECT_EQ(source, variant_t(5));
    EXPECT_EQ(allocations, 1);
}

TEST_F(VariantMemory, ThatIsExhaustedThrows) {
    const variant_t before("before");
    exhausted = true;
    EXPECT_THROW(variant_t("text"), std::bad_alloc);
    EXPECT_THROW(variant_t(""), std::bad_alloc);
    const variant_t copy(before);
    EXPECT_STREQ(copy.get<const char*>(), "before");
    exhausted = false;
    EXPECT_EQ(variant_t("text"), variant_t("text"));
}

TEST_F(VariantMemory, IsSharedSafelyBetweenThreads) {
    const variant_t text("a text");
    std::atomic<int> ready = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            ++ready;
            while (ready < 4) {
                std::this_thread::yield();
            }
            for (int round = 0; round < 500000; ++round) {
                variant_t copy(text);
                variant_t other;
                other = copy;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(blocks.size(), 1U);
    EXPECT_EQ(allocations, 1);
    EXPECT_STREQ(text.get<const char*>(), "a text");
}

TEST(VariantObject, CopiesAndMovesWithoutThrowingAndIsSixteenBytesLong) {
    EXPECT_TRUE(std::is_nothrow_copy_constructible_v<variant_t>);
    EXPECT_TRUE(std::is_nothrow_copy_assignable_v<variant_t>);
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<variant_t>);
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<variant_t>);
    EXPECT_EQ(sizeof(variant_t), 16U);
}

} // namespace
} // namespace dovel2
