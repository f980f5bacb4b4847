#include <gtest/gtest.h>

#include <stdexcept>

#include "recognition/AbbreviationParser.h"
#include "recognition/DeclaringHandler.h"
#include "recognition/Recognition.h"

namespace tarv_3_3 {
namespace {

using Arguments = std::vector<std::string>;

struct Row {
    Arguments args;
    const char* outcome;
    const char* events;
};

// A fresh recognizer for each row, with one option.
void expectOutcomes(const char* names, das_variant_type_t type, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.args));
        Recognition<AbbreviationParser> one;
        one.declare(names, type);
        EXPECT_EQ(one.run(row.args), row.outcome);
        EXPECT_EQ(one.handler.events, row.events);
    }
}

TEST(AbbreviationParserValue, ComesFromTheSameArgument) {
    const char* const events = "option level; value level=\"3\"@2";
    expectOutcomes("level,l", vtInt32,
                   {
                       {{"--level=3"}, "0: level@1=\"3\"@2", events},
                       {{"--level 3"}, "0: level@1=\"3\"@2", events},
                       {{"--level   3"}, "0: level@1=\"3\"@2", events},
                       {{"-l=3"}, "0: level@1=\"3\"@2", events},
                       {{"-l=3", "4"}, "0: level@1=\"3\"@2 |4", events},
                       {{"-l 3", "--level=4", "x"}, "0: level@1=\"3\"@2 |--level=4 |x", events},
                       {{"--level=-3"}, "0: level@1=\"-3\"@2", "option level; value level=\"-3\"@2"},
                       {{"--level -3"}, "0: level@1=\"-3\"@2", "option level; value level=\"-3\"@2"},
                       {{"--level= 3"}, "0: level@1=\" 3\"@2", "option level; value level=\" 3\"@2"},
                   });
    expectOutcomes("define", vtString,
                   {
                       {{"--define=a=b"}, "0: define@1=\"a=b\"@2", "option define; value define=\"a=b\"@2"},
                       {{"--define = b"}, "0: define@1=\"= b\"@2", "option define; value define=\"= b\"@2"},
                       {{"--define=--x"}, "0: define@1=\"--x\"@2", "option define; value define=\"--x\"@2"},
                   });
}

TEST(AbbreviationParserValue, ComesFromTheNextArgumentWhenTheFirstHasNone) {
    const char* const events = "option level; value level=\"3\"@2";
    expectOutcomes("level,l", vtInt32,
                   {
                       {{"--level", "3"}, "0: level@1=\"3\"@2", events},
                       {{"--level=", "3"}, "0: level@1=\"3\"@2", events},
                       {{"--level ", "3"}, "0: level@1=\"3\"@2", events},
                       {{"\u2013l", "3", "4"}, "0: level@1=\"3\"@2 |4", events},
                   });
    expectOutcomes(
        "name", vtString,
        {
            {{"--name", "a=b c"}, "0: name@1=\"a=b c\"@2", "option name; value name=\"a=b c\"@2"},
            {{"--name", "\u2013x"}, "0: name@1=\"\u2013x\"@2", "option name; value name=\"\u2013x\"@2"},
            {{"--name", "\u2014\u2014x", "y"},
             "0: name@1=\"\u2014\u2014x\"@2 |y",
             "option name; value name=\"\u2014\u2014x\"@2"},
            {{"--name", " "}, "0: name@1=\" \"@2", "option name; value name=\" \"@2"},
        });
}

TEST(AbbreviationParserValue, IsMissingWithoutANextArgument) {
    expectOutcomes(
        "level,l", vtInt32,
        {
            {{"--level"}, "2: Option 'level' requires a value in argument: '--level' |--level", ""},
            {{"-l="}, "2: Option 'level' requires a value in argument: '-l=' |-l=", ""},
            {{"--lev "}, "2: Option 'level' requires a value in argument: '--lev ' |--lev ", ""},
            {{"--level", ""}, "2: Option 'level' requires a value in argument: '--level' |--level |", ""},
            {{"--level", "", "3"},
             "2: Option 'level' requires a value in argument: '--level' |--level | |3",
             ""},
        });
}

