#include <gtest/gtest.h>

#include "parser/BasicParser.h"

namespace tarv_3_3 {
namespace {

class OptionHelp : public testing::Test {
protected:
    BasicParser m_basic{0};
    IParser& m_parser = m_basic;
};

TEST_F(OptionHelp, SortsOptionsByNameAndPadsTheSynopsis) {
    m_parser.option("level,l", "How much to print.", vtInt32)
        .allowValue(1)
        .allowValue(2)
        .allowValue(3)
        .defaultValue(2);
    m_parser.option("color,c", "Print in colour.", vtBool).defaultValue(true);
    m_parser.option("Width", "How wide lines are.", vtUInt32);
    m_parser.option("help,h", "Print this.", vtNull);
    EXPECT_STREQ(m_parser.getDescription(), R"(-Width=<unsigned integer>     How wide lines are.
-c, -color (default) | -no-color
                              Print in colour.
-h, -help                     Print this.
-l, -level=1 | 2 | 3 (2)      How much to print.

)");
}

TEST_F(OptionHelp, WrapsDescriptionsAtColumn79) {
    m_parser.option("name", "123456789 123456789 123456789 123456789 123456789 and more\nand a new line",
                    vtNull);
    EXPECT_STREQ(m_parser.getDescription(),
                 R"(-name                         123456789 123456789 123456789 123456789 123456789
                              and more
                              and a new line

)");
}

TEST_F(OptionHelp, GivesASynopsisOf30CharactersALineOfItsOwn) {
    m_parser.option("a-name-of-just-28-characters", "Of 29 with its dash.", vtNull);
    m_parser.option("a-name-of-just--29-characters", "Of 30 with its dash.", vtNull);
    m_parser.option("a-name-of-just---30-characters", "Of 31 with its dash.", vtNull);
    EXPECT_STREQ(m_parser.getDescription(), R"(-a-name-of-just---30-characters
                              Of 31 with its dash.
-a-name-of-just--29-characters
                              Of 30 with its dash.
-a-name-of-just-28-characters Of 29 with its dash.

)");
}

TEST_F(OptionHelp, DropsAShortSynopsisWithoutDescriptionAndKeepsALongOne) {
    m_parser.option("short", "", vtNull);
    m_parser.option("a-name-of-just--29-characters", "", vtNull);
    m_parser.option("told", "Told.", vtNull);
    EXPECT_STREQ(m_parser.getDescription(), R"(-a-name-of-just--29-characters
-told                         Told.

)");
}

TEST_F(OptionHelp, LeavesOutPositionalOptions) {
    m_parser.option("file", "The files to read.", vtString).positional();
    m_parser.option("told", "Told.", vtNull);
    EXPECT_STREQ(m_parser.getDescription(), R"(-told                         Told.

)");
    EXPECT_STREQ(m_parser.getDescription("file"), "\n");
}

TEST_F(OptionHelp, IsEmptyWithoutAnyDeclaration) {
    EXPECT_STREQ(m_parser.getDescription(), "");
    EXPECT_STREQ(m_parser.getDescription(true), "");
}

TEST_F(OptionHelp, GroupsOptionsUnderTopicsInTheOrderOfFirstUse) {
    m_parser.option("zeta", "Under the network.", vtNull, "net:How to reach other machines.");
    m_parser.option("beta", "Without a topic.", vtNull);
    m_parser.option("alpha", "Under disk.", vtNull, "disk");
    m_parser.option("gamma", "Under the network again.", vtNull, "net:A second title is not used.");
    EXPECT_STREQ(m_parser.getDescription(), R"(net
 How to reach other machines.

-gamma                        Under the network again.
-zeta                         Under the network.

-beta                         Without a topic.

disk
-alpha                        Under disk.

)");
}

TEST_F(OptionHelp, WrapsATitleAtColumn80) {
    m_parser.option("a", "Told.", vtNull,
                    "net:123456789 123456789 123456789 123456789 123456789 123456789 123456789 "
                    "123456789 more");
    EXPECT_STREQ(m_parser.getDescription(), R"(net
 123456789 123456789 123456789 123456789 123456789 123456789 123456789 123456789
 more

-a                            Told.

)");
}

TEST_F(OptionHelp, GivesTheTitleOfTheUnnamedTopicWithoutAHeading) {
    m_parser.option("a", "Told.", vtNull, ":The options that matter.");
    EXPECT_STREQ(m_parser.getDescription(), R"( The options that matter.

-a                            Told.

)");
}

TEST_F(OptionHelp, ShowsATopicUnderWhichNothingFalls) {
    m_parser.option("a", "Told.", vtNull, "first:The first.");
    // Refused, since the name is taken; its topic stays.
    m_parser.option("a", "Refused.", vtNull, "second:The second.");
    m_parser.option("b", "Told as well.", vtNull, "third");
    EXPECT_STREQ(m_parser.getDescription(), R"(first
 The first.

-a                            Told.

second
 The second.


third
-b                            Told as well.

)");
}

TEST_F(OptionHelp, TellsTopicsApartByteByByte) {
    m_parser.option("a", "Under net.", vtNull, "net");
    m_parser.option("b", "Under Net.", vtNull, "Net");
    m_parser.option("c", "Under net and a blank.", vtNull, "net ");
    EXPECT_STREQ(m_parser.getDescription(), "net\n"
                                            "-a                            Under net.\n"
                                            "\n"
                                            "Net\n"
                                            "-b                            Under Net.\n"
                                            "\n"
                                            "net \n"
                                            "-c                            Under net and a blank.\n"
                                            "\n");
}

TEST_F(OptionHelp, ShowsTheHiddenTopicOnRequestAndThenNothingElse) {
    m_parser.option("trace", "For us.", vtNull, "tarv_hidden:Diagnostics.");
    m_parser.option("plain", "For all.", vtNull, "topic");
    EXPECT_STREQ(m_parser.getDescription(false), R"(topic
-plain                        For all.

)");
    EXPECT_STREQ(m_parser.getDescription(true), R"(tarv_hidden
 Diagnostics.

-trace                        For us.

)");
}

TEST_F(OptionHelp, HidesNoTopicThatOnlyBeginsLikeTheHiddenOne) {
    m_parser.option("a", "Told.", vtNull, "tarv_hidden2");
    EXPECT_STREQ(m_parser.getDescription(false), R"(tarv_hidden2
-a                            Told.

)");
    EXPECT_STREQ(m_parser.getDescription(true), "");
}

TEST_F(OptionHelp, ForOneNameKeepsEveryTopicAndShowsOnlyThatOption) {
    m_parser.option("one,o", "The one.", vtNull, "first:The first.");
    m_parser.option("two", "The other.", vtNull, "second");
    const char* const help = R"(first
 The first.

-o, -one                      The one.

second

)";
    EXPECT_STREQ(m_parser.getDescription("one"), help);
    EXPECT_STREQ(m_parser.getDescription("o"), help);
}

TEST_F(OptionHelp, FindsASwitchByItsNegatedName) {
    m_parser.option("color", "Print in colour.", vtBool);
    EXPECT_STREQ(m_parser.getDescription("no-color"), R"(-color | -no-color            Print in colour.

)");
}

TEST_F(OptionHelp, ForOneHiddenNameIsGivenOnlyAsHiddenHelp) {
    m_parser.option("trace", "For us.", vtNull, "tarv_hidden");
    m_parser.option("plain", "For all.", vtNull);
    EXPECT_STREQ(m_parser.getDescription("trace", false), "\n");
    EXPECT_STREQ(m_parser.getDescription("trace", true), R"(tarv_hidden
-trace                        For us.

)");
    EXPECT_STREQ(m_parser.getDescription("plain", true), "tarv_hidden\n\n");
}

TEST_F(OptionHelp, ForNoNameIsTheWholeHelp) {
    m_parser.option("a", "Told.", vtNull);
    EXPECT_STREQ(m_parser.getDescription(nullptr, false), R"(-a                            Told.

)");
}

TEST_F(OptionHelp, SaysThatANameIsNotAvailable) {
    m_parser.option("alpha", "Told.", vtNull);
    EXPECT_STREQ(m_parser.getDescription("x"),
                 R"(Help for x not available.Please use one of the following topics:
-alpha                        Told.

)");
    EXPECT_STREQ(m_parser.getDescription("alp"),
                 R"(Help for alp not available.Please use one of the following topics:
-alpha                        Told.

)");
    EXPECT_STREQ(m_parser.getDescription("x", true),
                 "Help for x not available.Please use one of the following topics:\n");
}

TEST_F(OptionHelp, StaysValidWhileTheParserLives) {
    m_parser.option("a", "Told.", vtNull);
    const char* const earlier = m_parser.getDescription();
    m_parser.option("b", "Told later.", vtNull);
    EXPECT_STREQ(m_parser.getDescription(), R"(-a                            Told.
-b                            Told later.

)");
    EXPECT_STREQ(earlier, R"(-a                            Told.

)");
}

TEST_F(OptionHelp, ChangesNeitherTheDeclarationsNorTheLastError) {
    m_parser.option("b", "Told second.", vtNull);
    m_parser.option("a", "Told first.", vtNull);
    m_basic.setLastError("An earlier failure.");
    const std::string once = m_parser.getDescription();
    EXPECT_EQ(m_parser.getDescription(), once);
    EXPECT_STREQ(m_parser.getErrorDesc(), "An earlier failure.");
}

TEST_F(OptionHelp, RendersTheListsThatItIsGiven) {
    OptionDescription here;
    here.m_names = {"here"};
    here.m_topic = {"place", "ignored"};
    here.m_description = "Under the first topic.";
    OptionDescription elsewhere = here;
    elsewhere.m_topic = {"elsewhere", ""};
    EXPECT_STREQ(m_basic.getDescription({{"place", "Where."}, {"empty", ""}}, {here, elsewhere}, false),
                 R"(place
 Where.

-here                         Under the first topic.

empty

)");
}

} // namespace
} // namespace tarv_3_3
