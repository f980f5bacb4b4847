#include "tarv_3_3/internal/TextSet.h"

#include <gtest/gtest.h>

#include <memory_resource>
#include <set>
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

TEST(TextSet, FindsNothingHoweverManyEntriesItHas) {
    std::pmr::monotonic_buffer_resource memory;
    TextSet set(memory);
    for (std::size_t i = 0; i < 1030; ++i) {
        set.insert(textOf(i));
        ASSERT_EQ(set.find("another"), nullptr) << i;
    }
}

// Whoever writes command lines can find texts with one hash.
TEST(TextSet, TellsTextsOfTheSameHashApart) {
    const std::vector<std::string> texts = {
        "the text\x40\x36\x7F\x6B\x3D\x1C\x40\x78",
        "another \x80\x01\x20\x74\x43\xD5\x02\x1C",
        "the text",
    };
    std::pmr::monotonic_buffer_resource memory;
    TextSet set(memory);
    std::vector<const TextSet::Entry*> entries;
    for (const std::string& text : texts) {
        ASSERT_EQ(hashOf(text), hashOf(texts[0]));
        EXPECT_EQ(set.find(text), nullptr);
        entries.push_back(&set.insert(text));
    }
    for (std::size_t i = 0; i < texts.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(std::string(entries[i]->bytes(), entries[i]->size), texts[i]);
        EXPECT_EQ(set.find(texts[i]), entries[i]);
    }
}

/// In how many of the first `slots` places of a table the texts begin to look for theirs.
std::size_t placesOf(const std::vector<std::string>& texts, std::size_t slots) {
    std::set<std::size_t> places;
    for (const std::string& text : texts) {
        places.insert(hashOf(text) % slots);
    }
    return places.size();
}

// By chance 1024 texts would begin in about 647 of 1024 places.
TEST(HashOf, SpreadsTextsThatDifferInOneOrTwoBytesAnywhere) {
    for (const std::size_t size : {2U, 3U, 4U, 7U, 8U, 9U, 12U, 16U, 17U, 40U}) {
        for (std::size_t place = 0; place + 2 <= size; ++place) {
            SCOPED_TRACE(std::to_string(size) + " bytes, differing at " + std::to_string(place));
            std::vector<std::string> texts;
            for (int i = 0; i < 1024; ++i) {
                std::string text(size, 'x');
                text[place] = static_cast<char>('A' + i / 32);
                text[place + 1] = static_cast<char>('A' + i % 32);
                texts.push_back(text);
            }
            EXPECT_GT(placesOf(texts, 1024), 512U);
        }
    }
}

TEST(HashOf, LooksAtNoByteInFrontOfATextOrBehindIt) {
    for (std::size_t size = 0; size <= 24; ++size) {
        SCOPED_TRACE(size);
        const std::string text(size, 'x');
        const std::string one = "12345678" + text + "12345678";
        const std::string other = "abcdefgh" + text + "abcdefgh";
        EXPECT_EQ(hashOf(std::string_view(one).substr(8, size)),
                  hashOf(std::string_view(other).substr(8, size)));
    }
}

TEST(HashOf, TellsTextsOfOneByteRepeatedApart) {
    std::vector<std::string> texts;
    for (std::size_t size = 0; size < 64; ++size) {
        texts.emplace_back(size, '\0');
        texts.emplace_back(size, 'x');
    }
    EXPECT_GT(placesOf(texts, std::size_t(1) << 32), 126U);
}

} // namespace
} // namespace tarv_3_3::internal
