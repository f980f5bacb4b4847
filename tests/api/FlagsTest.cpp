#include <gtest/gtest.h>

#include "api/CommandLine.h"

namespace tarv = tarv_3_3;

namespace {

TEST(Flags, HaveTheirNumbers) {
    EXPECT_EQ(tarv::flagRejectUnknown, 0x02);
    EXPECT_EQ(tarv::flagPlainArePositional, 0x04);
    EXPECT_EQ(tarv::flagDashIsNotPositional, 0x08);
    EXPECT_EQ(tarv::flagPositionalTakesRest, 0x10);
    EXPECT_EQ(tarv::flagNoLists, 0x20);
}

TEST(Flags, AreNotSetByDefault) {
    tarv::IParser* parser = nullptr;
    ASSERT_EQ(tarv::createParser(&parser), 0);
    tarv::IParseResult* result = nullptr;
    ASSERT_EQ(parser->createResult(&result), 0);
    parser->option("level", "", tarv::vtString);
    const char* const argv[] = {"program", "unknown", "--level=a,b"};
    EXPECT_EQ(parser->parseArgsVector(3, argv, result), 0);
    EXPECT_STREQ(result->get("level").text, "a");
    result->destroy();
    parser->destroy();
}

TEST(Flags, DecideWhatBecomesOfUnknownArguments) {
    for (const int flags : {0, 0x3d, 0x02, 0x02 | 0x04 | 0x08 | 0x10 | 0x20}) {
        SCOPED_TRACE(flags);
        CommandLine line(flags);
        const bool rejected = (flags & 0x02) != 0;
        EXPECT_EQ(line.parse({"--unknown"}), rejected ? 2 : 0);
        EXPECT_EQ(line.error(), rejected ? "Unknown option: --unknown" : "");
    }
}

/// What becomes of one command line under each combination of the flags of positional arguments.
TEST(Flags, DecideWhatIsPositional) {
    const struct {
        int flags;
        const char* files;
        const char* plain;
        const char* level;
    } rows[] = {
        {0x00, "[a][-x][b]", "[-c][d]", "[5]"},
        {0x04, "[a][-x][b][-c][d]", "[-c][d]", "[5]"},
        {0x08, "[a][b]", "[-c][d]", "[5]"},
        {0x04 | 0x08, "[a][b][-c][d]", "[-c][d]", "[5]"},
        {0x10, "[a][-x][--level=5][b][--][-c][d]", "", ""},
        {0x08 | 0x10, "[a][-x][--level=5][b][--][-c][d]", "", ""},
        {0x04 | 0x08 | 0x10, "[a][-x][--level=5][b][--][-c][d]", "", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.flags);
        CommandLine line(row.flags);
        line.parser->option("file", "", tarv::vtString).positional();
        line.parser->option("level", "", tarv::vtInt32);
        EXPECT_EQ(line.parse({"a", "-x", "--level=5", "b", "--", "-c", "d"}), 0);
        EXPECT_EQ(line.values("file"), row.files);
        EXPECT_EQ(line.plainArguments(), row.plain);
        EXPECT_EQ(line.values("level"), row.level);
    }
}

TEST(Flags, DecideWhetherNewOptionsSplitLists) {
    for (const int flags : {0, 0x1f, 0x20, 0x3f}) {
        SCOPED_TRACE(flags);
        CommandLine line(flags);
        line.parser->option("files", "", tarv::vtString);
        line.parser->option("allowed", "", tarv::vtString).allowValue("a").allowValue("b");
        line.parser->option("colons", "", tarv::vtString).tokenize(':');
        EXPECT_EQ(line.parse({"--files=a,b", "--allowed=a,b", "--colons=a:b,c"}), 0);
        EXPECT_EQ(line.values("files"), (flags & 0x20) != 0 ? "[a,b]" : "[a][b]");
        EXPECT_EQ(line.values("allowed"), "[a][b]");
        EXPECT_EQ(line.values("colons"), "[a][b,c]");
    }
}

TEST(Flags, OtherThanTheseFiveHaveNoEffect) {
    CommandLine line(~0x3e);
    line.parser->option("file", "", tarv::vtString).positional();
    EXPECT_EQ(line.parse({"a,b", "-x", "--", "c"}), 0);
    EXPECT_EQ(line.values("file"), "[a][b][-x]");
    EXPECT_EQ(line.plainArguments(), "[c]");
}

} // namespace
