#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

#include "reliability/ReusedMemory.h"
#include "reliability/Session.h"
#include "support/roundsOf.h"

// Every text that the library hands out says the same until its owner is destroyed, whatever happens in
// between. A text of up to 15 bytes lies in its string, a longer one in a block of its own, and a very long
// one in no block that anything else shares.

namespace {

using namespace tarv_3_3;

/// Texts that were handed out, with what they said at that moment.
class HandedOut {
public:
    const char* operator()(const char* text) {
        if (text != nullptr) {
            m_texts.push_back({text, text});
        }
        return text;
    }

    std::size_t size() const { return m_texts.size(); }

    void expectUnchanged() const {
        for (const Text& text : m_texts) {
            EXPECT_EQ(std::string(text.pointer), text.copy);
        }
    }

private:
    struct Text {
        const char* pointer;
        std::string copy;
    };
    std::vector<Text> m_texts;
};

const std::size_t lengths[] = {1, 15, 16, 40, 20000};

/// Parses and asks until whatever the result holds had to move.
void growResult(Session& session) {
    for (int i = 0; i < 300; ++i) {
        const std::string text = std::to_string(i);
        ASSERT_EQ(parse(session, {"--name=" + text + "," + std::string(20, 'y') + text, "--other=" + text,
                                  "--", "plain" + text, std::string(20, 'z') + text}),
                  parseOk);
        session.result->get("name", i);
        const char* plain = nullptr;
        session.result->getFirstArgument(&plain);
        session.result->getNextArgument(&plain);
    }
}

/// The same for the parser.
void growParser(Session& session) {
    const unsigned rounds = roundsOf(300);
    for (unsigned i = 0; i < rounds; ++i) {
        const std::string text = std::to_string(i);
        const IOption& option = session.parser->option(("new" + text).c_str(), ("About " + text).c_str(),
                                                       vtString, ("topic" + text).c_str());
        ASSERT_EQ(option.m_status, declarationStored);
        ASSERT_EQ(parse(session, {"--name=x", "--unknown-" + text}), parseFailed);
        session.parser->getErrorDesc();
        session.parser->getDescription(("new" + text).c_str());
    }
}

struct HandedOutTexts : testing::Test {
    HandedOutTexts() {
        open(session, flagRejectUnknown);
        session.parser->option("name,n", "Whose name.", vtString, "people:People");
        session.parser->option("other", "Something else.", vtString, "tarv_hidden");
    }

