#include <gtest/gtest.h>

#include "recognition/ValueBinding.h"
#include "support/CapturedLog.h"

namespace tarv_3_3 {
namespace {

class ValueBindingLog : public testing::Test, protected ValueBinding {
protected:
    std::string traceOf(const std::string& text, const std::string& argument,
                        IResultCollector* resultCollector) {
        const CapturedLog log;
        bind(text, argument, resultCollector);
        return log.text();
    }

    std::string traceOf(const std::string& text, const std::string& argument) {
        return traceOf(text, argument, &collector);
    }
};

TEST_F(ValueBindingLog, OfAnEmptyValueOnlySaysThatItWasStored) {
    declare("files", vtString);
    EXPECT_EQ(traceOf("", "--files"), "UndefinedParser: stored option to result container.\n");
}

TEST_F(ValueBindingLog, OfASingleValue) {
    declare("files", vtString).tokenize(0);
    EXPECT_EQ(traceOf("a,b", "--files=a,b"), "UndefinedParser: adding values to result container:\n"
                                             "UndefinedParser: not using tokenizer\n"
                                             "UndefinedParser: stored option to result container.\n");
}

TEST_F(ValueBindingLog, OfAListHasTwoLinesForEachPiece) {
    declare("files", vtString).tokenize(';');
    EXPECT_EQ(traceOf(";a;;b;", "--files=;a;;b;"),
              "UndefinedParser: adding values to result container:\n"
              "UndefinedParser: using tokenizer on char: ';'\n"
              "UndefinedParser: value is: 'a'\n"
              "UndefinedParser: sent event on value parsed, option: 'files', value: 'a'\n"
              "UndefinedParser: value is: 'b'\n"
              "UndefinedParser: sent event on value parsed, option: 'files', value: 'b'\n"
              "UndefinedParser: stored option to result container.\n");
}

TEST_F(ValueBindingLog, ShowsAPieceAsGivenAndThenCompleted) {
    declare("mode", vtString).allowValue("alpha").allowValue("beta");
    EXPECT_EQ(traceOf("al", "--mode=al"),
              "UndefinedParser: adding values to result container:\n"
              "UndefinedParser: using tokenizer on char: ','\n"
              "UndefinedParser: value is: 'al'\n"
              "UndefinedParser: sent event on value parsed, option: 'mode', value: 'alpha'\n"
              "UndefinedParser: stored option to result container.\n");
}

TEST_F(ValueBindingLog, OfAListWithoutPieces) {
    declare("files", vtString);
    EXPECT_EQ(traceOf(",,,", "--files=,,,"),
              "UndefinedParser: adding values to result container:\n"
              "UndefinedParser: using tokenizer on char: ','\n"
              "UndefinedParser: No value parsed in argument ',,,' for option 'files'\n");
}

TEST_F(ValueBindingLog, OfASingleValueThatDoesNotConvert) {
    declare("level", vtInt32).tokenize(0);
    EXPECT_EQ(traceOf("x", "--level=x"), "UndefinedParser: adding values to result container:\n"
                                         "UndefinedParser: not using tokenizer\n"
                                         "UndefinedParser: Value validation problem in argument '--level=x': "
                                         "Option 'level' can not parse 'x' value, "
                                         "requires a type 'integer' here.\n");
}

TEST_F(ValueBindingLog, OfAPieceThatDoesNotConvert) {
    declare("level", vtInt32);
    EXPECT_EQ(traceOf("1,x,3", "--level=1,x,3"),
              "UndefinedParser: adding values to result container:\n"
              "UndefinedParser: using tokenizer on char: ','\n"
              "UndefinedParser: value is: '1'\n"
              "UndefinedParser: sent event on value parsed, option: 'level', value: '1'\n"
              "UndefinedParser: value is: 'x'\n"
              "UndefinedParser: Value validation problem in argument '--level=1,x,3': Option 'level' can not "
              "parse 'x' "
              "value, requires a type 'integer' here.\n");
}

TEST_F(ValueBindingLog, OfAVetoedValueHasNoColonBehindTheName) {
    declare("files", vtString).tokenize(0);
    handler.refusedValues = {"a"};
    EXPECT_EQ(traceOf("a", "--files=a"),
              "UndefinedParser: adding values to result container:\n"
              "UndefinedParser: not using tokenizer\n"
              "UndefinedParserValue 'a' is not valid for option 'files' in argument "
              "'--files=a' One of the handler signaled the value is not valid.\n");
}

TEST_F(ValueBindingLog, OfAVetoedPieceHasTheWholeText) {
    declare("files", vtString);
    handler.refusedValues = {"b"};
    EXPECT_EQ(
        traceOf("a,b,c", "--files=a,b,c"),
        "UndefinedParser: adding values to result container:\n"
        "UndefinedParser: using tokenizer on char: ','\n"
        "UndefinedParser: value is: 'a'\n"
        "UndefinedParser: sent event on value parsed, option: 'files', value: 'a'\n"
        "UndefinedParser: value is: 'b'\n"
        "UndefinedParserValue 'a,b,c' is not valid for option 'files' in argument '--files=a,b,c' One of the "
        "handler signaled the value is not valid.\n");
}

TEST_F(ValueBindingLog, SaysStoredWithoutACollectorToo) {
    declare("files", vtString).tokenize(0);
    EXPECT_EQ(traceOf("a", "--files=a", nullptr), "UndefinedParser: adding values to result container:\n"
                                                  "UndefinedParser: not using tokenizer\n"
                                                  "UndefinedParser: stored option to result container.\n");
}

} // namespace
} // namespace tarv_3_3
