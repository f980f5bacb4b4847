#include "recognition/PositionalOptionsParser.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "recognition/DeclaringHandler.h"
#include "recognition/Recognition.h"

namespace tarv_3_3 {
namespace {

using Arguments = std::vector<std::string>;

constexpr unsigned int dashIsNotPositional = 0x08;
constexpr unsigned int takesRest = 0x10;
constexpr unsigned int otherFlags = 0x02 | 0x04 | 0x20;

class Positional : public Recognition<PositionalOptionsParser> {
public:
    using Recognition::Recognition;

    /// The usual declarations: an option, then the positional one.
    void declareFiles() {
        declare("verbose,v", vtBool);
        declare("files,f", vtString).positional();
    }
};

TEST(PositionalOptionsParser, RanksBelowNamedOptions) {
    Positional positional;
    EXPECT_EQ(positional.recognizer.getPriority(), -100);
}

TEST(PositionalRecognize, RefusesEverythingWithoutAPositionalOption) {
    for (const unsigned int flags : {0U, dashIsNotPositional, takesRest, dashIsNotPositional | takesRest}) {
        Positional positional(flags);
        EXPECT_EQ(positional.recognize({"x"}), 1) << "nothing declared";
        positional.declare("files", vtString);
        for (const char* const argument : {"x", "", "-x", "--files", "\u2013x"}) {
            SCOPED_TRACE(argument);
            EXPECT_EQ(positional.recognize({argument}), 1);
        }
    }
}

TEST(PositionalRecognize, TakesEverythingWithAPositionalOption) {
    for (const unsigned int flags : {0U, takesRest, otherFlags}) {
        Positional positional(flags);
        positional.declareFiles();
        positional.message = "untouched";
        for (const char* const argument :
             {"file.txt", "", "-", "--", "-x", "--unknown", "--verbose", "\u2013x"}) {
            SCOPED_TRACE(argument);
            EXPECT_EQ(positional.recognize({argument, "next"}), 0);
            EXPECT_EQ(positional.message, "untouched");
            EXPECT_EQ(positional.args, (Arguments{argument, "next"}));
        }
    }
}

TEST(PositionalRecognize, RefusesAHyphenInFrontUnderTheFlag) {
    for (const unsigned int flags : {dashIsNotPositional, dashIsNotPositional | takesRest | otherFlags}) {
        Positional positional(flags);
        positional.declareFiles();
        for (const char* const argument : {"--unknown", "-x", "-", "--"}) {
            SCOPED_TRACE(argument);
            EXPECT_EQ(positional.recognize({argument}), 1);
        }
        for (const char* const argument : {"file.txt", "", "\u2013x", "a-b"}) {
            SCOPED_TRACE(argument);
            EXPECT_EQ(positional.recognize({argument}), 0);
        }
    }
}

TEST(PositionalRecognize, ThrowsWithoutArgumentsUnderTheFlag) {
    Positional positional(dashIsNotPositional);
    positional.declareFiles();
    EXPECT_THROW(positional.recognize({}), std::out_of_range);
}

TEST(PositionalParse, ConsumesOneArgument) {
    for (const unsigned int flags : {0U, dashIsNotPositional, otherFlags}) {
        Positional positional(flags);
        positional.declareFiles();
        EXPECT_EQ(positional.run({"a", "b", "--d"}), "0: files@1=\"a\"@2 |b |--d");
        EXPECT_EQ(positional.index, 1U);
        EXPECT_EQ(positional.parse(), "0: files@1=\"a\"@2 files@3=\"b\"@4 |--d");
    }
}

TEST(PositionalParse, ConsumesEverythingUnderTheFlag) {
    for (const unsigned int flags : {takesRest, takesRest | dashIsNotPositional}) {
        Positional positional(flags);
        positional.declareFiles();
        EXPECT_EQ(positional.run({"a", "b", "--d"}), "0: files@1=\"a\"@2 files@3=\"b\"@4 files@5=\"--d\"@6");
        EXPECT_EQ(positional.index, 1U);
        EXPECT_EQ(positional.handler.events, "option verbose; value files=\"a\"@2; option verbose; "
                                             "value files=\"b\"@4; option verbose; value files=\"--d\"@6");
    }
}

TEST(PositionalParse, TakesTheArgumentWhole) {
    const struct {
        const char* argument;
        const char* outcome;
    } rows[] = {
        {"--level=3", "0: files@1=\"--level=3\"@2"},
        {"-x", "0: files@1=\"-x\"@2"},
        {"name value", "0: files@1=\"name value\"@2"},
        {" a=b ", "0: files@1=\" a=b \"@2"},
        {"\u2013x", "0: files@1=\"\u2013x\"@2"},
        {"--", "0: files@1=\"--\"@2"},
        {"a,,b", "0: files@1=\"a\"@2,\"b\"@3"},
        {"", "0: files@1"},
        {",", "2: No value parsed in argument ',' for option 'files' |,"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.argument);
        Positional positional;
        positional.declareFiles();
        EXPECT_EQ(positional.run({row.argument}), row.outcome);
    }
}

TEST(PositionalParse, AnnouncesTheFirstDeclarationAndBindsToThePositionalOption) {
    Positional positional;
    positional.declareFiles();
    EXPECT_EQ(positional.run({"x.txt"}), "0: files@1=\"x.txt\"@2");
    EXPECT_EQ(positional.handler.events, "option verbose; value files=\"x.txt\"@2");
}

TEST(PositionalParse, AnnouncesTheOptionItselfWhenItIsTheFirstDeclaration) {
    Positional positional;
    positional.declare("files", vtString).positional();
    positional.declare("verbose", vtBool);
    EXPECT_EQ(positional.run({"x.txt"}), "0: files@1=\"x.txt\"@2");
    EXPECT_EQ(positional.handler.events, "option files; value files=\"x.txt\"@2");
    EXPECT_EQ(positional.index, 0U);
}

TEST(PositionalParse, BindsToTheFirstOfSeveralPositionalOptions) {
    Positional positional(takesRest);
    positional.declare("verbose", vtBool);
    positional.declare("files", vtString).positional();
    positional.declare("others", vtString).positional();
    EXPECT_EQ(positional.run({"a", "b"}), "0: files@1=\"a\"@2 files@3=\"b\"@4");
    EXPECT_EQ(positional.index, 1U);
}

TEST(PositionalParse, StoresAnEmptyArgumentAsAnOccurrenceWithoutValue) {
    Positional positional(takesRest);
    positional.declareFiles();
    EXPECT_EQ(positional.run({"a", "", "b"}), "0: files@1=\"a\"@2 files@3 files@4=\"b\"@5");
    EXPECT_EQ(positional.handler.events,
              "option verbose; value files=\"a\"@2; option verbose; option verbose; "
              "value files=\"b\"@5");
}

TEST(PositionalParse, ConvertsToTheKindOfTheOption) {
    Positional positional;
    positional.declare("level", vtInt32).positional();
    EXPECT_EQ(positional.run({"5"}), "0: level@1=\"5\"@2");
    EXPECT_TRUE(positional.collector.values.at(0).value == variant_t(std::int32_t{5}));
}

TEST(PositionalParse, RefusesWhatDoesNotConvert) {
    Positional positional;
    positional.declare("level", vtInt32).positional();
    EXPECT_EQ(
        positional.run({"abc", "5"}),
        "2: Value validation problem in argument 'abc': Option 'level' can not parse 'abc' value, requires a "
        "type 'integer' here. |abc |5");
    EXPECT_EQ(positional.handler.events, "option level");
}

TEST(PositionalParse, BindsOnlyOneAndZeroToASwitch) {
    Positional positional(takesRest);
    positional.declare("verbose", vtBool).positional();
    EXPECT_EQ(
        positional.run({"1", "0", "--verbose"}),
        "2: verbose@1=\"1\"@2 verbose@3=\"0\"@4Value validation problem in argument '--verbose': Option "
        "'verbose' can not parse '--verbose' value, requires a type 'undefined' here. |--verbose");
}

TEST(PositionalParse, KeepsWhatItTookBeforeAFailure) {
    Positional positional(takesRest);
    positional.declare("level", vtInt32).positional();
    EXPECT_EQ(positional.run({"1", "2", "abc", "4"}),
              "2: level@1=\"1\"@2 level@3=\"2\"@4Value validation problem in argument 'abc': Option 'level' "
              "can not "
              "parse 'abc' value, requires a type 'integer' here. |abc |4");
    EXPECT_EQ(positional.handler.events,
              "option level; value level=\"1\"@2; option level; value level=\"2\"@4; option level");
    EXPECT_EQ(positional.index, 0U);
}

TEST(PositionalParse, PassesAVetoOn) {
    Positional positional(takesRest);
    positional.declareFiles();
    positional.handler.refusedValues = {"b"};
    EXPECT_EQ(positional.run({"a", "b", "c"}),
              "1: files@1=\"a\"@2Value 'b' is not valid for option 'files' in argument 'b' |b |c");
}

TEST(PositionalParse, IgnoresTheAnswerToTheOptionEvent) {
    Positional positional;
    positional.declareFiles();
    positional.handler.optionAnswer = false;
    EXPECT_EQ(positional.run({"x"}), "0: files@1=\"x\"@2");
}

TEST(PositionalParse, WorksWithoutACollector) {
    Positional positional(takesRest);
    positional.declareFiles();
    ASSERT_EQ(positional.recognize({"a", "b"}), 0);
    EXPECT_EQ(positional.recognizer.parse(positional.args, nullptr, positional.registry.m_options,
                                          positional.index, positional.message),
              0);
    EXPECT_EQ(positional.args, Arguments{});
    EXPECT_EQ(positional.positions.taken(), 4);
}

TEST(PositionalParse, SurvivesAHandlerThatDeclaresOptions) {
    Positional positional(takesRest);
    positional.declare("a-first-name-too-long-for-a-short-string", vtBool);
    positional.declare("files-with-a-name-too-long-for-a-short-string", vtString).positional();
    DeclaringHandler handler(positional.registry);
    PositionalOptionsParser recognizer(&handler, &positional.garbage, takesRest);
    Arguments args = {"a", "b,c"};
    ASSERT_EQ(recognizer.parse(args, &positional.collector, positional.registry.m_options, positional.index,
                               positional.message),
              0);
    EXPECT_EQ(positional.collector.stored, "files-with-a-name-too-long-for-a-short-string@1=\"a\"@2 "
                                           "files-with-a-name-too-long-for-a-short-string@3=\"b\"@4,\"c\"@5");
    EXPECT_EQ(args, Arguments{});
    EXPECT_EQ(positional.registry.m_options.size(), 502U);
}

} // namespace
} // namespace tarv_3_3
