#include "tarv_3_3/internal/OptionData.h"

#include <gtest/gtest.h>

namespace tarv_3_3 {
namespace {

TEST(TextOf, IsTheTextItselfOrThatOfTheVariant) {
    const struct {
        OptionValue value;
        const char* text;
    } rows[] = {
        {{"5", std::int32_t{5}, 1}, "5"},
        {{"own", "of the variant", 1}, "own"},
        {{"", "of the variant", 1}, "of the variant"},
        {{"", "", 1}, ""},
        {{"", std::int32_t{5}, 1}, ""},
        {{"", variant_t(), 1}, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_STREQ(textOf(row.value), row.text);
    }
}

TEST(TextOf, LiesInTheVariantWhereItIsThatOfTheVariant) {
    const OptionValue value = {"", "text", 1};
    EXPECT_EQ(textOf(value), value.value.get<const char*>());
}

} // namespace
} // namespace tarv_3_3