    Session session;
    HandedOut handedOut;
};

TEST_F(HandedOutTexts, OfValuesStayWhileTheResultGrows) {
    for (const std::size_t length : lengths) {
        SCOPED_TRACE(length);
        const std::string a(length, 'a');
        const std::string b(length, 'b');
        const std::string c(length, 'c');
        ASSERT_EQ(parse(session, {"--name=" + a + "," + b, "--other=" + c}), parseOk);
        EXPECT_EQ(handedOut(session.result->get("other").text), c);
        EXPECT_TRUE(session.result->present("other"));
        EXPECT_EQ(handedOut(session.result->next("other").text), c);
        EXPECT_EQ(handedOut(session.result->get("name").text), a);
        EXPECT_EQ(handedOut(session.result->next("name").text), b);
        EXPECT_EQ(handedOut(session.result->get("n").as<const char*>()), a);
        EXPECT_EQ(handedOut(getLastValue(session.result, "n").text), b);
        growResult(session);
        const ReusedMemory memory;
        handedOut.expectUnchanged();
        session.result->destroy();
        session.parser->createResult(&session.result);
        handedOut = HandedOut();
    }
}

TEST_F(HandedOutTexts, OfPlainArgumentsStayWhileTheResultGrows) {
    for (const std::size_t length : lengths) {
        SCOPED_TRACE(length);
        const std::string a(length, 'a');
        const std::string b(length, 'b');
        ASSERT_EQ(parse(session, {"--", a, b}), parseOk);
        const char* first = nullptr;
        const char* second = nullptr;
        ASSERT_EQ(session.result->getFirstArgument(&first), valueFound);
        ASSERT_EQ(session.result->getNextArgument(&second), valueFound);
        // Neither of them was read before both were handed out.
        const ReusedMemory memory;
        EXPECT_EQ(std::string(first), a);
        EXPECT_EQ(std::string(second), b);
        growResult(session);
        const ReusedMemory again;
        EXPECT_EQ(std::string(first), a);
        EXPECT_EQ(std::string(second), b);
        session.result->destroy();
        session.parser->createResult(&session.result);
    }
}

TEST_F(HandedOutTexts, OfADefaultStayWhenAnotherOneIsRecorded) {
    for (const std::size_t length : lengths) {
        SCOPED_TRACE(length);
        const std::string former(length, 'a');
        const std::string later(length, 'b');
        IOption& option =
            session.parser->option(("with-default-" + std::to_string(length)).c_str(), "", vtString);
        const std::string name = "with-default-" + std::to_string(length);
        option.defaultValue(former.c_str());
        ASSERT_EQ(parse(session, {"--name=x"}), parseOk);
        const char* const byGet = handedOut(session.result->get(name.c_str()).text);
        ASSERT_TRUE(session.result->present(name.c_str()));
        const char* const byNext = handedOut(session.result->next(name.c_str()).text);
        option.defaultValue(later.c_str());
        ASSERT_EQ(parse(session, {"--name=x"}), parseOk);
        const ReusedMemory memory;
        EXPECT_EQ(std::string(byGet), former);
        EXPECT_EQ(std::string(byNext), former);
        EXPECT_EQ(std::string(session.result->get(name.c_str()).text), later);
    }
}

TEST_F(HandedOutTexts, OfAResultStayWhenParserAndOtherResultsAreGone) {
    session.parser->option("with-default", "", vtString).defaultValue("a default that is long enough");
    IParseResult* other = nullptr;
    session.parser->createResult(&other);
    const char* const argv[] = {"host", "--name=a name that is long enough", "--", "a plain argument"};
    ASSERT_EQ(session.parser->parseArgsVector(4, argv, other), parseOk);
    ASSERT_EQ(session.parser->parseArgsVector(4, argv, session.result), parseOk);
    const char* const name = session.result->get("name").text;
    const char* const byDefault = session.result->get("with-default").text;
    const char* plain = nullptr;
    ASSERT_EQ(session.result->getFirstArgument(&plain), valueFound);
    other->destroy();
    session.parser->destroy();
    session.parser = nullptr;
    const ReusedMemory memory;
    EXPECT_STREQ(name, "a name that is long enough");
    EXPECT_STREQ(byDefault, "a default that is long enough");
    EXPECT_STREQ(plain, "a plain argument");
    EXPECT_STREQ(session.result->get("n").text, "a name that is long enough");
}

TEST_F(HandedOutTexts, OfTheParserStayWhileItGrows) {
    EXPECT_EQ(parse(session, {"--nobody-knows-this"}), parseFailed);
    handedOut(session.parser->getErrorDesc());
    for (const bool hidden : {false, true}) {
        handedOut(session.parser->getDescription(hidden));
        handedOut(session.parser->getDescription("name", hidden));
        handedOut(session.parser->getDescription("other", hidden));
        handedOut(session.parser->getDescription("nothing", hidden));
        handedOut(session.parser->getActionModifiersDescription("nothing", hidden));
        handedOut(session.parser->getGlobalModifiersDescription(hidden));
    }
    EXPECT_EQ(handedOut.size(), 13U);
    growParser(session);
    session.result->destroy();
    session.result = nullptr;
    const ReusedMemory memory;
    handedOut.expectUnchanged();
}

/// Keeps what it is told, and does what the test says, once.
struct KeepingHandler final : EventHandler {
    bool onOptionParse(const char* name) override {
        kept(name);
        act(atOption);
        return true;
    }

    bool onValueParse(const char* name, const Value& value) override {
        kept(name);
        const std::string text = value.text;
        const variant_t copy = value.value;
        act(atValue);
        // Good during the call, whatever was done in it.
        EXPECT_EQ(std::string(value.text), text);
        EXPECT_EQ(value.value, copy);
        EXPECT_STREQ(copy.get<const char*>(), text.c_str());
        return true;
    }

    bool onUknownArgument(const char* argument) override {
        kept(argument);
        act(atUnknown);
        return false;
    }

    void act(std::function<void()>& action) const {
        if (action) {
            const std::function<void()> once = std::move(action);
            action = nullptr;
            once();
            const ReusedMemory memory;
            kept.expectUnchanged();
        }
    }

    HandedOut kept;
    std::function<void()> atOption;
    std::function<void()> atValue;
    std::function<void()> atUnknown;
};

struct HandedOutInEvents : HandedOutTexts {
    HandedOutInEvents() { session.parser->addHandler(&handler); }

