#include <gtest/gtest.h>

#include <stdexcept>

#include "parser/BasicParser.h"

namespace tarv_3_3 {
namespace {

class ActionHelp : public testing::Test {
protected:
    BasicParser m_basic{0};
    IParser& m_parser = m_basic;
};

std::string namesOf(const std::vector<OptionDescription>& options) {
    std::string names;
    for (const OptionDescription& option : options) {
        names += (names.empty() ? "" : " ") + option.primaryName();
    }
    return names;
}

TEST_F(ActionHelp, ListsTheNamesOfTheActionsSortedByteByByte) {
    m_parser.option("verbose", "Left out.", vtBool);
    m_parser.action("test,t", "Left out.", vtNull);
    m_parser.action("build,b", "Left out.", vtNull, "topic:Left out.");
    m_parser.action("Zip", "Left out.", vtNull);
    EXPECT_STREQ(m_parser.getDescription(), "    Zip\n"
                                            "    build\n"
                                            "    test\n");
    EXPECT_STREQ(m_parser.getDescription(nullptr, false), "    Zip\n"
                                                          "    build\n"
                                                          "    test\n");
}

TEST_F(ActionHelp, ListsHiddenActionsOnRequestAndThenNoOthers) {
    m_parser.action("build", "Told.", vtNull);
    m_parser.action("selftest", "Hidden.", vtNull, "tarv_hidden");
    EXPECT_STREQ(m_parser.getDescription(false), "    build\n");
    EXPECT_STREQ(m_parser.getDescription(true), "    selftest\n");
}

TEST_F(ActionHelp, IsTheOptionHelpWhereNoActionPassesTheFilter) {
    m_parser.action("selftest", "Hidden.", vtNull, "tarv_hidden");
    m_parser.option("verbose", "Say more.", vtNull);
    EXPECT_STREQ(m_parser.getDescription(false), R"(-verbose                      Say more.

)");

    BasicParser other(0);
    IParser& parser = other;
    parser.action("build", "Told.", vtNull);
    parser.option("trace", "For us.", vtNull, "tarv_hidden");
    EXPECT_STREQ(parser.getDescription(true), R"(tarv_hidden
-trace                        For us.

)");
}

TEST_F(ActionHelp, ForOneActionIsItsEntry) {
    m_parser.action("build,b", "Make everything.", vtNull);
    m_parser.modifier("jobs,j", "build", "How many at a time.", vtInt32);
    EXPECT_STREQ(m_parser.getDescription("build"), R"(-b, -build                    Make everything.

)");
    EXPECT_STREQ(m_parser.getDescription("jobs"),
                 R"(-j, -jobs=<integer>           How many at a time.

)");
}

TEST_F(ActionHelp, FollowsTheTextThatANameIsNotAvailableWithTheActions) {
    m_parser.action("build", "Make everything.", vtNull);
    const char* const notAvailable = R"(Help for x not available.Please use one of the following topics:
    build
)";
    EXPECT_STREQ(m_parser.getDescription("x"), notAvailable);
    EXPECT_STREQ(m_parser.getActionModifiersDescription("x"), notAvailable);
    EXPECT_STREQ(m_parser.getErrorDesc(), "");
}

TEST_F(ActionHelp, FollowsTheTextThatANameIsNotAvailableWithHiddenHelpOnRequest) {
    m_parser.action("build", "Make everything.", vtNull);
    m_parser.action("selftest", "Hidden.", vtNull, "tarv_hidden");
    const char* const notAvailable = R"(Help for x not available.Please use one of the following topics:
    selftest
)";
    EXPECT_STREQ(m_parser.getDescription("x", true), notAvailable);
    EXPECT_STREQ(m_parser.getActionModifiersDescription("x", true), notAvailable);
}

class ModifierHelp : public ActionHelp {
protected:
    ModifierHelp() {
        m_parser.action("build,b", "Make everything.", vtNull);
        m_parser.action("test,t", "Run the tests.", vtNull);
        m_parser.action("clean", "Remove everything.", vtNull);
        m_parser.modifier("target", "build", "What to make.", vtString, "what:Choosing.");
        m_parser.modifier("jobs,j", "build,test", "How many at a time.", vtInt32);
        m_parser.modifier("filter", "t", "Which tests.", vtString, "what");
        m_parser.modifier("seed", "test", "For us.", vtInt32, "tarv_hidden");
        m_parser.option("verbose", "Say more.", vtBool).defaultValue(false);
        m_parser.option("log", "Where to write.", vtString, "what");
        m_parser.option("trace", "For us.", vtNull, "tarv_hidden");
    }
};

