#include "options/split.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarv_3_3 {
namespace {

using Words = std::vector<std::string>;

const std::string zeroByte(1, '\0');

TEST(Split, CutsAtCommasButNeverRightBehindOne) {
    const struct {
        const char* text;
        Words pieces;
    } rows[] = {
        {"", {}},
        {"word", {"word"}},
        {"a,b", {"a", "b"}},
        {"one,two,three", {"one", "two", "three"}},
        {"a, b ;c", {"a", " b ;c"}},
        {" ", {" "}},
        // Two commas or more.
        {"a,,b", {"a", ",b"}},
        {"a,,,b", {"a", ",", "b"}},
        {"a,,,,b", {"a", ",", ",b"}},
        {"a,,b,,c", {"a", ",b", ",c"}},
        {"a,,", {"a", ","}},
        // A comma in front yields an empty piece.
        {",a", {"", "a"}},
        {",,", {"", ","}},
        {",,b", {"", ",b"}},
        // A comma at the end yields a zero byte.
        {",", {"", zeroByte}},
        {"a,", {"a", zeroByte}},
        {"a,b,", {"a", "b", zeroByte}},
        {"a,,b,", {"a", ",b", zeroByte}},
        {"a,,,", {"a", ",", zeroByte}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        Words pieces;
        EXPECT_EQ(split(row.text, pieces), 0);
        EXPECT_EQ(pieces, row.pieces);
    }
}

TEST(Split, AppendsBehindWhatIsThere) {
    Words pieces = {"before"};
    split("a,b", pieces);
    split("", pieces);
    split("a", pieces);
    EXPECT_EQ(pieces, (Words{"before", "a", "b", "a"}));
}

} // namespace
} // namespace tarv_3_3