TEST(AbbreviationParserValue, IsNoNextArgumentThatBeginsWithAHyphen) {
    expectOutcomes(
        "level,l", vtInt32,
        {
            {{"--level", "-3"},
             "2: Option 'level' received value from the next argument: '-3', but it seems to be an "
             "option. Use '-option=value' declaration form or make sure that value is not missed "
             "|--level |-3",
             ""},
            {{"-l=", "-"},
             "2: Option 'level' received value from the next argument: '-', but it seems to be an "
             "option. Use '-option=value' declaration form or make sure that value is not missed "
             "|-l= |-",
             ""},
            {{"-l", "--", "3"},
             "2: Option 'level' received value from the next argument: '--', but it seems to be an "
             "option. Use '-option=value' declaration form or make sure that value is not missed "
             "|-l |-- |3",
             ""},
        });
}

TEST(AbbreviationParserValue, IsTakenByEveryKindButSwitchAndNull) {
    for (const das_variant_type_t type : {vtInt32, vtUInt32, vtInt64, vtUInt64, vtDouble, vtString}) {
        SCOPED_TRACE(type);
        expectOutcomes(
            "level", type,
            {{{"--level", "3", "x"}, "0: level@1=\"3\"@2 |x", "option level; value level=\"3\"@2"}});
    }
}

TEST(AbbreviationParserSwitch, StoresOneAndItsNegatedFormZero) {
    const char* const on = "option verbose; value verbose=\"1\"@2";
    const char* const off = "option verbose; value verbose=\"0\"@2";
    expectOutcomes("verbose,v", vtBool,
                   {
                       {{"--verbose"}, "0: verbose@1=\"1\"@2", on},
                       {{"--verb"}, "0: verbose@1=\"1\"@2", on},
                       {{"-v"}, "0: verbose@1=\"1\"@2", on},
                       {{"--verbose="}, "0: verbose@1=\"1\"@2", on},
                       {{"--verbose "}, "0: verbose@1=\"1\"@2", on},
                       {{"--no-verbose"}, "0: verbose@1=\"0\"@2", off},
                       {{"--no-verb"}, "0: verbose@1=\"0\"@2", off},
                       {{"--no-v"}, "0: verbose@1=\"0\"@2", off},
                       {{"--n-v"}, "0: verbose@1=\"0\"@2", off},
                       {{"\u2014no-verbose"}, "0: verbose@1=\"0\"@2", off},
                       {{"--no-verbose="}, "0: verbose@1=\"0\"@2", off},
                       {{"--no-verb-"}, "not taken", ""},
                       {{"--no"}, "not taken", ""},
                       {{"--no-no-verbose"}, "not taken", ""},
                   });
    Recognition<AbbreviationParser> one;
    one.declare("verbose", vtBool);
    one.run({"--verbose"});
    one.run({"--no-verbose"});
    EXPECT_TRUE(one.collector.values.at(0).value == variant_t(true));
    EXPECT_TRUE(one.collector.values.at(1).value == variant_t(false));
}

TEST(AbbreviationParserSwitch, IsNegatedByAnEmptyWordToo) {
    expectOutcomes("verbose", vtBool,
                   {{{"--no-"}, "0: verbose@1=\"0\"@2", "option verbose; value verbose=\"0\"@2"}});
}

TEST(AbbreviationParserSwitch, IsNotNegatedByTheSingleWordNo) {
    expectOutcomes("no", vtBool,
                   {
                       {{"--no"}, "0: no@1=\"1\"@2", "option no; value no=\"1\"@2"},
                       {{"--no-no"}, "0: no@1=\"0\"@2", "option no; value no=\"0\"@2"},
                   });
}

TEST(AbbreviationParserSwitch, NeverTakesTheNextArgument) {
    expectOutcomes(
        "verbose", vtBool,
        {
            {{"--verbose", "1"}, "0: verbose@1=\"1\"@2 |1", "option verbose; value verbose=\"1\"@2"},
            {{"--no-verbose=", "1"}, "0: verbose@1=\"0\"@2 |1", "option verbose; value verbose=\"0\"@2"},
        });
}

TEST(AbbreviationParserSwitch, RefusesAValue) {
    expectOutcomes("verbose,v", vtBool,
                   {
                       {{"--verbose=1"},
                        "2: Option 'verbose' is boolean and should be declared in form '--option' or "
                        "'--no-option' in argument: '--verbose=1' |--verbose=1",
                        ""},
                       {{"--no-verb=0", "x"},
                        "2: Option 'verbose' is boolean and should be declared in form '--option' or "
                        "'--no-option' in argument: '--no-verb=0' |--no-verb=0 |x",
                        ""},
                       {{"-v 1"},
                        "2: Option 'verbose' is boolean and should be declared in form '--option' or "
                        "'--no-option' in argument: '-v 1' |-v 1",
                        ""},
                   });
}

