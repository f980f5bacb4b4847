#include <gtest/gtest.h>

#include "api/CommandLine.h"

namespace tarv = tarv_3_3;

namespace {

TEST(Declarations, OfARefusedOptionChangeNothing) {
    CommandLine line(tarv::flagRejectUnknown);
    line.parser->option("level", "", tarv::vtInt32);
    line.parser->option("level", "", tarv::vtString).synonym("depth").defaultValue("7").positional();
    EXPECT_EQ(line.parse({"--level=1"}), 0);
    EXPECT_EQ(line.values("level"), "[1]");
    EXPECT_EQ(line.parse({"--depth=1"}), 2);
    EXPECT_EQ(line.error(), "Unknown option: --depth=1");
    EXPECT_EQ(line.parse({"x"}), 2);
    EXPECT_EQ(line.error(), "Unknown option: x");
}

TEST(Declarations, AreRefinedByTheirBuilders) {
    CommandLine line;
    line.parser->option("size,s", "", tarv::vtString)
        .synonym("extent")
        .allowValue("small")
        .allowValue("large")
        .defaultValue("small");
    line.parser->option("path", "", tarv::vtString).tokenize(':');
    line.parser->option("raw", "", tarv::vtString).tokenize(0);
    line.parser->option("file", "", tarv::vtString).positional();
    EXPECT_EQ(line.parse({"--extent=l", "--path=/a:/b,c", "--raw=x,y:z", "input"}), 0);
    EXPECT_EQ(line.values("size"), "[large]");
    EXPECT_EQ(line.values("s"), "[large]");
    EXPECT_EQ(line.values("path"), "[/a][/b,c]");
    EXPECT_EQ(line.values("raw"), "[x,y:z]");
    EXPECT_EQ(line.values("file"), "[input]");
}

TEST(CreateParser, StartsWithAnEmptyErrorWhateverTheFlags) {
    for (const int flags : {0, 0x3e, 0x41, -1}) {
        tarv::IParser* parser = nullptr;
        EXPECT_EQ(tarv::createParser(&parser, flags), 0);
        EXPECT_STREQ(parser->getErrorDesc(), "");
        parser->destroy();
    }
}

// The names of the last declaration may be looked up at any time, and it may get more of them behind that.
TEST(Declarations, RefuseEverySynonymOfTheLastOneWheneverItWasGiven) {
    CommandLine commandLine;
    tarv::IParser& parser = *commandLine.parser;
    tarv::IOption& option = parser.option("", "", tarv::vtString);
    option.synonym("a");
    EXPECT_STREQ(parser.getDescription("a"), "\n");
    option.synonym("b");
    EXPECT_EQ(parser.option("b", "", tarv::vtString).m_status, tarv::declarationRefused);
    EXPECT_EQ(parser.option("a", "", tarv::vtString).m_status, tarv::declarationRefused);
    EXPECT_EQ(parser.option("c", "", tarv::vtString).m_status, tarv::declarationStored);
}

} // namespace
