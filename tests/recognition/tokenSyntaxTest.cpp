#include "recognition/tokenSyntax.h"

#include <gtest/gtest.h>

#include "recognition/singleSteps.h"
#include "support/GlobalLocale.h"

namespace tarv_3_3 {
namespace {

TEST(GetDashLength, IsTheByteLengthOfTheDashAtThePosition) {
    const struct {
        const char* text;
        unsigned long position;
        unsigned long length;
    } rows[] = {
        {"--x", 0, 1},      {"--x", 1, 1},      {"--x", 2, 0},     {"\u2012x", 0, 3}, {"\u2013x", 0, 3},
        {"\u2014x", 0, 3},  {"\u2015x", 0, 3},  {"\u2053x", 0, 3}, {"\u2013", 0, 3},  {"-\u2014x", 1, 3},
        {"\u2014-x", 3, 1}, {"a\u2013b", 1, 3}, {"-1", 0, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(getDashLength(row.text, row.position), row.length);
    }
}

TEST(GetDashLength, IsZeroWhereNoDashBegins) {
    const struct {
        const char* text;
        unsigned long position;
    } rows[] = {
        {"", 0},         {"x", 0},       {"x-", 0},      {"\u2013", 1},  {"\u2013", 2},
        {"\xE2\x80", 0}, {"\xE2", 0},    {"?", 0},       {"+x", 0},      {"_x", 0},
        {"\u2010x", 0},  {"\u2011x", 0}, {"\u2016x", 0}, {"\u2212x", 0}, {"\u2052x", 0},
        {"\u2E3Ax", 0},  {"\u00ADx", 0}, {"-", 1},       {"-", 2},       {"", 5},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(getDashLength(row.text, row.position), 0U);
    }
}

struct SplitRow {
    const char* argument;
    bool found;
    const char* name;
    const char* value;
};

template <std::size_t count>
void expectSplit(const SplitRow (&rows)[count]) {
    for (const SplitRow& row : rows) {
        SCOPED_TRACE(row.argument);
        std::string name = "before";
        std::string value = "untouched";
        EXPECT_EQ(splitOptionValue(row.argument, &name, &value), row.found);
        EXPECT_EQ(name, row.name);
        EXPECT_EQ(value, row.value);
    }
}

TEST(SplitOptionValue, SkipsUpToTwoDashesOfAnyKind) {
    expectSplit({
        {"--name", false, "name", "untouched"},
        {"-name", false, "name", "untouched"},
        {"name", false, "name", "untouched"},
        {"---name", false, "-name", "untouched"},
        {"----name", false, "--name", "untouched"},
        {"\u2013name", false, "name", "untouched"},
        {"\u2014-verbose", false, "verbose", "untouched"},
        {"-\u2013name", false, "name", "untouched"},
        {"\u2012\u2053name", false, "name", "untouched"},
        {"\u2015\u2015\u2013name", false, "\u2013name", "untouched"},
        {"--\u2013name", false, "\u2013name", "untouched"},
        {"\u2212name", false, "\u2212name", "untouched"},
        {"--out-put", false, "out-put", "untouched"},
    });
}

TEST(SplitOptionValue, LeavesNothingButDashesAnEmptyName) {
    expectSplit({
        {"", false, "", "untouched"},
        {"-", false, "", "untouched"},
        {"--", false, "", "untouched"},
        {"\u2014", false, "", "untouched"},
        {"\u2014-", false, "", "untouched"},
        {"---", false, "-", "untouched"},
    });
}

TEST(SplitOptionValue, CutsAtTheFirstEqualsSign) {
    expectSplit({
        {"--name=value", true, "name", "value"},
        {"-name=value", true, "name", "value"},
        {"name=value", true, "name", "value"},
        {"--name=", true, "name", ""},
        {"--=", true, "", ""},
        {"=", true, "", ""},
        {"--=value", true, "", "value"},
        {"--define=a=b", true, "define", "a=b"},
        {"--name==", true, "name", "="},
        {"--a=b d", true, "a", "b d"},
        {"--a= b", true, "a", " b"},
        {"--a=--b", true, "a", "--b"},
        {"---a=b", true, "-a", "b"},
    });
}

TEST(SplitOptionValue, CutsAtTheFirstWhiteSpaceAndSkipsWhatFollows) {
    expectSplit({
        {"--name value", true, "name", "value"},
        {"name value", true, "name", "value"},
        {"--name   value", true, "name", "value"},
        {"--name   ", true, "name", ""},
        {"--name ", true, "name", ""},
        {"-- value", true, "", "value"},
        {" value", true, "", "value"},
        {"--level = 3", true, "level", "= 3"},
        {"--level =3", true, "level", "=3"},
        {"--name a b ", true, "name", "a b "},
        {"--name\tvalue", true, "name", "value"},
        {"--name\nvalue", true, "name", "value"},
        {"--name\vvalue", true, "name", "value"},
        {"--name\fvalue", true, "name", "value"},
        {"--name\rvalue", true, "name", "value"},
        {"--name \t\r\n\v\f value", true, "name", "value"},
        {"--na\u00A0me", false, "na\u00A0me", "untouched"},
        {"--na\x85me", false, "na\x85me", "untouched"},
    });
}

TEST(SplitOptionValue, KeepsCaseAndEveryOtherByteOfTheName) {
    expectSplit({
        {"--Output=X", true, "Output", "X"},
        {"--output:x", false, "output:x", "untouched"},
        {"--\u00E9t\u00E9=\u00FC", true, "\u00E9t\u00E9", "\u00FC"},
        {"--\xFF\x01", false, "\xFF\x01", "untouched"},
    });
}

TEST(SplitOptionValue, AsksTheGlobalLocaleWhatWhiteSpaceIs) {
    const SplitRow classic[] = {{"--a__b c", true, "a__b", "c"}};
    expectSplit(classic);
    {
        const GlobalLocale underscore(UnderscoreIsSpace::locale());
        expectSplit({{"--a__b c", true, "a", "b c"}, {"--a b", false, "a b", "untouched"}});
    }
    expectSplit(classic);
}

} // namespace
} // namespace tarv_3_3
