#include <gtest/gtest.h>

#include "reliability/Session.h"

namespace {

using namespace tarv_3_3;

void declare(Session& session) {
    open(session);
    session.parser->option("level,l", "", vtInt32).defaultValue(7);
    session.parser->option("name", "", vtString);
}

TEST(HostileLifetime, AResultTakesAThousandParses) {
    Session session;
    declare(session);
    for (int i = 0; i < 1000; ++i) {
        const std::string text = std::to_string(i);
        ASSERT_EQ(parse(session, {"-l=" + text, "--name=n" + text, "--", "p" + text}), parseOk);
    }
    const char* plain = nullptr;
    int status = session.result->getFirstArgument(&plain);
    Value level = session.result->get("level");
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(level.value, variant_t(i));
        ASSERT_EQ(status, valueFound);
        ASSERT_EQ(plain, "p" + std::to_string(i));
        level = session.result->next("level");
        status = session.result->getNextArgument(&plain);
    }
    EXPECT_EQ(level.status, valueMissing);
    EXPECT_EQ(status, valueMissing);
    EXPECT_STREQ(getLastValue(session.result, "name").text, "n999");
}

TEST(HostileLifetime, AParserTakesAThousandFailures) {
    Session session;
    declare(session);
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(parse(session, {"--level=x" + std::to_string(i)}), parseFailed);
    }
    EXPECT_STREQ(session.parser->getErrorDesc(),
                 "Value validation problem in argument '--level=x999': Option 'level' can not parse 'x999' "
                 "value, requires a type 'integer' here.");
    EXPECT_EQ(parseAndShow(session, {"--name=x"}, {"level", "name"}), "0 level=7 name=x");
}

TEST(HostileLifetime, AResultOutlivesItsParser) {
    Session session;
    declare(session);
    ASSERT_EQ(
        parse(session, {"--name=a name of some length,another", "--", "a plain argument of some length"}),
        parseOk);
    session.parser->destroy();
    session.parser = nullptr;
    EXPECT_TRUE(session.result->present("level"));
    EXPECT_STREQ(session.result->next("level").text, "7");
    EXPECT_EQ(stored(session, {"level", "l", "name"}),
              "level=7 l=7 name=a name of some length,another -- a plain argument of some length");
}

TEST(HostileLifetime, AValueOutlivesResultAndParser) {
    variant_t kept;
    {
        Session session;
        declare(session);
        ASSERT_EQ(parse(session, {"--name=a name of some length"}), parseOk);
        kept = session.result->get("name").value;
    }
    EXPECT_STREQ(kept.get<const char*>(), "a name of some length");
}

TEST(HostileLifetime, TextsHandedOutLiveAsLongAsTheirOwner) {
    Session session;
    declare(session);
    ASSERT_EQ(parse(session, {"--level=x"}), parseFailed);
    const char* const message = session.parser->getErrorDesc();
    const std::string copy = message;
    for (int i = 0; i < 1000; ++i) {
        parse(session, {"--level=y" + std::to_string(i)});
        session.parser->getErrorDesc();
    }
    EXPECT_EQ(message, copy);
}

TEST(HostileLifetime, ResultsOfTwoParsersDoNotMix) {
    Session first;
    Session second;
    declare(first);
    open(second);
    second.parser->option("level", "", vtString);
    ASSERT_EQ(parse(first, {"--level=1"}), parseOk);
    ASSERT_EQ(parse(second, {"--level=one"}), parseOk);
    ASSERT_EQ(parse(first, {"--level=2"}), parseOk);
    ASSERT_EQ(parse(second, {"--level=two"}), parseOk);
    const Value numberOne = first.result->get("level");
    const Value textOne = second.result->get("level");
    const Value numberTwo = first.result->next("level");
    const Value textTwo = second.result->next("level");
    EXPECT_EQ(numberOne.value, variant_t(1));
    EXPECT_EQ(textOne.value, variant_t("one"));
    EXPECT_EQ(numberTwo.value, variant_t(2));
    EXPECT_EQ(textTwo.value, variant_t("two"));
    EXPECT_LT(numberOne.position, textOne.position);
    EXPECT_LT(textOne.position, numberTwo.position);
    EXPECT_LT(numberTwo.position, textTwo.position);
}

