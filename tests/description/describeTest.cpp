#include "tarv_3_3/description.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "parser/BasicParser.h"
#include "support/CapturedAssertions.h"
#include "support/RecordingHandler.h"

using namespace tarv_3_3;

namespace {

struct Releaser {
    void operator()(const Description* description) const { release(description); }
};

using Owned = std::unique_ptr<const Description, Releaser>;

std::string join(const char* const* texts, unsigned count) {
    std::string line;
    for (unsigned i = 0; i < count; ++i) {
        line.append(i == 0 ? "" : ",").append(texts[i]);
    }
    return line;
}

/// Everything that a declaration says, as one line.
std::string show(const Declaration& record) {
    std::string line = record.role == roleAction ? "action" : "option";
    line += " kind=" + std::to_string(record.kind) + " names=" + join(record.names, record.nameCount) +
            " text=" + record.text + " topic=" + record.topic + ":" + record.topicTitle +
            " tags=" + join(record.tags, record.tagCount) +
            " allowed=" + join(record.allowed, record.allowedCount) +
            " separator=" + std::to_string(record.separator) +
            " default=" + (record.defaultText != nullptr ? record.defaultText : "(none)");
    line += record.isNegatable != 0 ? " negatable" : "";
    line += record.isPositional == 0 ? "" : " positional=" + std::to_string(record.isPositional);
    line += record.isHidden != 0 ? " hidden" : "";
    for (unsigned i = 0; i < record.noteCount; ++i) {
        line.append(" ").append(record.notes[i].key).append(":").append(record.notes[i].value);
    }
    return line;
}

/// The first declaration of a parser.
std::string showFirst(BasicParser& parser) {
    const Owned description(describe(&parser));
    return show(declarationAt(*description, 0));
}

TEST(Describe, SaysOfAnEmptyParserThatNothingWasDeclared) {
    BasicParser parser(flagRejectUnknown | flagNoLists);
    const Owned description(describe(&parser));
    ASSERT_NE(description, nullptr);
    EXPECT_EQ(description->size, sizeof(Description));
    EXPECT_EQ(description->stride, sizeof(Declaration));
    EXPECT_EQ(description->flags, 0x22);
    EXPECT_EQ(description->declarationCount, 0U);
    EXPECT_EQ(description->ruleCount, 0U);
    EXPECT_EQ(description->readsOptionFiles, 0U);
    EXPECT_EQ(description->asksHandlers, 0U);
}

TEST(Describe, ShowsEveryFieldOfADeclaration) {
    BasicParser parser(0);
    parser.action("build,b", "Builds.", vtNull, "main:What to do");
    parser.modifier("jobs", "test,build", "How many.", vtInt32, "")
        .allowValue(1)
        .allowValue(-2)
        .defaultValue(1);
    parser.option("color", "", vtBool, "tarv_hidden").synonym("colour").tokenize(0);
    parser.option("files", "", vtString, "").positional().defaultValue("");
    parser.option("more", "", vtString, "").positional().tokenize(static_cast<char>(0xFE));
    const Owned description(describe(&parser));
    const char* const expected[] = {
        "action kind=17 names=build,b text=Builds. topic=main:What to do tags=b,build allowed= separator=44"
        " default=(none)",
        "option kind=6 names=jobs text=How many. topic=: tags=build,test allowed=1,-2 separator=44 default=1",
        "option kind=0 names=color,colour text= topic=tarv_hidden: tags= allowed= separator=0 default=(none)"
        " negatable hidden",
        "option kind=12 names=files text= topic=: tags= allowed= separator=44 default= positional=1",
        "option kind=12 names=more text= topic=: tags= allowed= separator=254 default=(none) positional=2",
    };
    ASSERT_EQ(description->declarationCount, 5U);
    for (unsigned i = 0; i < 5; ++i) {
        EXPECT_EQ(show(declarationAt(*description, i)), expected[i]);
    }
}

TEST(Describe, WritesValuesAsTheyAreTyped) {
    const struct {
        das_variant_type_t kind;
        variant_t value;
        const char* text;
    } rows[] = {
        {vtBool, true, "1"},
        {vtBool, false, "0"},
        {vtInt32, std::int32_t{-2147483647} - 1, "-2147483648"},
        {vtUInt32, std::uint32_t{4294967295U}, "4294967295"},
        {vtInt64, std::int64_t{-9000000000}, "-9000000000"},
        {vtUInt64, std::uint64_t{18446744073709551615U}, "18446744073709551615"},
        {vtDouble, 0.1, "0.1"},
        {vtDouble, 0.12345678901234568, "0.12345678901234568"},
        {vtDouble, -1.7976931348623157e308, "-1.7976931348623157e+308"},
        {vtDouble, 5e-324, "5e-324"},
        {vtString, "a text", "a text"},
        {vtNull, "ignored", nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text != nullptr ? row.text : "none");
        BasicParser parser(0);
        parser.option("x", "", row.kind, "").defaultValue(row.value);
        const Owned description(describe(&parser));
        EXPECT_STREQ(declarationAt(*description, 0).defaultText, row.text);
    }
}

TEST(Describe, HasAnEmptyTextForAnAllowedValueOfAnOptionThatTakesNone) {
    BasicParser parser(0);
    parser.option("x", "", vtNull, "").allowValue("a");
    const Owned description(describe(&parser));
    ASSERT_EQ(declarationAt(*description, 0).allowedCount, 1U);
    EXPECT_STREQ(declarationAt(*description, 0).allowed[0], "");
}

TEST(Describe, CallsTheAssertionHandlerForAValueOfAnotherKind) {
    const CapturedAssertions assertions;
    BasicParser parser(0);
    parser.option("x", "", vtString, "").defaultValue(3);
    EXPECT_EQ(showFirst(parser), "option kind=12 names=x text= topic=: tags= allowed= separator=44 default=");
    EXPECT_NE(assertions.expressions(), "");
}

TEST(Describe, LeavesRefusedDeclarationsOut) {
    BasicParser parser(0);
    parser.option("x", "", vtBool, "");
    parser.option("no-x", "", vtBool, "");
    const Owned description(describe(&parser));
    EXPECT_EQ(description->declarationCount, 1U);
}

TEST(Describe, EndsANameAtItsZeroByte) {
    BasicParser parser(0);
    parser.option("x,", "", vtNull, "");
    EXPECT_EQ(showFirst(parser),
              "option kind=17 names=x, text= topic=: tags= allowed= separator=44 default=(none)");
}

TEST(Describe, ShowsAPositionalOptionWithoutAName) {
    BasicParser parser(0);
    parser.option("", "", vtString, "").positional();
    EXPECT_EQ(showFirst(parser),
              "option kind=12 names= text= topic=: tags= allowed= separator=44 default=(none) positional=1");
}

TEST(Describe, IsACopyThatOutlivesItsParser) {
    auto parser = std::make_unique<BasicParser>(0);
    parser->option("level", "How much.", vtInt32, "").defaultValue(3);
    annotate(parser.get(), "level", "value", "N");
    const Owned description(describe(parser.get()));
    parser->option("later", "", vtNull, "");
    parser.reset();
    ASSERT_EQ(description->declarationCount, 1U);
    EXPECT_EQ(
        show(declarationAt(*description, 0)),
        "option kind=6 names=level text=How much. topic=: tags= allowed= separator=44 default=3 value:N");
}

TEST(Describe, ShowsNotesWithTheirDeclarationsAndRulesByPrimaryNames) {
    BasicParser parser(0);
    parser.option("a", "", vtNull, "").synonym("alpha");
    parser.option("b", "", vtNull, "");
    parser.option("c", "", vtNull, "");
    annotate(&parser, "b", "value", "FILE");
    annotate(&parser, "b", "seek.icon", "");
    addRule(&parser, ruleNeeds, "c,alpha");
    addRule(&parser, ruleRequired, "b");
    const Owned description(describe(&parser));
    EXPECT_EQ(declarationAt(*description, 0).noteCount, 0U);
    EXPECT_EQ(show(declarationAt(*description, 1)), "option kind=17 names=b text= topic=: tags= allowed="
                                                    " separator=44 default=(none) value:FILE seek.icon:");
    EXPECT_EQ(declarationAt(*description, 2).noteCount, 0U);
    ASSERT_EQ(description->ruleCount, 2U);
    EXPECT_EQ(description->rules[0].kind, 5);
    EXPECT_EQ(join(description->rules[0].names, description->rules[0].nameCount), "c,a");
    EXPECT_EQ(description->rules[1].kind, 0);
    EXPECT_EQ(join(description->rules[1].names, description->rules[1].nameCount), "b");
}

TEST(Describe, SaysWhetherOptionFilesAreReadAndHandlersAsked) {
    BasicParser parser(0);
    parser.addOptionFileOption("", "");
    parser.addHandler(nullptr);
    EXPECT_EQ(Owned(describe(&parser))->readsOptionFiles, 1U);
    EXPECT_EQ(Owned(describe(&parser))->asksHandlers, 0U);
    const RelativePositions relative;
    RecordingHandler handler(relative);
    parser.addHandler(&handler);
    EXPECT_EQ(Owned(describe(&parser))->asksHandlers, 1U);
    parser.removeHandler(&handler);
    EXPECT_EQ(Owned(describe(&parser))->asksHandlers, 0U);
}

TEST(DeclarationAt, StepsByTheStrideOfTheLibrary) {
    const struct Larger {
        Declaration known;
        long added[3];
    } records[2] = {{{}, {}}, {{}, {}}};
    Description description = {};
    description.stride = sizeof(Larger);
    description.declarations = &records[0].known;
    EXPECT_EQ(&declarationAt(description, 1), &records[1].known);
}

TEST(Release, IgnoresNull) {
    release(nullptr);
}

} // namespace
