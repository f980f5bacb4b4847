#include <gtest/gtest.h>

#include "api/CommandLine.h"

namespace tarv = tarv_3_3;

namespace {

TEST(Declarations, SayWhetherTheyWereStored) {
    const CommandLine line;
    const struct {
        const char* names;
        int status;
    } rows[] = {
        {"level,l", 0}, {"l", 1},     {"other,level", 1}, {"a,b,c", 0}, {"d,e,long", 1},
        {"f,g,h,i", 1}, {nullptr, 1}, {"level2", 0},      {"color", 0}, {"no-color", 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.names != nullptr ? row.names : "null");
        EXPECT_EQ(line.parser->option(row.names, "", tarv::vtBool).m_status, row.status);
    }
    EXPECT_EQ(line.error(), "");
}

TEST(Declarations, AreFoundByNameRoleAndTopic) {
    const CommandLine line;
    line.parser->option("x", "", tarv::vtInt32, "net:Network").synonym("y");
    line.parser->action("build,b", "", tarv::vtNull, "main");
    line.parser->modifier("jobs", "build", "", tarv::vtInt32);
    tarv::IParser& parser = *line.parser;
    EXPECT_TRUE(parser.isOptionDeclared("x", false, nullptr));
    EXPECT_TRUE(parser.isOptionDeclared("y", false, "net"));
    EXPECT_FALSE(parser.isOptionDeclared("x", false, "main"));
    EXPECT_FALSE(parser.isOptionDeclared("x", true, nullptr));
    EXPECT_TRUE(parser.isOptionDeclared("b", true, "main"));
    EXPECT_FALSE(parser.isOptionDeclared("build", false, nullptr));
    EXPECT_TRUE(parser.isOptionDeclared("jobs", false, ""));
    EXPECT_FALSE(parser.isOptionDeclared("job", false, nullptr));
    EXPECT_FALSE(parser.isOptionDeclared(nullptr, false, nullptr));
    EXPECT_FALSE(parser.isOptionDeclared("option-file", false, nullptr));
    EXPECT_TRUE(parser.addOptionFileOption("", "files"));
    EXPECT_TRUE(parser.addOptionFileOption(""));
    EXPECT_TRUE(parser.isOptionDeclared("option-file", false, "files"));
}

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

TEST(Declarations, ConvertValuesToTheirKind) {
    CommandLine line;
    line.parser->option("b", "", tarv::vtBool);
    line.parser->option("i", "", tarv::vtInt32);
    line.parser->option("u", "", tarv::vtUInt32);
    line.parser->option("I", "", tarv::vtInt64);
    line.parser->option("U", "", tarv::vtUInt64);
    line.parser->option("d", "", tarv::vtDouble);
    line.parser->option("s", "", tarv::vtString);
    line.parser->option("n", "", tarv::vtNull);
    EXPECT_EQ(line.parse({"-b", "-i=-5", "-u=5", "-I=-5000000000", "-U=0x1F", "-d=1e3", "-s=text", "-n"}), 0);
    tarv::IParseResult& result = *line.result;
    EXPECT_EQ(result.get("b").value, tarv::variant_t(true));
    EXPECT_EQ(result.get("i").value, tarv::variant_t(std::int32_t(-5)));
    EXPECT_EQ(result.get("u").value, tarv::variant_t(std::uint32_t(5)));
    EXPECT_EQ(result.get("I").value, tarv::variant_t(std::int64_t(-5000000000)));
    EXPECT_EQ(result.get("U").value, tarv::variant_t(std::uint64_t(31)));
    EXPECT_EQ(result.get("d").value, tarv::variant_t(1000.0));
    EXPECT_EQ(result.get("s").value, tarv::variant_t("text"));
    EXPECT_EQ(result.get("n").value, tarv::variant_t());
    EXPECT_EQ(result.get("n").status, 0);
}

TEST(Declarations, MayBeMadeBetweenParses) {
    CommandLine line(tarv::flagRejectUnknown);
    line.parser->option("level", "", tarv::vtInt32);
    EXPECT_EQ(line.parse({"--size=1"}), 2);
    line.parser->option("size", "", tarv::vtInt32).defaultValue(7);
    EXPECT_EQ(line.parse({"--size=1"}), 0);
    EXPECT_EQ(line.values("size"), "[1]");
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
