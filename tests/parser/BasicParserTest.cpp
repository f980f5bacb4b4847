#include "parser/BasicParser.h"

#include <gtest/gtest.h>

#include "parser/Parsing.h"

namespace tarv_3_3 {
namespace {

using Words = std::set<std::string>;

const OptionDescription& record(IOption& option) {
    return static_cast<const OptionDescription&>(option);
}

TEST(BasicParser, DeclaresWithEveryArgumentInItsPlace) {
    BasicParser parser(0);
    const auto expectRecord = [](IOption& declared, const Names& names, const char* description,
                                 das_variant_type_t type, const Topic& topic, OptionKind kind,
                                 const Words& tags) {
        SCOPED_TRACE(names.front());
        EXPECT_EQ(declared.m_status, 0);
        EXPECT_EQ(record(declared).m_names, names);
        EXPECT_EQ(record(declared).m_description, description);
        EXPECT_EQ(record(declared).m_type, type);
        EXPECT_EQ(record(declared).m_topic, topic);
        EXPECT_EQ(record(declared).m_kind, kind);
        EXPECT_EQ(record(declared).m_tags, tags);
    };
    expectRecord(parser.option("level,l", "How much.", vtInt32, "out:Output"), {"level", "l"}, "How much.",
                 vtInt32, {"out", "Output"}, Option, {});
    expectRecord(parser.action("build,b", "Builds.", vtNull, "main"), {"build", "b"}, "Builds.", vtNull,
                 {"main", ""}, Action, {"b", "build"});
    expectRecord(parser.modifier("jobs,j", "build,test", "How many.", vtUInt32, "main"), {"jobs", "j"},
                 "How many.", vtUInt32, {"main", ""}, Option, {"build", "test"});
}

TEST(BasicParser, GivesEveryDeclarationTheDefaultSeparatorAndItsGarbage) {
    for (const int flags : {0, 0x20}) {
        SCOPED_TRACE(flags);
        BasicParser parser(flags);
        const char separator = flags == 0 ? ',' : '\0';
        IOption* const declared[] = {&parser.option("a", "", vtString, "")};
        EXPECT_EQ(record(*declared[0]).m_tokenizer, separator);
        EXPECT_NE(record(*declared[0]).m_garbage, nullptr);
        EXPECT_EQ(record(parser.action("b", "", vtString, "")).m_tokenizer, separator);
        EXPECT_EQ(record(parser.modifier("c", "b", "", vtString, "")).m_tokenizer, separator);
    }
}

TEST(BasicParser, YieldsAPlaceholderForARefusedDeclaration) {
    BasicParser parser(0);
    parser.option("level,l", "", vtString, "");
    EXPECT_EQ(parser.option("l", "", vtString, "").m_status, 1);
    EXPECT_EQ(parser.action("l", "", vtString, "").m_status, 1);
    EXPECT_EQ(parser.modifier("l", "x", "", vtString, "").m_status, 1);
    EXPECT_EQ(parser.option("a,b,c,d", "", vtString, "").m_status, 1);
    EXPECT_STREQ(parser.getErrorDesc(), "");
}

TEST(BasicParser, KnowsADeclaredNameByRoleAndTopic) {
    BasicParser parser(0);
    parser.option("level,l", "", vtInt32, "out:Output").synonym("depth");
    parser.modifier("jobs", "build", "", vtInt32, "main");
    parser.action("build,b", "", vtNull, "main");
    parser.option("color", "", vtBool, "");
    const struct {
        const char* name;
        bool isAction;
        const char* topic;
        bool declared;
    } rows[] = {
        {"level", false, nullptr, true},
        {"l", false, nullptr, true},
        {"depth", false, nullptr, true},
        {"level", true, nullptr, false},
        {"jobs", false, nullptr, true},
        {"jobs", true, nullptr, false},
        {"build", true, nullptr, true},
        {"b", true, nullptr, true},
        {"build", false, nullptr, false},
        {"lev", false, nullptr, false},
        {"Level", false, nullptr, false},
        {"--level", false, nullptr, false},
        {"no-color", false, nullptr, false},
        {"", false, nullptr, false},
        {nullptr, false, nullptr, false},
        {nullptr, true, "main", false},
        {"level", false, "out", true},
        {"depth", false, "out", true},
        {"level", false, "out:Output", false},
        {"level", false, "Output", false},
        {"level", false, "main", false},
        {"level", false, "", false},
        {"color", false, "", true},
        {"color", false, "out", false},
        {"build", true, "main", true},
        {"build", true, "out", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.name != nullptr ? row.name : "null") + " under " +
                     (row.topic != nullptr ? row.topic : "any topic"));
        EXPECT_EQ(parser.isOptionDeclared(row.name, row.isAction, row.topic), row.declared);
    }
}

TEST(BasicParser, GoesOnLookingWhenTheTopicOfAMatchDiffers) {
    BasicParser parser(0);
    parser.option("first", "", vtInt32, "one").synonym("same");
    parser.option("second", "", vtInt32, "two").synonym("same");
    EXPECT_TRUE(parser.isOptionDeclared("same", false, "one"));
    EXPECT_TRUE(parser.isOptionDeclared("same", false, "two"));
    EXPECT_FALSE(parser.isOptionDeclared("same", false, "three"));
}

TEST(BasicParser, LooksAmongTheDeclarationsGiven) {
    const BasicParser parser(0);
    OptionDescription option;
    option.m_names = {"level"};
    option.m_kind = Option;
    EXPECT_TRUE(parser.isOptionDeclared("level", false, nullptr, {option}));
    EXPECT_FALSE(parser.isOptionDeclared("level", true, nullptr, {option}));
    EXPECT_FALSE(parser.isOptionDeclared("level", false, nullptr, {}));
}

TEST(BasicParser, HasAnEmptyErrorBeforeAnyFailure) {
    BasicParser parser(0);
    EXPECT_STREQ(parser.getErrorDesc(), "");
}

TEST(BasicParser, MakesEmptyResultsApartFromEachOther) {
    BasicParser parser(0);
    parser.option("level", "", vtString, "").defaultValue("7");
    IParseResult* first = nullptr;
    IParseResult* second = nullptr;
    EXPECT_EQ(parser.createResult(&first), 0);
    EXPECT_EQ(parser.createResult(&second), 0);
    EXPECT_NE(first, second);
    EXPECT_FALSE(first->present("level", 0, 2147483647));
    EXPECT_EQ(parser.parseArgsVector(1, nullptr, first), 0);
    EXPECT_TRUE(first->present("level", 0, 2147483647));
    EXPECT_FALSE(second->present("level", 0, 2147483647));
    first->destroy();
    second->destroy();
}

TEST(IsIntersected, TellsWhetherTwoSetsShareAnElement) {
    const BasicParser parser(0);
    const struct {
        Words a;
        Words b;
        bool intersected;
    } rows[] = {
        {{}, {}, false},
        {{"a"}, {}, false},
        {{}, {"a"}, false},
        {{"a"}, {"a"}, true},
        {{"a"}, {"A"}, false},
        {{"a"}, {"ab"}, false},
        {{"a", "b"}, {"b", "c"}, true},
        {{"a", "c"}, {"b", "d"}, false},
        {{"z"}, {"a", "b", "z"}, true},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(parser.isIntersected(row.a, row.b), row.intersected);
    }
}

} // namespace
} // namespace tarv_3_3
