#include <gtest/gtest.h>

#include "recognition/AbbreviationParser.h"
#include "recognition/Recognition.h"
#include "support/CapturedLog.h"

namespace tarv_3_3 {
namespace {

class AbbreviationParserLog : public testing::Test, protected Recognition<AbbreviationParser> {
protected:
    std::string traceOf(std::vector<std::string> given) {
        const CapturedLog log;
        run(std::move(given));
        return log.text();
    }
};

TEST_F(AbbreviationParserLog, OfAnArgumentThatIsNotTakenEndsWithItsFirstLine) {
    declare("level", vtInt32);
    for (const auto& [argument, trace] :
         {std::pair{"", "AbbreviationParser: recognizing argument ''\n"},
          std::pair{"-", "AbbreviationParser: recognizing argument '-'\n"},
          std::pair{"level", "AbbreviationParser: recognizing argument 'level'\n"},
          std::pair{"--zzz=3", "AbbreviationParser: recognizing argument '--zzz=3'\n"}}) {
        SCOPED_TRACE(argument);
        EXPECT_EQ(traceOf({argument}), trace);
    }
}

TEST_F(AbbreviationParserLog, OfAnAmbiguityHasNoBlankBeforeTheMessage) {
    declare("verbose", vtBool);
    declare("version", vtBool);
    EXPECT_EQ(
        traceOf({"--ver=1"}),
        "AbbreviationParser: recognizing argument '--ver=1'\n"
        "AbbreviationParser: failed to get best match for 'ver' in argument '--ver=1':Ambiguous option, "
        "possible options are: 'verbose', 'version'\n"
        "AbbreviationParser: parsing argument '--ver=1'\n"
        "AbbreviationParser: Ambiguous option 'ver' in argument: '--ver=1', could be: 'verbose', "
        "'version'\n");
}

TEST_F(AbbreviationParserLog, OfAnUnknownOptionHasItsMessage) {
    declare("xray", vtBool);
    EXPECT_EQ(traceOf({"--"}), "AbbreviationParser: recognizing argument '--'\n"
                               "AbbreviationParser: best match option for '' in argument '--' is 'xray'\n"
                               "AbbreviationParser: parsing argument '--'\n"
                               "AbbreviationParser: Unknown option '--'\n");
    EXPECT_EQ(traceOf({"---x"}),
              "AbbreviationParser: recognizing argument '---x'\n"
              "AbbreviationParser: best match option for '-x' in argument '---x' is 'no-xray'\n"
              "AbbreviationParser: parsing argument '---x'\n"
              "AbbreviationParser: Unknown option '---x'\n");
}

TEST_F(AbbreviationParserLog, OfAValueInTheSameArgument) {
    declare("level,l", vtInt32).tokenize(0);
    EXPECT_EQ(traceOf({"-l=3", "x"}),
              "AbbreviationParser: recognizing argument '-l=3'\n"
              "AbbreviationParser: best match option for 'l' in argument '-l=3' is 'l'\n"
              "AbbreviationParser: parsing argument '-l=3'\n"
              "AbbreviationParser: detected option: 'level'\n"
              "AbbreviationParser: value from the same argument taken: '3'\n"
              "AbbreviationParser: sent event on option parsed\n"
              "AbbreviationParser: adding values to result container:\n"
              "AbbreviationParser: not using tokenizer\n"
              "AbbreviationParser: stored option to result container.\n"
              "AbbreviationParser: removing argument: '-l=3'\n");
}

TEST_F(AbbreviationParserLog, OfAValueInTheNextArgument) {
    declare("level", vtInt32);
    EXPECT_EQ(traceOf({"--lev", "3"}),
              "AbbreviationParser: recognizing argument '--lev'\n"
              "AbbreviationParser: best match option for 'lev' in argument '--lev' is 'level'\n"
              "AbbreviationParser: parsing argument '--lev'\n"
              "AbbreviationParser: detected option: 'level'\n"
              "AbbreviationParser: no value in the same argument, looking next\n"
              "AbbreviationParser: got value from the next argument: '3'\n"
              "AbbreviationParser: sent event on option parsed\n"
              "AbbreviationParser: adding values to result container:\n"
              "AbbreviationParser: using tokenizer on char: ','\n"
              "AbbreviationParser: value is: '3'\n"
              "AbbreviationParser: sent event on value parsed, option: 'level', value: '3'\n"
              "AbbreviationParser: stored option to result container.\n"
              "AbbreviationParser: removing argument: '--lev'\n"
              "AbbreviationParser: removing argument: '3'\n");
}

TEST_F(AbbreviationParserLog, SaysThatAnEmptyValueWasTakenAndThenLooksNext) {
    declare("level", vtInt32);
    EXPECT_EQ(traceOf({"--level="}),
              "AbbreviationParser: recognizing argument '--level='\n"
              "AbbreviationParser: best match option for 'level' in argument '--level=' is 'level'\n"
              "AbbreviationParser: parsing argument '--level='\n"
              "AbbreviationParser: detected option: 'level'\n"
              "AbbreviationParser: value from the same argument taken: ''\n"
              "AbbreviationParser: no value in the same argument, looking next\n"
              "AbbreviationParser: Option 'level' requires a value in argument: '--level='\n");
}

TEST_F(AbbreviationParserLog, OfANextArgumentThatIsEmpty) {
    declare("level", vtInt32);
    EXPECT_EQ(traceOf({"--level", ""}),
              "AbbreviationParser: recognizing argument '--level'\n"
              "AbbreviationParser: best match option for 'level' in argument '--level' is 'level'\n"
              "AbbreviationParser: parsing argument '--level'\n"
              "AbbreviationParser: detected option: 'level'\n"
              "AbbreviationParser: no value in the same argument, looking next\n"
              "AbbreviationParser: got value from the next argument: ''\n"
              "AbbreviationParser: Option 'level' requires a value in argument: '--level'\n");
}

TEST_F(AbbreviationParserLog, OfANextArgumentThatLooksLikeAnOption) {
    declare("level", vtInt32);
    EXPECT_EQ(traceOf({"--level", "-3"}),
              "AbbreviationParser: recognizing argument '--level'\n"
              "AbbreviationParser: best match option for 'level' in argument '--level' is 'level'\n"
              "AbbreviationParser: parsing argument '--level'\n"
              "AbbreviationParser: detected option: 'level'\n"
              "AbbreviationParser: no value in the same argument, looking next\n"
              "AbbreviationParser: Option 'level' received value from the next argument: '-3', but it seems "
              "to be an "
              "option. Use '-option=value' declaration form or make sure that value is not missed\n");
}

TEST_F(AbbreviationParserLog, OfANegatedSwitch) {
    declare("verbose", vtBool).tokenize(0);
    EXPECT_EQ(traceOf({"\u2014no-v"}),
              "AbbreviationParser: recognizing argument '\u2014no-v'\n"
              "AbbreviationParser: best match option for 'no-v' in argument '\u2014no-v' is 'no-verbose'\n"
              "AbbreviationParser: parsing argument '\u2014no-v'\n"
              "AbbreviationParser: detected option: 'verbose'\n"
              "AbbreviationParser: sent event on option parsed\n"
              "AbbreviationParser: adding values to result container:\n"
              "AbbreviationParser: not using tokenizer\n"
              "AbbreviationParser: stored option to result container.\n"
              "AbbreviationParser: removing argument: '\u2014no-v'\n");
}

TEST_F(AbbreviationParserLog, OfASwitchWithAValue) {
    declare("verbose", vtBool);
    EXPECT_EQ(traceOf({"--verbose 1"}),
              "AbbreviationParser: recognizing argument '--verbose 1'\n"
              "AbbreviationParser: best match option for 'verbose' in argument '--verbose 1' is 'verbose'\n"
              "AbbreviationParser: parsing argument '--verbose 1'\n"
              "AbbreviationParser: detected option: 'verbose'\n"
              "AbbreviationParser: value from the same argument taken: '1'\n"
              "AbbreviationParser: Option 'verbose' is boolean and should be declared in form '--option' or "
              "'--no-option' in argument: '--verbose 1'\n");
}

TEST_F(AbbreviationParserLog, OfTheNullKind) {
    declare("flag", vtNull);
    EXPECT_EQ(traceOf({"--flag="}),
              "AbbreviationParser: recognizing argument '--flag='\n"
              "AbbreviationParser: best match option for 'flag' in argument '--flag=' is 'flag'\n"
              "AbbreviationParser: parsing argument '--flag='\n"
              "AbbreviationParser: detected option: 'flag'\n"
              "AbbreviationParser: value from the same argument taken: ''\n"
              "AbbreviationParser: sent event on option parsed\n"
              "AbbreviationParser: stored option to result container.\n"
              "AbbreviationParser: removing argument: '--flag='\n");
    EXPECT_EQ(traceOf({"--flag=3"}),
              "AbbreviationParser: recognizing argument '--flag=3'\n"
              "AbbreviationParser: best match option for 'flag' in argument '--flag=3' is 'flag'\n"
              "AbbreviationParser: parsing argument '--flag=3'\n"
              "AbbreviationParser: detected option: 'flag'\n"
              "AbbreviationParser: value from the same argument taken: '3'\n"
              "AbbreviationParser: Option 'flag'does not requires a value in argument: '--flag=3'\n");
}

TEST_F(AbbreviationParserLog, OfAFailedBindingEndsWithTheMessage) {
    declare("level", vtInt32);
    EXPECT_EQ(traceOf({"--level=x"}),
              "AbbreviationParser: recognizing argument '--level=x'\n"
              "AbbreviationParser: best match option for 'level' in argument '--level=x' is 'level'\n"
              "AbbreviationParser: parsing argument '--level=x'\n"
              "AbbreviationParser: detected option: 'level'\n"
              "AbbreviationParser: value from the same argument taken: 'x'\n"
              "AbbreviationParser: sent event on option parsed\n"
              "AbbreviationParser: adding values to result container:\n"
              "AbbreviationParser: using tokenizer on char: ','\n"
              "AbbreviationParser: value is: 'x'\n"
              "AbbreviationParser: Value validation problem in argument '--level=x': Option 'level' can not "
              "parse 'x' "
              "value, requires a type 'integer' here.\n");
}

TEST_F(AbbreviationParserLog, IsEmptyWhenTheTraceIsOff) {
    declare("level", vtInt32);
    const CapturedLog log;
    internal::tarvLogEnabled = false;
    EXPECT_EQ(run({"--level=3"}), "0: level@1=\"3\"@2");
    EXPECT_EQ(run({"--level=x"}),
              "2: level@1=\"3\"@2Value validation problem in argument '--level=x': Option "
              "'level' can not parse 'x' value, requires a type 'integer' here. |--level=x");
    EXPECT_EQ(log.text(), "");
}

} // namespace
} // namespace tarv_3_3