TEST(AbbreviationParserSwitch, WhoseNameBeginsWithNoStoresZeroUnderItsOwnName) {
    expectOutcomes(
        "no-color", vtBool,
        {
            {{"--no-color"}, "0: no-color@1=\"0\"@2", "option no-color; value no-color=\"0\"@2"},
            {{"--n-c"}, "0: no-color@1=\"0\"@2", "option no-color; value no-color=\"0\"@2"},
            {{"--no-no-color"}, "0: no-color@1=\"0\"@2", "option no-color; value no-color=\"0\"@2"},
            {{"--color"}, "not taken", ""},
        });
    expectOutcomes("normal", vtBool,
                   {{{"--normal"}, "0: normal@1=\"1\"@2", "option normal; value normal=\"1\"@2"}});
    expectOutcomes("piano-no-lid", vtBool,
                   {{{"--piano-no-lid"},
                     "0: piano-no-lid@1=\"1\"@2",
                     "option piano-no-lid; value piano-no-lid=\"1\"@2"}});
    expectOutcomes("color,no-colour", vtBool,
                   {{{"--no-colour"}, "0: color@1=\"0\"@2", "option color; value color=\"0\"@2"}});
}

TEST(AbbreviationParserNullKind, TakesNoValue) {
    expectOutcomes(
        "flag,f", vtNull,
        {
            {{"--flag"}, "0: flag@1", "option flag"},
            {{"--flag="}, "0: flag@1", "option flag"},
            {{"-f", "3"}, "0: flag@1 |3", "option flag"},
            {{"--no-flag"}, "not taken", ""},
            {{"--flag=3"}, "2: Option 'flag'does not requires a value in argument: '--flag=3' |--flag=3", ""},
            {{"-f 3", "4"}, "2: Option 'flag'does not requires a value in argument: '-f 3' |-f 3 |4", ""},
        });
}

TEST(AbbreviationParserParse, NamesTheFirstNameWhicheverWasTyped) {
    expectOutcomes("level,l", vtInt32,
                   {{{"-l", "3"}, "0: level@1=\"3\"@2", "option level; value level=\"3\"@2"}});
}

TEST(AbbreviationParserParse, KnowsNoOptionBeforeAnythingWasRecognized) {
    Recognition<AbbreviationParser> one;
    one.declare("level", vtInt32);
    for (const auto& [argument, outcome] :
         {std::pair{"--level=3", "2: Unknown option '--level=3' |--level=3"},
          std::pair{"level=3", "2: Unknown option 'level=3' |level=3"},
          std::pair{"", "2: Unknown option '' |"}}) {
        SCOPED_TRACE(argument);
        one.args = {argument};
        EXPECT_EQ(one.parse(), outcome);
        EXPECT_EQ(one.index, static_cast<unsigned long>(-1));
    }
}

TEST(AbbreviationParserParse, ThrowsWhereItLacksWhatRecognizeFound) {
    Recognition<AbbreviationParser> one;
    one.declare("verbose", vtBool);
    ASSERT_EQ(one.recognize({"--verbose"}), 0);
    one.args = {"-"};
    EXPECT_THROW(one.parse(), std::out_of_range) << "a shorter argument";
    one.args = {"--verbose"};
    std::vector<OptionDescription> none;
    EXPECT_THROW(one.recognizer.parse(one.args, &one.collector, none, one.index, one.message),
                 std::out_of_range)
        << "a shorter table";
    DecomposedName best("");
    ASSERT_EQ(one.recognizer.findBest({}, best, one.message), 1);
    EXPECT_THROW(one.parse(), std::out_of_range) << "no candidates";
    EXPECT_EQ(one.collector.stored, "");
    EXPECT_EQ(one.handler.events, "");
}

TEST(AbbreviationParserParse, PassesTheFailuresOfBindingOnAndRemovesNothing) {
    expectOutcomes(
        "level,l", vtInt32,
        {
            {{"-l", "abc", "x"},
             "2: Value validation problem in argument '-l': Option 'level' can not parse 'abc' value, "
             "requires a type 'integer' here. |-l |abc |x",
             "option level"},
        });
}