TEST_F(ModifierHelp, ShowsTheOptionsThatShareATagWithTheAction) {
    EXPECT_STREQ(m_parser.getActionModifiersDescription("build"),
                 R"(-j, -jobs=<integer>           How many at a time.

what
 Choosing.

-target=<string>              What to make.

)");
    EXPECT_STREQ(m_parser.getActionModifiersDescription("test"),
                 R"(-j, -jobs=<integer>           How many at a time.

what
 Choosing.

-filter=<string>              Which tests.

)");
}

TEST_F(ModifierHelp, ShowsHiddenModifiersOnRequest) {
    EXPECT_STREQ(m_parser.getActionModifiersDescription("test", true), R"(tarv_hidden
-seed=<integer>               For us.

)");
}

TEST_F(ModifierHelp, FindsTheActionByAnyOfItsNames) {
    EXPECT_STREQ(m_parser.getActionModifiersDescription("b"),
                 R"(-j, -jobs=<integer>           How many at a time.

what
 Choosing.

-target=<string>              What to make.

)");
}

TEST_F(ModifierHelp, IsEmptyForAnActionWithoutModifiers) {
    EXPECT_STREQ(m_parser.getActionModifiersDescription("clean"), "");
}

TEST_F(ModifierHelp, ForNoActionIsTheListOfActions) {
    EXPECT_STREQ(m_parser.getActionModifiersDescription(nullptr), "    build\n"
                                                                  "    clean\n"
                                                                  "    test\n");
}

TEST_F(ModifierHelp, ForAModifierShowsItsSiblingsWithoutItself) {
    EXPECT_STREQ(m_parser.getActionModifiersDescription("target"),
                 R"(-j, -jobs=<integer>           How many at a time.

what
 Choosing.


)");
}

TEST_F(ModifierHelp, CollectsModifiersInTheOrderDeclaredBehindWhatIsThere) {
    std::vector<OptionDescription> found(1);
    found.front().m_names = {"before"};
    m_basic.findActionModifiers(1, found);
    EXPECT_EQ(namesOf(found), "before jobs filter seed");
}

TEST_F(ModifierHelp, CollectsNoActionThatSharesATag) {
    m_parser.action("check", "Tagged.", vtNull).tag("build");
    std::vector<OptionDescription> found;
    m_basic.findActionModifiers(0, found);
    EXPECT_EQ(namesOf(found), "target jobs");
}

TEST_F(ModifierHelp, ThrowsForAPlaceBehindTheDeclarations) {
    std::vector<OptionDescription> found;
    EXPECT_THROW(m_basic.findActionModifiers(10, found), std::out_of_range);
}

TEST_F(ModifierHelp, ShowsTheOptionsWithoutTagsAsGlobalModifiers) {
    EXPECT_STREQ(m_parser.getGlobalModifiersDescription(), R"(-verbose | -no-verbose (default)
                              Say more.

what
 Choosing.

-log=<string>                 Where to write.

)");
    EXPECT_STREQ(m_parser.getGlobalModifiersDescription(true), R"(tarv_hidden
-trace                        For us.

)");
}

TEST_F(ModifierHelp, TellsActionsFromGlobalModifiers) {
    EXPECT_EQ(namesOf(m_basic.getGlobalActions()), "build test clean");
    EXPECT_EQ(namesOf(m_basic.getGlobalModifiers()), "verbose log trace");
}

TEST_F(ActionHelp, HasNoGlobalModifiersWhereEveryOptionIsTagged) {
    m_parser.action("build", "Make everything.", vtNull);
    m_parser.modifier("jobs", "build", "How many at a time.", vtInt32);
    m_parser.option("free", "Tagged freely.", vtNull).tag("anything");
    EXPECT_STREQ(m_parser.getGlobalModifiersDescription(), "");
}

TEST_F(ActionHelp, TakesAnActionWithoutNameAndTagsForNoGlobalModifier) {
    m_parser.action("", "Nameless.", vtNull);
    EXPECT_STREQ(m_parser.getGlobalModifiersDescription(), "");
}

} // namespace
} // namespace tarv_3_3
