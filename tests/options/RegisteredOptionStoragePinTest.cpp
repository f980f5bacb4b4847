#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "options/RegisteredOptionStorage.h"
#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {
namespace {

using Words = Names;

class PinnedOptions : public testing::Test {
protected:
    PinnedOptions() { registry.m_garbage = &garbage; }

    /// Names them name0, name1 and so on.
    void declareMany(const std::string& name, int count) {
        for (int i = 0; i < count; ++i) {
            registry.option((name + std::to_string(i)).c_str(), nullptr, "", false, vtInt32, "");
        }
    }

    Garbage garbage;
    RegisteredOptionStorage registry;
};

TEST_F(PinnedOptions, StayWhereTheyAreUntilTheLastPinIsGone) {
    declareMany("first", 1);
    const OptionDescription* const first = &registry.m_options.front();
    {
        const RegisteredOptionStorage::Pin outer(registry);
        {
            const RegisteredOptionStorage::Pin inner(registry);
            declareMany("name", 100);
        }
        EXPECT_NE(&registry.m_options.front(), first);
        EXPECT_EQ(first->m_names, Words{"first0"});
        EXPECT_EQ(registry.m_options.front().m_names, Words{"first0"});
    }
    EXPECT_EQ(registry.m_options.size(), 101U);
}

TEST_F(PinnedOptions, LeaveNoOldTableBehindTheLastPin) {
    static int freed;
    freed = 0;
    const auto usual = variant_t::m_mem;
    variant_t::m_mem.release = [](void* block) {
        ++freed;
        std::free(block);
    };
    declareMany("first", 1);
    registry.m_options.front().allowValue("a text that every copy of the record shares");
    {
        const RegisteredOptionStorage::Pin pin(registry);
        declareMany("name", 100);
        registry.m_options.front().m_allowedValues.clear();
        EXPECT_EQ(freed, 0);
    }
    EXPECT_EQ(freed, 1);
    variant_t::m_mem = usual;
}

TEST_F(PinnedOptions, MoveToALargerTableOnceNothingPinsThem) {
    declareMany("first", 1);
    const std::string* const names = &registry.m_options.front().m_names.front();
    declareMany("early", 100);
    EXPECT_EQ(&registry.m_options.front().m_names.front(), names);
    { const RegisteredOptionStorage::Pin pin(registry); }
    declareMany("late", 400);
    EXPECT_EQ(&registry.m_options.front().m_names.front(), names);
}

} // namespace
} // namespace tarv_3_3
