#include "result/Entries.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "reliability/FailingAllocations.h"
#include "result/StoredOptions.h"

namespace tarv_3_3 {
namespace {

class StoredEntries : public ::testing::Test {
protected:
    /// The names of a list in its order, one character each; a '+' behind those that share the group
    /// of the one before.
    static std::string describe(const internal::Entries::List& list) {
        std::string line;
        const internal::Entries::Group* before = nullptr;
        for (const internal::Entries::Entry& entry : list) {
            line.append(entry.name().text);
            line += &entry.group() == before ? "+" : "";
            before = &entry.group();
        }
        return line;
    }

    std::string inOrder() const { return describe(entries.list()); }

    internal::ArenaWithRoom<512> memory;
    internal::Entries entries{memory};
};

TEST_F(StoredEntries, AreNowhereAtFirst) {
    EXPECT_EQ(inOrder(), "");
    EXPECT_EQ(entries.find("a"), nullptr);
    EXPECT_EQ(entries.indexOf("a"), internal::Entries::noEntry);
}

TEST_F(StoredEntries, HaveTheirPlacesInTheOrderInWhichTheyCame) {
    entries.store({"z", "b"}, occurrences({1}));
    entries.store({"a"}, occurrences({2}));
    entries.store({"z", "b", "c"}, occurrences({3}));
    EXPECT_EQ(entries.indexOf("z"), 0U);
    EXPECT_EQ(entries.indexOf("b"), 1U);
    EXPECT_EQ(entries.indexOf("a"), 2U);
    EXPECT_EQ(entries.indexOf("c"), 3U);
    EXPECT_EQ(entries.indexOf("d"), internal::Entries::noEntry);
    EXPECT_EQ(inOrder(), "zbac");
    std::string byName;
    for (const internal::Entries::Entry* const entry : entries.listByName()) {
        byName.append(entry->name().text);
    }
    EXPECT_EQ(byName, "abcz");
}

TEST_F(StoredEntries, AreFoundByPlaceAndByName) {
    entries.store({"a", "b"}, occurrences({1}));
    entries.store({"c"}, occurrences({2}));
    EXPECT_EQ(entries[2].group().positions.front(), 2);
    EXPECT_EQ(entries.find("c"), &entries[2]);
    EXPECT_EQ(entries.find("b"), &entries[1]);
    EXPECT_EQ(entries.find(""), nullptr);
}

TEST_F(StoredEntries, ShareWhatWasAlwaysStoredTogether) {
    const Names level = {"a", "b", "c"};
    entries.store(level, occurrences({1}));
    EXPECT_EQ(inOrder(), "ab+c+");
    entries.store(level, occurrences({2}));
    EXPECT_EQ(inOrder(), "ab+c+");
    EXPECT_EQ(entries[0].group().positions.size(), 2U);
    entries.store({"d"}, occurrences({3}));
    EXPECT_EQ(inOrder(), "ab+c+d");
}

TEST_F(StoredEntries, ShareNothingOnceTheyWereStoredApart) {
    const struct {
        Names names;
        const char* list;
    } rows[] = {
        {{"a"}, "abc"},
        {{"a", "b"}, "abc"},
        {{"a", "c", "b"}, "abc"},
        {{"a", "b", "d"}, "abcd"},
        {{"a", "b", "c", "d"}, "abcd"},
        {{"d", "c"}, "abcd"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.list);
        internal::Entries fresh(memory);
        fresh.store({"a", "b", "c"}, occurrences({1}));
        fresh.store(row.names, occurrences({2}));
        EXPECT_EQ(describe(fresh.list()), row.list);
    }
}

// Otherwise each of many values that a handler stores under one name would cost a copy of those before it.
TEST_F(StoredEntries, AreNotCopiedOnceTheyAreApart) {
    entries.store({"a", "b"}, occurrences({1}));
    entries.store({"a"}, occurrences({2}));
    const internal::Entries::Group* const first = &entries[0].group();
    const internal::Entries::Group* const second = &entries[1].group();
    entries.store({"a", "b"}, occurrences({3}));
    EXPECT_EQ(&entries[0].group(), first);
    EXPECT_EQ(&entries[1].group(), second);
}

TEST_F(StoredEntries, HaveADefaultEachAndShareWhatIsGivenLater) {
    int position = 4;
    const auto makeDefault = [&] { return internal::Entries::Default{"7", std::int32_t{7}, ++position}; };
    entries.storeDefaults({"a", "b"}, makeDefault);
    EXPECT_EQ(inOrder(), "ab+");
    EXPECT_EQ(entries[0].byDefault.position, 5);
    EXPECT_EQ(entries[1].byDefault.position, 6);
    EXPECT_EQ(entries[1].byDefault.text, variant_t("7"));
    EXPECT_EQ(entries[1].byDefault.value, variant_t(std::int32_t{7}));
    EXPECT_TRUE(entries[0].group().positions.empty());
    entries.store({"a", "b"}, occurrences({1}));
    EXPECT_EQ(inOrder(), "ab+");
    EXPECT_EQ(entries[1].group().positions.front(), 1);
    EXPECT_EQ(entries[1].byDefault.position, 6);
}

// A synonym may be that of another option, or stand twice.
TEST_F(StoredEntries, HaveTheLastDefaultAndTheOccurrencesThatTheyHad) {
    int position = 0;
    const auto makeDefault = [&] { return internal::Entries::Default{"7", std::int32_t{7}, ++position}; };
    entries.store({"a", "b"}, occurrences({10}));
    entries.storeDefaults({"c", "b", "d", "c"}, makeDefault);
    EXPECT_EQ(inOrder(), "ab+cd+");
    EXPECT_EQ(entries.find("a")->byDefault.position, 0);
    EXPECT_EQ(entries.find("b")->byDefault.position, 2);
    EXPECT_EQ(entries.find("c")->byDefault.position, 4);
    EXPECT_EQ(entries.find("d")->byDefault.position, 3);
    EXPECT_EQ(entries.find("b")->group().positions.front(), 10);
    entries.store({"c", "b", "d", "c"}, occurrences({11}));
    EXPECT_EQ(inOrder(), "abcd");
    EXPECT_EQ(entries.find("a")->group().positions.size(), 1U);
    EXPECT_EQ(entries.find("b")->group().positions.size(), 2U);
    EXPECT_EQ(entries.find("d")->group().positions.size(), 1U);
}

TEST_F(StoredEntries, HaveNoDefaultWithoutAText) {
    EXPECT_TRUE(internal::Entries::Default().isEmpty());
    EXPECT_TRUE((internal::Entries::Default{"", "", 1}.isEmpty()));
    EXPECT_TRUE((internal::Entries::Default{variant_t(), std::int32_t{7}, 1}.isEmpty()));
    EXPECT_FALSE((internal::Entries::Default{"7", std::int32_t{7}, 1}.isEmpty()));
}

TEST_F(StoredEntries, NeedAName) {
    EXPECT_THROW(entries.store(Names(), occurrences({1})), std::out_of_range);
    EXPECT_EQ(inOrder(), "");
}

// The list has room for 32 at first.
TEST_F(StoredEntries, KeepTheirPlacesAsTheyGrow) {
    for (int i = 0; i < 1000; ++i) {
        entries.store({std::to_string(i), "x" + std::to_string(i)}, occurrences({i}));
    }
    for (int i = 0; i < 1000; ++i) {
        const std::size_t index = entries.indexOf("x" + std::to_string(i));
        ASSERT_EQ(index, 2 * static_cast<std::size_t>(i) + 1);
        ASSERT_EQ(entries[index].group().positions.front(), i);
    }
}

// Wherever it runs out: in the set of names, the list, the data or its lists.
TEST_F(StoredEntries, AreWholeOrNowhereWhenMemoryRunsOut) {
    const OptionData data = occurrences({1}, {{"a value too long for its place", 2}});
    std::vector<Names> names;
    for (int i = 0; i < 100; ++i) {
        names.push_back({"a" + std::to_string(i), "b" + std::to_string(i)});
    }
    for (std::size_t size = 3072; size < 12288; size += 8) {
        SCOPED_TRACE(size);
        std::vector<std::byte> room(size);
        internal::Arena little(room.data(), room.size());
        internal::Entries few(little);
        std::size_t stored = 0;
        failing::arm(1, failing::Mode::forGood);
        try {
            for (;; ++stored) {
                few.store(names[stored], data);
            }
        } catch (const std::bad_alloc&) {
            // Now for what is left behind.
        }
        failing::disarm();
        ASSERT_GE(few.list().size(), 2 * stored);
        ASSERT_LE(few.list().size(), 2 * stored + 1);
        for (const internal::Entries::Entry& entry : few.list()) {
            ASSERT_EQ(few.find(entry.name().text), &entry);
            ASSERT_EQ(entry.group().positions.size(), 1U);
            ASSERT_EQ(entry.group().values.size(), 1U);
        }
        const bool hasFirstName = few.list().size() > 2 * stored;
        ASSERT_EQ(few.find("a" + std::to_string(stored)) != nullptr, hasFirstName);
        ASSERT_EQ(few.find("b" + std::to_string(stored)), nullptr);
    }
}

// Another option that has the name as well replaces what is stored under it.
TEST_F(StoredEntries, AreReplacedWholeOrNotAtAllWhenMemoryRunsOut) {
    const Names level = {"level", "shared"};
    const Names depth = {"depth", "shared"};
    const OptionData before = occurrences({1}, {{"a", 2}, {"b", 3}});
    const OptionData after = occurrences({4}, {{"c", 5}, {"d", 6}});
    int kept = 0;
    int replaced = 0;
    for (std::size_t size = 3072; size < 12288; size += 8) {
        SCOPED_TRACE(size);
        std::vector<std::byte> room(size);
        internal::Arena little(room.data(), room.size());
        internal::Entries few(little);
        few.store(level, before);
        failing::arm(1, failing::Mode::forGood);
        try {
            few.store(depth, after);
        } catch (const std::bad_alloc&) {
            // What is stored is looked at below.
        }
        failing::disarm();
        const internal::Entries::Group& shared = few.find("shared")->group();
        ASSERT_EQ(shared.positions.size(), 1U);
        ASSERT_EQ(shared.values.size(), 2U);
        const bool isKept = shared.positions.front() == 1;
        ASSERT_EQ(shared.values[1].position, isKept ? 3 : 6);
        ++(isKept ? kept : replaced);
    }
    EXPECT_GT(kept, 0);
    EXPECT_GT(replaced, 0);
}

} // namespace
} // namespace tarv_3_3
