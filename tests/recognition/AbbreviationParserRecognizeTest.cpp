#include <gtest/gtest.h>

#include "recognition/AbbreviationParser.h"
#include "recognition/Recognition.h"

namespace tarv_3_3 {
namespace {

class AbbreviationParserRecognize : public testing::Test, protected Recognition<AbbreviationParser> {};

TEST_F(AbbreviationParserRecognize, RanksAbovePositionalArguments) {
    EXPECT_EQ(recognizer.getPriority(), -10);
}

TEST_F(AbbreviationParserRecognize, TakesWhatBeginsWithAnyDashAndNamesAnOption) {
    declare("level", vtInt32);
    for (const char* const argument :
         {"--level", "-level", "--level=3", "--level 3", "-l", "--lev=", "\u2012level", "\u2013level",
          "\u2014level", "\u2015level", "\u2053level", "\u2014-level", "-\u2013level", "\u2013\u2053lev"}) {
        SCOPED_TRACE(argument);
        EXPECT_EQ(recognize({argument}), 0);
        EXPECT_EQ(message, "");
        EXPECT_EQ(args, std::vector<std::string>{argument});
    }
}

TEST_F(AbbreviationParserRecognize, RefusesWhatNamesNoOption) {
    declare("level", vtInt32);
    for (const char* const argument :
         {"", "-", "x", "l", "level", "level=3", "x-level", "=--level", " --level", "\u2212level", "--zzz",
          "--levels", "--Level", "--level-x", "--no-level"}) {
        SCOPED_TRACE(argument);
        EXPECT_EQ(recognize({argument}), 1);
        EXPECT_EQ(message, "");
    }
}

TEST_F(AbbreviationParserRecognize, RefusesEverythingWithoutDeclarations) {
    for (const char* const argument : {"--level", "--", "-", ""}) {
        SCOPED_TRACE(argument);
        EXPECT_EQ(recognize({argument}), 1);
    }
}

TEST_F(AbbreviationParserRecognize, TakesAnEmptyNameWhenSomeNameIsASingleWord) {
    declare("level", vtInt32);
    for (const auto& [argument, outcome] :
         {std::pair{"--", "2: Unknown option '--' |--"}, std::pair{"--=3", "2: Unknown option '--=3' |--=3"},
          std::pair{"-- 3", "2: Unknown option '-- 3' |-- 3"}, std::pair{"-=", "2: Unknown option '-=' |-="},
          std::pair{"\u2013", "2: Unknown option '\u2013' |\u2013"}}) {
        SCOPED_TRACE(argument);
        EXPECT_EQ(run({argument}), outcome);
    }
}

TEST_F(AbbreviationParserRecognize, RefusesAnEmptyNameWhenEveryNameHasMoreWords) {
    declare("output-file", vtString);
    for (const char* const argument : {"--", "--=3", "\u2013"}) {
        SCOPED_TRACE(argument);
        EXPECT_EQ(recognize({argument}), 1);
    }
}

TEST_F(AbbreviationParserRecognize, ReportsAnEmptyNameAsUnknownThoughItIsAmbiguousToo) {
    declare("level", vtInt32);
    declare("mode", vtString);
    EXPECT_EQ(recognize({"--"}), 0);
    EXPECT_EQ(message, "Ambiguous option, possible options are: 'level', 'mode'");
    EXPECT_EQ(parse(), "2: Unknown option '--' |--");
}

TEST_F(AbbreviationParserRecognize, KeepsTheThirdDashAsAnEmptyFirstWord) {
    declare("xray", vtBool);
    EXPECT_EQ(run({"---x"}), "2: Unknown option '---x' |---x") << "the empty word begins \"no\"";
    EXPECT_EQ(run({"---x=1"}), "2: Unknown option '---x=1' |---x=1");
    EXPECT_EQ(run({"---y"}), "not taken");
}

TEST_F(AbbreviationParserRecognize, RefusesAThirdDashWithoutTwoWordNames) {
    declare("xray", vtString);
    EXPECT_EQ(run({"---x"}), "not taken");
}

TEST_F(AbbreviationParserRecognize, ReportsANameDeclaredWithADashAsUnknown) {
    declare("-x", vtInt32);
    EXPECT_EQ(run({"---x"}), "2: Unknown option '---x' |---x");
    EXPECT_EQ(run({"--x=3"}), "not taken");
}

TEST_F(AbbreviationParserRecognize, MatchesEmptyWordsInsideANameAsPrefixes) {
    declare("output-file", vtString);
    EXPECT_EQ(run({"--o-=x"}), "0: output-file@1=\"x\"@2");
    EXPECT_EQ(run({"--output-=y"}), "0: output-file@1=\"x\"@2 output-file@3=\"y\"@4");
    EXPECT_EQ(run({"--o--f=x"}), "not taken");
}

TEST_F(AbbreviationParserRecognize, SetsTheIndexOfTheOptionItFound) {
    declare("level", vtInt32);
    declare("verbose,v", vtBool).synonym("talkative");
    for (const char* const argument : {"--verb", "-v", "--talk", "--no-talk"}) {
        SCOPED_TRACE(argument);
        index = 77;
        run({argument});
        EXPECT_EQ(index, 1U);
    }
    run({"--level=3"});
    EXPECT_EQ(index, 0U);
}

TEST_F(AbbreviationParserRecognize, ForgetsTheOptionItFoundBeforeWhenItFindsNone) {
    declare("verbose", vtBool);
    EXPECT_EQ(recognize({"--verbose"}), 0);
    EXPECT_EQ(recognize({"---x"}), 1);
    EXPECT_EQ(parse(), "2: Unknown option '---x' |---x");
    EXPECT_EQ(index, static_cast<unsigned long>(-1));
}

TEST_F(AbbreviationParserRecognize, ForgetsTheArgumentThatItTookBeforeWhenItRefusesOneUncut) {
    declare("level", vtInt32);
    for (const auto& [argument, outcome] :
         {std::pair{"level=3", "2: Unknown option 'level=3' |level=3"},
          std::pair{"-", "2: Unknown option '-' |-"}, std::pair{"", "2: Unknown option '' |"}}) {
        SCOPED_TRACE(argument);
        EXPECT_EQ(recognize({"--level=3"}), 0);
        EXPECT_EQ(recognize({argument}), 1);
        EXPECT_EQ(parse(), outcome);
    }
}

TEST_F(AbbreviationParserRecognize, SeesWhatWasDeclaredSinceTheLastArgument) {
    IOption& level = declare("level", vtInt32);
    EXPECT_EQ(recognize({"--degree"}), 1);
    level.synonym("degree");
    EXPECT_EQ(recognize({"--degree"}), 0);
    EXPECT_EQ(recognize({"--verbose"}), 1);
    declare("verbose", vtBool);
    EXPECT_EQ(run({"--verbose"}), "0: verbose@1=\"1\"@2");
    EXPECT_EQ(index, 1U);
}

TEST_F(AbbreviationParserRecognize, LooksAtTheTableThatItIsGiven) {
    declare("level", vtInt32);
    Recognition<AbbreviationParser> other;
    other.declare("mode", vtString);
    EXPECT_EQ(recognize({"--level"}), 0);
    EXPECT_EQ(recognizer.recognize(args, other.registry.m_options, message), 1);
    EXPECT_EQ(recognizer.recognize(args, registry.m_options, message), 0);
}

TEST(AbbreviationParserFirstByte, OfANameMayBeAnyThatANameCanHave) {
    const std::string noName = " \t\n\v\f\r=,-";
    for (int byte = 1; byte < 256; ++byte) {
        if (noName.find(static_cast<char>(byte)) != std::string::npos) {
            continue;
        }
        SCOPED_TRACE(byte);
        const std::string name = std::string(1, static_cast<char>(byte)) + "xy";
        Recognition<AbbreviationParser> one;
        one.declare(name.c_str(), vtBool);
        EXPECT_EQ(one.run({"--" + name.substr(0, 1)}), "0: " + name + "@1=\"1\"@2");
        one.collector.stored.clear();
        EXPECT_EQ(one.run({"--no-" + name}), "0: " + name + "@3=\"0\"@4");
        EXPECT_EQ(one.run({"--="}), "2: " + name + "@3=\"0\"@4Unknown option '--=' |--=");
    }
}

TEST(AbbreviationParserFirstByte, MayBelongToADashThatIsNotAscii) {
    Recognition<AbbreviationParser> one;
    one.declare("\u2013level", vtInt32);
    EXPECT_EQ(one.run({"--\u2013level=3"}), "0: \u2013level@1=\"3\"@2");
    EXPECT_EQ(one.run({"-\u2014\u2013l=4"}), "0: \u2013level@1=\"3\"@2 \u2013level@3=\"4\"@4");
    EXPECT_EQ(one.run({"-\u2013level=5"}), "not taken");
}

struct NamedRow {
    std::vector<const char*> strings;
    std::vector<const char*> switches;
    const char* argument;
    const char* outcome;
};

// Options of the string kind are declared first, then switches.
void expectOutcomes(const std::vector<NamedRow>& rows) {
    for (const NamedRow& row : rows) {
        SCOPED_TRACE(row.argument);
        Recognition<AbbreviationParser> one;
        for (const char* const names : row.strings) {
            one.declare(names, vtString);
        }
        for (const char* const names : row.switches) {
            one.declare(names, vtBool);
        }
        EXPECT_EQ(one.run({row.argument}), row.outcome);
    }
}

TEST(AbbreviationParserScore, IsTwoForAFullWordAndOneForAPrefix) {
    expectOutcomes({
        {{"verbose", "v"}, {}, "-v=x", "0: v@1=\"x\"@2"},
        {{"v", "verbose"}, {}, "-v=x", "0: v@1=\"x\"@2"},
        {{"verbose", "version"}, {}, "--verb=x", "0: verbose@1=\"x\"@2"},
        {{"verbose", "version"}, {}, "--version=x", "0: version@1=\"x\"@2"},
        {{"ver", "verbose", "version"}, {}, "--ver=x", "0: ver@1=\"x\"@2"},
        {{"out-file", "output-file"}, {}, "--out-f=x", "0: out-file@1=\"x\"@2"},
        {{"output-file", "out-files"},
         {},
         "--out-file=x",
         "2: Ambiguous option 'out-file' in argument: '--out-file=x', could be: 'output-file', 'out-files' "
         "|--out-file=x"},
        {{"output-f", "out-file"},
         {},
         "--out-f=x",
         "2: Ambiguous option 'out-f' in argument: '--out-f=x', could be: 'output-f', 'out-file' |--out-f=x"},
        {{"a-bb-cc", "aa-b-c"}, {}, "--a-b-c=x", "0: aa-b-c@1=\"x\"@2"},
    });
}

TEST(AbbreviationParserAmbiguity, ListsTheCandidatesInDeclarationOrder) {
    expectOutcomes({
        {{"verbose", "version"},
         {},
         "--ver",
         "2: Ambiguous option 'ver' in argument: '--ver', could be: 'verbose', 'version' |--ver"},
        {{"version", "verbose"},
         {},
         "--ver",
         "2: Ambiguous option 'ver' in argument: '--ver', could be: 'version', 'verbose' |--ver"},
        {{"vc", "vb,va"},
         {"vd"},
         "-v=1",
         "2: Ambiguous option 'v' in argument: '-v=1', could be: 'vc', 'vb', 'va', 'vd' |-v=1"},
        {{"aa-b", "a-bb"},
         {},
         "\u2013a-b x",
         "2: Ambiguous option 'a-b' in argument: '\u2013a-b x', could be: 'aa-b', 'a-bb' |\u2013a-b x"},
    });
}

TEST(AbbreviationParserAmbiguity, IncludesTwoNamesOfOneOption) {
    expectOutcomes({
        {{"color,colour"},
         {},
         "--col=x",
         "2: Ambiguous option 'col' in argument: '--col=x', could be: 'color', 'colour' |--col=x"},
        {{"color,colour"}, {}, "--color=x", "0: color@1=\"x\"@2"},
        {{"color,colour"}, {}, "--colou=x", "0: color@1=\"x\"@2"},
        {{},
         {"color,colour"},
         "--no-col",
         "2: Ambiguous option 'no-col' in argument: '--no-col', could be: 'no-color', 'no-colour' |--no-col"},
        {{},
         {"color,colour"},
         "--col",
         "2: Ambiguous option 'col' in argument: '--col', could be: 'color', 'colour' |--col"},
    });
}

TEST(AbbreviationParserAmbiguity, PutsTheNegatedFormBehindEachNameOfASwitch) {
    Recognition<AbbreviationParser> one;
    one.declare("cd,not-cc", vtBool);
    one.declare("nob-ca", vtString);
    EXPECT_EQ(one.run({"--n-c"}),
              "2: Ambiguous option 'n-c' in argument: '--n-c', could be: 'no-cd', 'not-cc', 'nob-ca' |--n-c");
}

TEST(AbbreviationParserAmbiguity, IncludesANameThatEqualsANegatedForm) {
    expectOutcomes({
        {{"no-color"},
         {"color"},
         "--no-color",
         "2: Ambiguous option 'no-color' in argument: '--no-color', could be: 'no-color', 'no-color' "
         "|--no-color"},
        {{"no-color"}, {"color"}, "--color", "0: color@1=\"1\"@2"},
    });
}

TEST(AbbreviationParserAmbiguity, EndsWithTheNextRecognize) {
    Recognition<AbbreviationParser> one;
    one.declare("verbose", vtBool);
    one.declare("version", vtBool);
    EXPECT_EQ(one.run({"--ver"}),
              "2: Ambiguous option 'ver' in argument: '--ver', could be: 'verbose', 'version' |--ver");
    EXPECT_EQ(one.run({"--vers"}), "0: version@1=\"1\"@2");
    EXPECT_EQ(one.index, 1U);
    EXPECT_EQ(one.run({"--verb"}), "0: version@1=\"1\"@2 verbose@3=\"1\"@4");
    EXPECT_EQ(one.index, 0U);
}

TEST(AbbreviationParserAmbiguity, ForgetsTheOptionThatWasFoundBefore) {
    Recognition<AbbreviationParser> one;
    one.declare("verbose", vtBool);
    one.declare("version", vtBool);
    one.run({"--version"});
    EXPECT_EQ(one.index, 1U);
    one.run({"--ver"});
    EXPECT_EQ(one.index, static_cast<unsigned long>(-1));
}

TEST(AbbreviationParserAmbiguity, SendsNoEventAndTakesNoIndex) {
    Recognition<AbbreviationParser> one;
    one.declare("verbose", vtBool);
    one.declare("version", vtBool);
    EXPECT_EQ(one.recognize({"--ver", "x"}), 0);
    EXPECT_EQ(one.message, "Ambiguous option, possible options are: 'verbose', 'version'");
    one.parse();
    EXPECT_EQ(one.handler.events, "");
    EXPECT_EQ(one.positions.taken(), 0);
}

} // namespace
} // namespace tarv_3_3