    KeepingHandler handler;
    const std::vector<std::string> arguments = {"--name=Ann,somebody with a name of some length", "unknown",
                                                "an unknown argument of some length", "--other=x",
                                                "--name=again"};
};

TEST_F(HandedOutInEvents, NamesAndArgumentsStayUntilTheParserIsDestroyed) {
    ASSERT_EQ(parse(session, arguments), parseOk);
    // Three options, four values, two arguments that nobody takes.
    EXPECT_EQ(handler.kept.size(), 9U);
    session.parser->removeHandler(&handler);
    growParser(session);
    session.result->destroy();
    session.result = nullptr;
    const ReusedMemory memory;
    handler.kept.expectUnchanged();
}

TEST_F(HandedOutInEvents, AllStaysWhileTheHandlerDeclaresParsesAndFails) {
    const auto declareAndParse = [&] {
        // Inner parses are told to nobody, and have a result of their own.
        Session inner;
        session.parser->removeHandler(&handler);
        session.parser->createResult(&inner.result);
        static int declared = 0;
        for (int i = 0; i < 100; ++i) {
            const std::string name = "declared-" + std::to_string(++declared);
            session.parser->option(name.c_str(), "", vtString).synonym((name + "-too").c_str());
            const std::string argument = "--" + name + "=text,another text of some length";
            const char* const argv[] = {"host", argument.c_str(), "--unknown"};
            EXPECT_EQ(session.parser->parseArgsVector(2, argv, inner.result), parseOk);
            EXPECT_EQ(session.parser->parseArgsVector(3, argv, inner.result), parseFailed);
        }
        session.parser->addHandler(&handler);
    };
    handler.atOption = declareAndParse;
    handler.atValue = declareAndParse;
    handler.atUnknown = declareAndParse;
    EXPECT_EQ(parse(session, arguments), parseOk);
    EXPECT_EQ(stored(session, {"name", "other"}),
              "name=Ann,somebody with a name of some length,again other=x");
    handler.kept.expectUnchanged();
}

TEST_F(HandedOutInEvents, AllStaysWhileTheHandlerParsesIntoTheSameResult) {
    const char* first = nullptr;
    const auto parseInto = [&] {
        session.parser->removeHandler(&handler);
        growResult(session);
        session.parser->addHandler(&handler);
        first = session.result->get("name").text;
    };
    handler.atOption = parseInto;
    handler.atValue = parseInto;
    handler.atUnknown = parseInto;
    EXPECT_EQ(parse(session, arguments), parseOk);
    EXPECT_STREQ(first, "0");
    EXPECT_STREQ(getLastValue(session.result, "name").text, "again");
}

TEST_F(HandedOutInEvents, AllStaysWhenTheHandlerThrows) {
    const auto declareAndThrow = [&] {
        for (int i = 0; i < 100; ++i) {
            session.parser->option(("thrown" + std::to_string(i)).c_str(), "", vtString);
        }
        throw std::runtime_error("no");
    };
    handler.atValue = declareAndThrow;
    EXPECT_EQ(parse(session, arguments), parseUnidentified);
    handler.atUnknown = declareAndThrow;
    EXPECT_EQ(parse(session, arguments), parseUnidentified);
    handler.atOption = declareAndThrow;
    EXPECT_EQ(parse(session, arguments), parseUnidentified);
    const ReusedMemory memory;
    handler.kept.expectUnchanged();
    EXPECT_EQ(parse(session, arguments), parseOk);
}

// A plain argument that was asked for in vain is not asked for any more.
TEST(PlainArguments, DoNotBeginWithTheNextOneAfterAFirstOneWasMissing) {
    Session session;
    open(session);
    const char* text = "untouched";
    EXPECT_EQ(session.result->getFirstArgument(&text), valueMissing);
    EXPECT_EQ(parse(session, {"--", "a", "b"}), parseOk);
    EXPECT_EQ(session.result->getNextArgument(&text), valueMissing);
    EXPECT_STREQ(text, "untouched");
    EXPECT_EQ(session.result->getFirstArgument(&text), valueFound);
    EXPECT_STREQ(text, "a");
}

TEST(PlainArguments, GoOnWithOnesThatALaterParseAdds) {
    Session session;
    open(session);
    const char* text = nullptr;
    EXPECT_EQ(parse(session, {"--", "a"}), parseOk);
    EXPECT_EQ(session.result->getFirstArgument(&text), valueFound);
    EXPECT_EQ(session.result->getNextArgument(&text), valueMissing);
    EXPECT_EQ(parse(session, {"--", "b"}), parseOk);
    EXPECT_EQ(session.result->getNextArgument(&text), valueFound);
    EXPECT_STREQ(text, "b");
}

// A name of one zero byte is what a comma at the end declares. It is stored, and found again, whole.
TEST(NamesWithAZeroByte, AreFoundAgainBehindAParse) {
    for (const char* const names : {"x,", "level,l,", "x,,"}) {
        SCOPED_TRACE(names);
        Session session;
        open(session, flagRejectUnknown);
        ASSERT_EQ(session.parser->option(names, "", vtInt32).m_status, declarationStored);
        const std::string first(names, 1);
        EXPECT_EQ(parse(session, {"--" + first + "=3"}), parseOk);
        EXPECT_EQ(parse(session, {"--" + first + "=4"}), parseOk);
        EXPECT_EQ(session.parser->option(names, "", vtInt32).m_status, declarationRefused);
    }
}

} // namespace