TEST(HostileLifetime, AResultFilledByAParserThatDoesNotKnowItsOptionsIsRefused) {
    Session first;
    Session second;
    declare(first);
    open(second);
    second.parser->option("other", "", vtString);
    ASSERT_EQ(parse(first, {"--name=x"}), parseOk);
    EXPECT_EQ(second.parser->parseStream("--other=y", first.result), 1);
    EXPECT_EQ(stored(first, {"name", "other"}), "name=x other=y");
    EXPECT_EQ(parse(first, {"--name=z"}), 1);
    EXPECT_EQ(stored(first, {"name", "other"}), "name=x,z other=y");
}

TEST(HostileLifetime, AResultOfAnotherParserThatKnowsItsOptionsIsFilled) {
    Session first;
    Session second;
    declare(first);
    declare(second);
    ASSERT_EQ(parse(first, {"--name=x"}), parseOk);
    EXPECT_EQ(second.parser->parseStream("--name=y", first.result), parseOk);
    EXPECT_EQ(stored(first, {"name"}), "name=x,y");
}

TEST(HostileLifetime, AParseWithoutAResultStillHasAStatusAndAMessage) {
    Session session;
    declare(session);
    const char* const argv[] = {"host", "--name=x", "--", "plain", "--level=x"};
    EXPECT_EQ(session.parser->parseArgsVector(4, argv, nullptr), parseOk);
    EXPECT_EQ(session.parser->parseStream("--level=x", nullptr), parseFailed);
    EXPECT_STREQ(session.parser->getErrorDesc(),
                 "Value validation problem in argument '--level=x': Option 'level' can not parse 'x' value, "
                 "requires a type 'integer' here.");
}

TEST(HostileBuilders, EveryOneOnThePlaceholderHasNoEffect) {
    Session session;
    declare(session);
    IOption& placeholder = session.parser->option("level", "", vtString, "a topic");
    ASSERT_EQ(placeholder.m_status, declarationRefused);
    placeholder.synonym("ghost")
        .allowValue("x")
        .allowValue(3)
        .defaultValue("x")
        .tokenize(';')
        .positional()
        .tag("build,level");
    placeholder.synonym(nullptr).tag(nullptr).allowValue(variant_t()).defaultValue(variant_t());
    EXPECT_FALSE(session.parser->isOptionDeclared("ghost", false, nullptr));
    EXPECT_EQ(parseAndShow(session, {"--ghost=x", "dropped", "--level=3,4"}, {"ghost", "level", "name"}),
              "0 level=3,4");
    IOption& again = session.parser->option("one,two,three", "", vtString);
    EXPECT_EQ(&again, &placeholder);
    EXPECT_EQ(again.m_status, declarationRefused);
}

TEST(HostileBuilders, ADeclarationBehindAPlaceholderTakesNothingFromIt) {
    Session session;
    declare(session);
    session.parser->option("level", "", vtString).defaultValue("ghost").positional().allowValue("ghost");
    session.parser->option("fresh", "Help.", vtString);
    EXPECT_EQ(parseAndShow(session, {"dropped", "--fresh=a,b"}, {"fresh"}), "0 fresh=a,b");
    EXPECT_STREQ(session.parser->getDescription("fresh"), "-fresh=<string>               Help.\n\n");
}

TEST(HostileDeclarations, WithoutNamesOrTextsAreHarmless) {
    Session session;
    open(session);
    EXPECT_EQ(session.parser->option(nullptr, "", vtString).m_status, declarationRefused);
    EXPECT_EQ(session.parser->option("name", nullptr, vtString, nullptr).m_status, declarationStored);
    EXPECT_EQ(session.parser->modifier("other", nullptr, nullptr, vtString, nullptr).m_status,
              declarationStored);
    EXPECT_EQ(parseAndShow(session, {"--name=x", "--other=y"}, {"name", "other"}), "0 name=x other=y");
}

} // namespace
