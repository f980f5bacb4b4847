#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>

#include "reliability/Session.h"

namespace {

using namespace tarv_3_3;

/// Notes the events, then does what the test says.
struct ActingHandler final : EventHandler {
    bool onOptionParse(const char* name) override {
        events += std::string("option ") + name + ";";
        if (atOption) {
            atOption();
        }
        return true;
    }

    bool onValueParse(const char* name, const Value& value) override {
        events += std::string("value ") + name + "=" + value.text + ";";
        if (atValue) {
            atValue();
        }
        return true;
    }

    bool onUknownArgument(const char* argument) override {
        events += std::string("unknown ") + argument + ";";
        if (atUnknown) {
            atUnknown();
        }
        return true;
    }

    std::string events;
    std::function<void()> atOption;
    std::function<void()> atValue;
    std::function<void()> atUnknown;
};

/// Three handlers in the order in which they are called: that of their addresses.
struct HostileHandlers : testing::Test {
    HostileHandlers() {
        open(session);
        session.parser->option("level", "", vtInt32);
        session.parser->option("name", "", vtString);
    }

    void addAll() {
        for (ActingHandler& handler : handlers) {
            session.parser->addHandler(&handler);
        }
    }

    Session session;
    ActingHandler handlers[3];
};

TEST_F(HostileHandlers, ThatThrowAStandardExceptionEndTheParse) {
    addAll();
    for (std::function<void()> ActingHandler::*const event :
         {&ActingHandler::atOption, &ActingHandler::atValue, &ActingHandler::atUnknown}) {
        handlers[1] = ActingHandler();
        handlers[1].*event = [] { throw std::runtime_error("no"); };
        EXPECT_EQ(parse(session, {"unknown", "--level=3", "--name=x"}), parseUnidentified);
        EXPECT_STREQ(session.parser->getErrorDesc(), "Unidentified problem detected.");
        EXPECT_EQ(session.parser->parseStream("unknown\n--level=3", session.result), parseUnidentified);
    }
    EXPECT_EQ(stored(session, {"name"}), "");
    handlers[1] = ActingHandler();
    session.result->destroy();
    session.parser->createResult(&session.result);
    EXPECT_EQ(parseAndShow(session, {"--level=3", "--name=x"}, {"level", "name"}), "0 level=3 name=x");
}

TEST_F(HostileHandlers, ThatThrowSomethingElseReachTheCaller) {
    addAll();
    handlers[1].atValue = [] { throw 42; };
    EXPECT_THROW(parse(session, {"--level=3"}), int);
    EXPECT_THROW(session.parser->parseStream("--level=3", session.result), int);
    EXPECT_STREQ(session.parser->getErrorDesc(), "");
    EXPECT_EQ(stored(session, {"level"}), "");
    handlers[1].atValue = nullptr;
    EXPECT_EQ(parseAndShow(session, {"--level=3"}, {"level"}), "0 level=3");
}

TEST_F(HostileHandlers, ThatAreRemovedAndDestroyedInAnEventAreNotTouched) {
    auto doomed = std::make_unique<ActingHandler>();
    session.parser->addHandler(doomed.get());
    session.parser->addHandler(&handlers[0]);
    handlers[0].atOption = [&] {
        session.parser->removeHandler(doomed.get());
        doomed.reset();
    };
    EXPECT_EQ(parse(session, {"--level=3", "--name=x"}), parseOk);
    EXPECT_EQ(handlers[0].events, "option level;value level=3;option name;value name=x;");
}

TEST_F(HostileHandlers, ThatParseIntoTheSameResultAddToIt) {
    session.parser->addHandler(&handlers[0]);
    handlers[0].atOption = [&] {
        handlers[0].atOption = nullptr;
        EXPECT_EQ(parse(session, {"--name=inner", "--", "plain"}), parseOk);
    };
    EXPECT_EQ(parseAndShow(session, {"--level=3", "--name=outer"}, {"level", "name"}),
              "0 level=3 name=inner,outer -- plain");
}

TEST_F(HostileHandlers, ThatParseIntoAnotherResultLeaveThisOneAlone) {
    session.parser->addHandler(&handlers[0]);
    IParseResult* other = nullptr;
    session.parser->createResult(&other);
    handlers[0].atValue = [&] {
        handlers[0].atValue = nullptr;
        const char* const argv[] = {"host", "--level=x"};
        EXPECT_EQ(session.parser->parseArgsVector(2, argv, other), parseFailed);
    };
    EXPECT_EQ(parseAndShow(session, {"--level=3", "--name=outer"}, {"level", "name"}),
              "0 level=3 name=outer");
    EXPECT_FALSE(other->present("level"));
    EXPECT_FALSE(other->present("name"));
    other->destroy();
}

TEST_F(HostileHandlers, ThatParseInTheMiddleOfAListLeaveItWhole) {
    Session other;
    session.parser->createResult(&other.result);
    session.parser->addHandler(&handlers[0]);
    handlers[0].atValue = [&] {
        handlers[0].atValue = nullptr;
        const char* const argv[] = {"host", "--name=x,y"};
        EXPECT_EQ(session.parser->parseArgsVector(2, argv, other.result), parseOk);
    };
    EXPECT_EQ(parseAndShow(session, {"--name=a,b,c"}, {"name"}), "0 name=a,b,c");
    EXPECT_EQ(stored(other, {"name"}), "name=x,y");
}

TEST_F(HostileHandlers, ThatParseWithAnotherParserAreUndisturbed) {
    Session other;
    open(other);
    other.parser->option("level", "", vtString);
    session.parser->addHandler(&handlers[0]);
    handlers[0].atValue = [&] { EXPECT_EQ(parse(other, {"--level=text"}), parseOk); };
    EXPECT_EQ(parseAndShow(session, {"--level=3", "--level=4"}, {"level"}), "0 level=3,4");
    EXPECT_EQ(stored(other, {"level"}), "level=text,text");
}

TEST_F(HostileHandlers, ThatDeclareManyOptionsMoveTheTableUnharmed) {
    session.parser->addHandler(&handlers[0]);
    int declared = 0;
    const auto declareMany = [&] {
        for (int i = 0; i < 100; ++i) {
            const std::string name = "new-option-" + std::to_string(++declared);
            session.parser->option(name.c_str(), "", vtString);
        }
    };
    handlers[0].atOption = declareMany;
    handlers[0].atValue = declareMany;
    handlers[0].atUnknown = declareMany;
    EXPECT_EQ(
        parseAndShow(session, {"unknown", "--level=3,4", "--new-option-17=x"}, {"level", "new-option-17"}),
        "0 level=3,4 new-option-17=x");
}

TEST_F(HostileHandlers, ThatAskTheResultAndTheHelpGetAnswers) {
    session.parser->addHandler(&handlers[0]);
    std::string seen;
    handlers[0].atOption = [&] {
        seen += stored(session, {"level", "name"}) + "|" + session.parser->getDescription("level");
    };
    EXPECT_EQ(parse(session, {"--level=3", "--name=x"}), parseOk);
    EXPECT_EQ(seen, "|\nlevel=3|\n");
}

} // namespace
