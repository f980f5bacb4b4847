#include <gtest/gtest.h>

#include <cstdlib>

#include "options/OptionDescription.h"
#include "tarv_3_3/IParser.h"

namespace tarv_3_3 {
namespace {

char separatorOfNewOptions(int flags) {
    IParser* parser = nullptr;
    EXPECT_EQ(createParser(&parser, flags), 0);
    const auto& option = static_cast<const OptionDescription&>(parser->option("files", "", vtString, ""));
    const char separator = option.m_tokenizer;
    parser->destroy();
    return separator;
}

TEST(CreateParser, GivesNewOptionsACommaAsListSeparatorUnlessListsAreOff) {
    const struct {
        int flags;
        char separator;
    } rows[] = {{0, ','},    {0x20, '\0'}, {0x20 | 0x02, '\0'}, {~0x20, ','},       {0x02, ','}, {0x04, ','},
                {0x08, ','}, {0x10, ','},  {0x01 | 0x40, ','},  {0x7fffffff, '\0'}, {-1, '\0'}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.flags);
        EXPECT_EQ(separatorOfNewOptions(row.flags), row.separator);
    }
}

TEST(CreateParser, SplitsListsWithoutFlags) {
    IParser* parser = nullptr;
    ASSERT_EQ(createParser(&parser), 0);
    const auto& option = static_cast<const OptionDescription&>(parser->option("files", "", vtString));
    EXPECT_EQ(option.m_tokenizer, ',');
    parser->destroy();
}

TEST(CreateParser, MakesParsersApartFromEachOther) {
    IParser* first = nullptr;
    IParser* second = nullptr;
    ASSERT_EQ(createParser(&first, 0), 0);
    ASSERT_EQ(createParser(&second, 0), 0);
    first->option("level", "", vtString, "");
    EXPECT_TRUE(first->isOptionDeclared("level", false, nullptr));
    EXPECT_FALSE(second->isOptionDeclared("level", false, nullptr));
    first->destroy();
    EXPECT_EQ(second->option("level", "", vtString, "").m_status, 0);
    second->destroy();
}

} // namespace
} // namespace tarv_3_3
