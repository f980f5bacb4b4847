#include <gtest/gtest.h>

#include <stdexcept>

#include "api/CommandLine.h"
#include "support/CapturedOutput.h"

namespace tarv = tarv_3_3;

namespace {

TEST(Parsing, NeedsNoNullBehindTheArguments) {
    std::vector<const char*> argv = {"program", "--level=5"};
    argv.shrink_to_fit();
    const CommandLine line(tarv::flagRejectUnknown);
    line.parser->option("level", "", tarv::vtInt32);
    EXPECT_EQ(line.parser->parseArgsVector(2, argv.data(), line.result), 0);
    EXPECT_EQ(line.values("level"), "[5]");
}

TEST(Parsing, AppliesNoDefaultsForAStream) {
    CommandLine line;
    line.parser->option("level", "", tarv::vtInt32).defaultValue(7);
    EXPECT_EQ(line.parseStream(nullptr), 0);
    EXPECT_EQ(line.values("level"), "");
    EXPECT_EQ(line.parse({}), 0);
    EXPECT_EQ(line.values("level"), "[7]");
}

TEST(Parsing, ReadsAStreamThatIsMinusOneAsAQuestionMark) {
    CommandLine line(tarv::flagRejectUnknown);
    EXPECT_EQ(line.parseStream("-1"), 2);
    EXPECT_EQ(line.error(), "Unknown option: ?");
}

TEST(Parsing, StoresNothingOfAnOptionThatFails) {
    CommandLine line;
    line.parser->option("level", "", tarv::vtInt32);
    EXPECT_EQ(line.parse({"--level=1,2,x"}), 2);
    EXPECT_FALSE(line.result->present("level"));
}

TEST(Parsing, OfTwoParsersInTurnsKeepsTheirResultsApart) {
    CommandLine first(tarv::flagRejectUnknown);
    CommandLine second(tarv::flagRejectUnknown);
    first.parser->option("level", "", tarv::vtInt32);
    second.parser->option("level", "", tarv::vtString);
    EXPECT_EQ(first.parse({"--level=1", "--", "a"}), 0);
    EXPECT_EQ(second.parse({"--level=x", "--", "b"}), 0);
    EXPECT_EQ(first.parse({"--level=2", "y"}), 2);
    EXPECT_EQ(second.parse({"--level=z"}), 0);
    EXPECT_EQ(first.values("level"), "[1][2]");
    EXPECT_EQ(second.values("level"), "[x][z]");
    EXPECT_EQ(first.plainArguments(), "[a]");
    EXPECT_EQ(second.plainArguments(), "[b]");
    EXPECT_EQ(first.error(), "Unknown option: y");
    EXPECT_EQ(second.error(), "");
    const int firstOfFirst = first.result->get("level").position;
    const int firstOfSecond = second.result->get("level").position;
    const int secondOfFirst = first.result->get("level", firstOfSecond).position;
    EXPECT_LT(firstOfFirst, firstOfSecond);
    EXPECT_LT(firstOfSecond, secondOfFirst);
}

TEST(Parsing, KeepsAnIterationThroughAParseOfAnotherResult) {
    CommandLine line;
    CommandLine other;
    line.parser->option("level", "", tarv::vtInt32);
    other.parser->option("level", "", tarv::vtInt32);
    EXPECT_EQ(line.parse({"--level=1,2"}), 0);
    EXPECT_STREQ(line.result->get("level").text, "1");
    EXPECT_EQ(other.parse({"--level=3,4"}), 0);
    EXPECT_STREQ(other.result->get("level").text, "3");
    EXPECT_STREQ(line.result->next("level").text, "2");
}

TEST(Parsing, LeavesAResultThatOutlivesItsParser) {
    CommandLine line;
    line.parser->option("level", "", tarv::vtString).defaultValue("default");
    line.parser->option("size", "", tarv::vtString).defaultValue("default");
    EXPECT_EQ(line.parse({"--level=a,b", "--", "plain"}), 0);
    line.parser->destroy();
    line.parser = nullptr;
    EXPECT_EQ(line.values("level"), "[a][b]");
    EXPECT_EQ(line.values("size"), "[default]");
    EXPECT_STREQ(line.result->get("level").value.get<const char*>(), "a");
    EXPECT_STREQ(tarv::getLastValue(line.result, "level").value.get<const char*>(), "b");
    EXPECT_EQ(line.plainArguments(), "[plain]");
}

TEST(Parsing, LeavesValuesThatOutliveTheResult) {
    tarv::Value value;
    {
        CommandLine line;
        line.parser->option("level", "", tarv::vtString);
        EXPECT_EQ(line.parse({"--level=a"}), 0);
        value = line.result->get("level");
    }
    EXPECT_STREQ(value.value.get<const char*>(), "a");
}

TEST(Parsing, IsTracedForOneCommandLineByItsFirstArgument) {
    CommandLine line;
    line.parser->option("quiet", "", tarv::vtNull);
    const CapturedOutput output;
    EXPECT_EQ(line.parse({"x"}), 0);
    EXPECT_EQ(line.parse({"tarvoption=tarvlogenable=1", "-q", "x", "--", "a"}), 0);
    EXPECT_EQ(line.parse({"y", "tarvoption=tarvlogenable=1"}), 0);
    EXPECT_EQ(line.parseStream("z"), 0);
    EXPECT_EQ(output.text(), "PositionalOptionsParser: recognizing argument '-q'\n"
                             "AbbreviationParser: recognizing argument '-q'\n"
                             "AbbreviationParser: best match option for 'q' in argument '-q' is 'quiet'\n"
                             "AbbreviationParser: parsing argument '-q'\n"
                             "AbbreviationParser: detected option: 'quiet'\n"
                             "AbbreviationParser: sent event on option parsed\n"
                             "AbbreviationParser: stored option to result container.\n"
                             "AbbreviationParser: removing argument: '-q'\n"
                             "PositionalOptionsParser: recognizing argument 'x'\n"
                             "AbbreviationParser: recognizing argument 'x'\n"
                             "ignoring x\n"
                             "collectNonparsingArguments: stored argument: 'a'\n");
    EXPECT_EQ(line.plainArguments(), "[a]");
}

} // namespace
