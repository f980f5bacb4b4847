#include <gtest/gtest.h>

#include "recognition/PositionalOptionsParser.h"
#include "recognition/Recognition.h"
#include "support/CapturedLog.h"

namespace tarv_3_3 {
namespace {

std::string traceOf(Recognition<PositionalOptionsParser>& positional, std::vector<std::string> given) {
    const CapturedLog log;
    positional.run(std::move(given));
    return log.text();
}

void declareFiles(Recognition<PositionalOptionsParser>& positional) {
    positional.declare("verbose", vtBool);
    positional.declare("files", vtString).positional();
}

TEST(PositionalLog, OfAnArgumentThatIsNotTakenEndsWithItsFirstLine) {
    Recognition<PositionalOptionsParser> positional(0x08);
    EXPECT_EQ(traceOf(positional, {"x"}), "PositionalOptionsParser: recognizing argument 'x'\n");
    declareFiles(positional);
    EXPECT_EQ(traceOf(positional, {"-x"}), "PositionalOptionsParser: recognizing argument '-x'\n");
}

TEST(PositionalLog, NamesTheFirstDeclarationAsTheOption) {
    Recognition<PositionalOptionsParser> positional;
    declareFiles(positional);
    EXPECT_EQ(traceOf(positional, {"a,b", "c"}),
              "PositionalOptionsParser: recognizing argument 'a,b'\n"
              "PositionalOptionsParser: parsing argument 'a,b'\n"
              "PositionalOptionsParser: option is 'verbose'\n"
              "PositionalOptionsParser: adding values to result container:\n"
              "PositionalOptionsParser: using tokenizer on char: ','\n"
              "PositionalOptionsParser: value is: 'a'\n"
              "PositionalOptionsParser: sent event on value parsed, option: 'files', value: 'a'\n"
              "PositionalOptionsParser: value is: 'b'\n"
              "PositionalOptionsParser: sent event on value parsed, option: 'files', value: 'b'\n"
              "PositionalOptionsParser: stored option to result container.\n"
              "PositionalOptionsParser: removing argument: 'a,b'\n");
}

TEST(PositionalLog, OfTheRestAnnouncesOnlyTheFirstArgument) {
    Recognition<PositionalOptionsParser> positional(0x10);
    positional.declare("verbose", vtBool);
    positional.declare("files", vtString).positional().tokenize(0);
    EXPECT_EQ(traceOf(positional, {"a", "", "--d"}),
              "PositionalOptionsParser: recognizing argument 'a'\n"
              "PositionalOptionsParser: parsing argument 'a'\n"
              "PositionalOptionsParser: option is 'verbose'\n"
              "PositionalOptionsParser: adding values to result container:\n"
              "PositionalOptionsParser: not using tokenizer\n"
              "PositionalOptionsParser: stored option to result container.\n"
              "PositionalOptionsParser: removing argument: 'a'\n"
              "PositionalOptionsParser: stored option to result container.\n"
              "PositionalOptionsParser: removing argument: ''\n"
              "PositionalOptionsParser: adding values to result container:\n"
              "PositionalOptionsParser: not using tokenizer\n"
              "PositionalOptionsParser: stored option to result container.\n"
              "PositionalOptionsParser: removing argument: '--d'\n");
}

TEST(PositionalLog, OfAFailureEndsWithTheMessage) {
    Recognition<PositionalOptionsParser> positional(0x10);
    positional.declare("level", vtInt32).positional().tokenize(0);
    EXPECT_EQ(
        traceOf(positional, {"5", "abc"}),
        "PositionalOptionsParser: recognizing argument '5'\n"
        "PositionalOptionsParser: parsing argument '5'\n"
        "PositionalOptionsParser: option is 'level'\n"
        "PositionalOptionsParser: adding values to result container:\n"
        "PositionalOptionsParser: not using tokenizer\n"
        "PositionalOptionsParser: stored option to result container.\n"
        "PositionalOptionsParser: removing argument: '5'\n"
        "PositionalOptionsParser: adding values to result container:\n"
        "PositionalOptionsParser: not using tokenizer\n"
        "PositionalOptionsParser: Value validation problem in argument 'abc': Option 'level' can not parse "
        "'abc' value, requires a type 'integer' here.\n");
}

TEST(PositionalLog, ShowsAnArgumentAsItWasGivenWhenItIsRemoved) {
    Recognition<PositionalOptionsParser> positional;
    positional.declare("shape", vtString).allowValue("round").tokenize(0).positional();
    EXPECT_EQ(traceOf(positional, {"r"}), "PositionalOptionsParser: recognizing argument 'r'\n"
                                          "PositionalOptionsParser: parsing argument 'r'\n"
                                          "PositionalOptionsParser: option is 'shape'\n"
                                          "PositionalOptionsParser: adding values to result container:\n"
                                          "PositionalOptionsParser: not using tokenizer\n"
                                          "PositionalOptionsParser: stored option to result container.\n"
                                          "PositionalOptionsParser: removing argument: 'r'\n");
}

} // namespace
} // namespace tarv_3_3
