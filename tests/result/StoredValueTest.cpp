#include "result/StoredValue.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarv_3_3 {
namespace {

TEST(TextOf, IsEmptyForAValueOfAnotherKindWithoutAText) {
    EXPECT_STREQ(textOf({"", variant_t(5), 1}), "");
    EXPECT_STREQ(textOf({"", variant_t("five"), 1}), "five");
    EXPECT_STREQ(textOf({"5", variant_t(5), 1}), "5");
}

TEST(StoredValue, HasTheTextWhateverItsLength) {
    internal::ArenaWithRoom<64> memory;
    std::vector<internal::StoredValue> values;
    std::vector<std::string> texts;
    for (std::size_t size = 1; size <= 40; ++size) {
        texts.emplace_back(size, static_cast<char>('a' + size % 26));
    }
    for (const std::string& text : texts) {
        values.emplace_back(OptionValue{text, variant_t(text.c_str()), 1}, memory);
        values.emplace_back(OptionValue{text, variant_t("another text, longer than a few bytes"), 2}, memory);
        values.emplace_back(OptionValue{text, variant_t(5), 3}, memory);
    }
    for (std::size_t i = 0; i < values.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(values[i].text(), texts[i / 3]);
        EXPECT_EQ(values[i].position, static_cast<int>(i % 3) + 1);
    }
    EXPECT_EQ(values[2].value, variant_t(5));
}

TEST(StoredValue, HasTheTextOfTheVariantWhereItHasNoneOfItsOwn) {
    internal::ArenaWithRoom<64> memory;
    EXPECT_STREQ(internal::StoredValue({"", variant_t("short"), 1}, memory).text(), "short");
    EXPECT_STREQ(internal::StoredValue({"", variant_t("a text of twenty characters"), 1}, memory).text(),
                 "a text of twenty characters");
    EXPECT_STREQ(internal::StoredValue({"", variant_t(5), 1}, memory).text(), "");
}

TEST(StoredValue, OutlivesWhatItWasGiven) {
    internal::ArenaWithRoom<64> memory;
    std::vector<internal::StoredValue> values;
    {
        const OptionValue same = {"a text of twenty characters", variant_t("a text of twenty characters"), 1};
        const OptionValue other = {"a text of twenty characters", variant_t(), 1};
        values = {internal::StoredValue(same, memory), internal::StoredValue(other, memory)};
    }
    const std::vector<internal::StoredValue> copies = values;
    values.clear();
    EXPECT_STREQ(copies[0].text(), "a text of twenty characters");
    EXPECT_STREQ(copies[1].text(), "a text of twenty characters");
}

// Hosts give lists of a million numbers.
TEST(StoredValue, TakesTheRoomOfTwoVariantsWithTheTextOfA32BitNumber) {
    EXPECT_EQ(sizeof(internal::StoredValue), 2 * sizeof(variant_t));
    internal::ArenaWithRoom<16> memory;
    const internal::StoredValue lowest({"-2147483648", variant_t(1), 1}, memory);
    EXPECT_STREQ(lowest.text(), "-2147483648");
    EXPECT_EQ(lowest.text(), reinterpret_cast<const char*>(&lowest) + sizeof lowest - 12);
}

} // namespace
} // namespace tarv_3_3