TEST(AbbreviationParserParse, PassesAVetoOnAndRemovesNothing) {
    Recognition<AbbreviationParser> one;
    one.declare("level,l", vtInt32);
    one.handler.refusedValues = {"4"};
    EXPECT_EQ(one.run({"-l", "3,4,5", "x"}),
              "1: Value '3,4,5' is not valid for option 'level' in argument '-l' |-l |3,4,5 |x");
    EXPECT_EQ(one.handler.events, "option level; value level=\"3\"@2; value level=\"4\"@3");
    EXPECT_EQ(one.index, 0U);
}

TEST(AbbreviationParserParse, IgnoresTheAnswerToTheOptionEvent) {
    Recognition<AbbreviationParser> one;
    one.declare("level", vtInt32);
    one.handler.optionAnswer = false;
    EXPECT_EQ(one.run({"--level=3"}), "0: level@1=\"3\"@2");
}

TEST(AbbreviationParserParse, WorksWithoutACollector) {
    Recognition<AbbreviationParser> one;
    one.declare("level", vtInt32);
    EXPECT_EQ(one.recognize({"--level=3", "x"}), 0);
    EXPECT_EQ(one.recognizer.parse(one.args, nullptr, one.registry.m_options, one.index, one.message), 0);
    EXPECT_EQ(one.args, Arguments{"x"});
    EXPECT_EQ(one.handler.events, "option level; value level=\"3\"@2");
}

/// Notes how many indices were taken when each event came.
class IndexWitness : public EventHandler {
public:
    explicit IndexWitness(const RelativePositions& relative) : m_relative(relative) {}

    bool onOptionParse(const char*) override {
        taken.push_back(m_relative.taken());
        return true;
    }

    bool onValueParse(const char*, const Value&) override {
        taken.push_back(m_relative.taken());
        return true;
    }

    std::vector<int> taken;

private:
    const RelativePositions& m_relative;
};

TEST(AbbreviationParserParse, TellsTheOptionBeforeItTakesAnIndexAndEachValueBehindItsOwn) {
    Recognition<AbbreviationParser> one;
    one.declare("level", vtInt32);
    IndexWitness witness(one.positions);
    AbbreviationParser recognizer(&witness, &one.garbage, 0);
    Arguments args = {"--level=3,4"};
    ASSERT_EQ(recognizer.recognize(args, one.registry.m_options, one.message), 0);
    ASSERT_EQ(recognizer.parse(args, &one.collector, one.registry.m_options, one.index, one.message), 0);
    EXPECT_EQ(witness.taken, (std::vector<int>{0, 2, 3}));
    EXPECT_EQ(one.collector.stored, "level@1=\"3\"@2,\"4\"@3");
}

TEST(AbbreviationParserParse, LetsTheExceptionOfAHandlerPassAndGoesOnBehindIt) {
    Recognition<AbbreviationParser> one;
    one.declare("name", vtString);
    one.handler.thrownAt = "bad";
    EXPECT_THROW(one.run({"--name", "good,bad", "x"}), std::runtime_error);
    EXPECT_EQ(one.args, (Arguments{"--name", "good,bad", "x"}));
    EXPECT_EQ(one.collector.stored, "");
    EXPECT_EQ(one.run({"--name=fine", "x"}), "0: name@4=\"fine\"@5 |x");
}

TEST(AbbreviationParserParse, SurvivesAHandlerThatDeclaresOptions) {
    Recognition<AbbreviationParser> one;
    one.declare("a-first-name-too-long-for-a-short-string", vtString);
    one.declare("level-with-a-name-too-long-for-a-short-string,l", vtInt32);
    DeclaringHandler handler(one.registry);
    AbbreviationParser recognizer(&handler, &one.garbage, 0);
    Arguments args = {"-l", "3,4", "x"};
    ASSERT_EQ(recognizer.recognize(args, one.registry.m_options, one.message), 0);
    ASSERT_EQ(recognizer.parse(args, &one.collector, one.registry.m_options, one.index, one.message), 0);
    EXPECT_EQ(one.collector.stored, "level-with-a-name-too-long-for-a-short-string@1=\"3\"@2,\"4\"@3");
    EXPECT_EQ(one.index, 1U);
    EXPECT_EQ(args, Arguments{"x"});
    EXPECT_EQ(one.registry.m_options.size(), 302U);
}

} // namespace
} // namespace tarv_3_3
