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
