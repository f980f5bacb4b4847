#include "platform/TextMap.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarv_3_3::internal {
namespace {

struct Number {
    std::size_t number = 0;
};

using Map = TextMap<Number>;

std::string textOf(std::size_t number) {
    return std::to_string(number) + std::string(number % 40, 'x');
}

TEST(TextMap, KeepsACopyThatEndsInAZero) {
    ArenaWithRoom<256> memory;
    Map map(memory);
    std::string source = "text";
    const Map::Entry& entry = map.insert(source);
    source = "else";
    EXPECT_EQ(entry.size, 4U);
    EXPECT_EQ(entry.value.number, 0U);
    EXPECT_STREQ(entry.bytes(), "text");
}

TEST(TextMap, HasOneEntryForEqualTexts) {
    ArenaWithRoom<256> memory;
    Map map(memory);
    Map::Entry& entry = map.insert("text");
    entry.value.number = 7;
    EXPECT_EQ(&map.insert(std::string("text")), &entry);
    EXPECT_EQ(map.find("text"), &entry);
    EXPECT_EQ(entry.value.number, 7U);
}

TEST(TextMap, FindsNothingBeforeItIsInserted) {
    ArenaWithRoom<256> memory;
    Map map(memory);
    EXPECT_EQ(map.find(""), nullptr);
    EXPECT_EQ(map.find("text"), nullptr);
    map.insert("text");
    EXPECT_EQ(map.find(""), nullptr);
    EXPECT_EQ(map.find("tex"), nullptr);
    EXPECT_EQ(map.find("texts"), nullptr);
}

TEST(TextMap, TellsTextsApartByEveryByte) {
    const std::vector<std::string> texts = {"",         std::string(1, '\0'),
                                            "a",        std::string("a\0", 2),
                                            "A",        "ab",
                                            "ba",       std::string("a\0b", 3),
                                            "\xC3\xA4", "\xFF",
                                            "\x7F"};
    ArenaWithRoom<256> memory;
    Map map(memory);
    std::vector<const Map::Entry*> entries;
    for (const std::string& text : texts) {
        entries.push_back(&map.insert(text));
    }
    for (std::size_t i = 0; i < texts.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(std::string(entries[i]->bytes(), entries[i]->size), texts[i]);
        EXPECT_EQ(map.find(texts[i]), entries[i]);
        for (std::size_t other = 0; other < i; ++other) {
            EXPECT_NE(entries[i], entries[other]);
        }
    }
}

TEST(TextMap, KeepsEveryEntryInItsPlaceAsItGrows) {
    constexpr std::size_t count = 5000;
    ArenaWithRoom<256> memory;
    Map map(memory);
    std::vector<const Map::Entry*> entries;
    for (std::size_t i = 0; i < count; ++i) {
        Map::Entry& entry = map.insert(textOf(i));
        entry.value.number = i;
        entries.push_back(&entry);
    }
    for (std::size_t i = 0; i < count; ++i) {
        ASSERT_EQ(map.find(textOf(i)), entries[i]);
        ASSERT_EQ(entries[i]->bytes(), textOf(i));
        ASSERT_EQ(entries[i]->value.number, i);
    }
    EXPECT_EQ(map.find(textOf(count)), nullptr);
}

TEST(TextMap, FindsNothingHoweverManyEntriesItHas) {
    ArenaWithRoom<256> memory;
    Map map(memory);
    for (std::size_t i = 0; i < 1030; ++i) {
        map.insert(textOf(i));
        ASSERT_EQ(map.find("another"), nullptr) << i;
    }
}

TEST(TextMap, TellsTextsOfTheSameHashApart) {
    const std::vector<std::string> texts = {"the text", "the texts", "another text"};
    constexpr std::size_t sameHash = 77;
    ArenaWithRoom<256> memory;
    Map map(memory);
    std::vector<const Map::Entry*> entries;
    for (const std::string& text : texts) {
        EXPECT_EQ(map.find({text, sameHash}), nullptr);
        entries.push_back(&map.insert({text, sameHash}));
    }
    for (std::size_t i = 0; i < texts.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(std::string(entries[i]->bytes(), entries[i]->size), texts[i]);
        EXPECT_EQ(map.find({texts[i], sameHash}), entries[i]);
    }
}

// 64 slots at first; the search for the hash 63 goes on at the first one.
TEST(TextMap, CountsTheSlotsBetweenEntriesAndWhereTheirSearchesBegin) {
    ArenaWithRoom<256> memory;
    Map map(memory);
    EXPECT_EQ(map.distances(), 0U);
    const struct {
        const char* text;
        std::size_t hash;
        std::size_t distances;
    } rows[] = {{"a", 63, 0}, {"b", 5, 0}, {"c", 63, 1}, {"d", 127, 3}, {"e", 0, 5}, {"f", 5, 6}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        map.insert({row.text, row.hash});
        EXPECT_EQ(map.distances(), row.distances);
    }
}

} // namespace
} // namespace tarv_3_3::internal
