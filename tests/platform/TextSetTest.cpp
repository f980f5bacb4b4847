#include "tarv_3_3/internal/TextSet.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory_resource>
#include <string>
#include <string_view>
#include <vector>

namespace tarv_3_3::internal {
namespace {

std::string textOf(std::size_t number) {
    return std::to_string(number) + std::string(number % 40, 'x');
}

TEST(TextSet, KeepsACopyThatEndsInAZero) {
    std::pmr::monotonic_buffer_resource memory;
    TextSet set(memory);
    std::string source = "text";
    const TextSet::Entry& entry = set.insert(source);
    source = "else";
    EXPECT_EQ(entry.size, 4U);
    EXPECT_EQ(entry.note, 0U);
    EXPECT_STREQ(entry.bytes(), "text");
}

TEST(TextSet, HasOneEntryForEqualTexts) {
    std::pmr::monotonic_buffer_resource memory;
    TextSet set(memory);
    TextSet::Entry& entry = set.insert("text");
    entry.note = 7;
    EXPECT_EQ(&set.insert(std::string("text")), &entry);
    EXPECT_EQ(set.find("text"), &entry);
    EXPECT_EQ(entry.note, 7U);
}

TEST(TextSet, FindsNothingBeforeItIsInserted) {
    std::pmr::monotonic_buffer_resource memory;
    TextSet set(memory);
    EXPECT_EQ(set.find(""), nullptr);
    EXPECT_EQ(set.find("text"), nullptr);
    set.insert("text");
    EXPECT_EQ(set.find(""), nullptr);
    EXPECT_EQ(set.find("tex"), nullptr);
    EXPECT_EQ(set.find("texts"), nullptr);
}

TEST(TextSet, TellsTextsApartByEveryByte) {
    const std::vector<std::string> texts = {"",         std::string(1, '\0'),
                                            "a",        std::string("a\0", 2),
                                            "A",        "ab",
                                            "ba",       std::string("a\0b", 3),
                                            "\xC3\xA4", "\xFF",
                                            "\x7F"};
    std::pmr::monotonic_buffer_resource memory;
    TextSet set(memory);
    std::vector<const TextSet::Entry*> entries;
    for (const std::string& text : texts) {
        entries.push_back(&set.insert(text));
    }
    for (std::size_t i = 0; i < texts.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(std::string(entries[i]->bytes(), entries[i]->size), texts[i]);
        EXPECT_EQ(set.find(texts[i]), entries[i]);
        for (std::size_t other = 0; other < i; ++other) {
            EXPECT_NE(entries[i], entries[other]);
        }
    }
}

TEST(TextSet, KeepsEveryEntryInItsPlaceAsItGrows) {
    constexpr std::size_t count = 5000;
    std::pmr::monotonic_buffer_resource memory;
    TextSet set(memory);
    std::vector<const TextSet::Entry*> entries;
    for (std::size_t i = 0; i < count; ++i) {
        TextSet::Entry& entry = set.insert(textOf(i));
        entry.note = i;
        entries.push_back(&entry);
    }
    for (std::size_t i = 0; i < count; ++i) {
        ASSERT_EQ(set.find(textOf(i)), entries[i]);
        ASSERT_EQ(entries[i]->bytes(), textOf(i));
        ASSERT_EQ(entries[i]->note, i);
    }
    EXPECT_EQ(set.find(textOf(count)), nullptr);
}

// Whoever writes command lines can find texts with one hash; these were found for the one of libstdc++.
TEST(TextSet, TellsTextsOfTheSameHashApart) {
    const std::vector<std::string> texts = {
        "the text\xA3\x3D\x60\x3D\x76\xC0\x96\xEA",
        "another \x06\x10\xD2\x9B\x43\x17\x61\x4D",
        "the text",
    };
    const std::hash<std::string_view> hash;
    std::pmr::monotonic_buffer_resource memory;
    TextSet set(memory);
    std::vector<const TextSet::Entry*> entries;
    for (const std::string& text : texts) {
        ASSERT_EQ(hash(text), hash(texts[0]));
        EXPECT_EQ(set.find(text), nullptr);
        entries.push_back(&set.insert(text));
    }
    for (std::size_t i = 0; i < texts.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(std::string(entries[i]->bytes(), entries[i]->size), texts[i]);
        EXPECT_EQ(set.find(texts[i]), entries[i]);
    }
}

} // namespace
} // namespace tarv_3_3::internal
