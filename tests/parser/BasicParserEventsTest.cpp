#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "parser/BasicParser.h"
#include "tarv_3_3/EventHandler.h"

namespace tarv_3_3 {
namespace {

/// Notes its number and what it is told in a list that several handlers share, then does what the
/// test wants.
class NumberedHandler : public EventHandler {
public:
    bool onOptionParse(const char* name) override { return tell("option", name); }

    bool onValueParse(const char* name, const Value& value) override {
        return tell("value", (std::string(name) + "=" + value.text).c_str());
    }

    bool onUknownArgument(const char* argument) override { return tell("unknown", argument); }

    int number = 0;
    std::string* events = nullptr;
    bool answer = true;
    std::function<void()> whenTold = [] {};

private:
    bool tell(const char* event, const char* text) {
        *events += (events->empty() ? "" : "; ") + std::to_string(number) + " " + event + " " + text;
        whenTold();
        return answer;
    }
};

/// Four handlers at ascending addresses, none registered.
class BasicParserEvents : public ::testing::Test {
protected:
    BasicParserEvents() {
        for (int i = 0; i < 4; ++i) {
            handlers[i].number = i;
            handlers[i].events = &events;
        }
    }

    std::string takeEvents() {
        std::string taken;
        taken.swap(events);
        return taken;
    }

    std::string events;
    NumberedHandler handlers[4];
    BasicParser parser{0};
    const Value value{"5", variant_t(5), 3};
};

TEST_F(BasicParserEvents, AreAcceptedWithoutHandlers) {
    EXPECT_TRUE(parser.onOptionParse("level"));
    EXPECT_TRUE(parser.onValueParse("level", value));
    EXPECT_TRUE(parser.onUknownArgument("x"));
}

TEST_F(BasicParserEvents, AreAcceptedByAHandlerThatOverridesNothing) {
    EventHandler handler;
    EXPECT_TRUE(parser.addHandler(&handler));
    EXPECT_TRUE(parser.onOptionParse("level"));
    EXPECT_TRUE(parser.onValueParse("level", value));
    EXPECT_TRUE(parser.onUknownArgument("x"));
}

TEST_F(BasicParserEvents, ReachAHandlerRegisteredOnceHoweverOftenItIsAdded) {
    EXPECT_TRUE(parser.addHandler(&handlers[0]));
    EXPECT_FALSE(parser.addHandler(&handlers[0]));
    parser.onOptionParse("level");
    EXPECT_EQ(takeEvents(), "0 option level");
    EXPECT_TRUE(parser.removeHandler(&handlers[0]));
    parser.onOptionParse("level");
    EXPECT_EQ(takeEvents(), "");
    EXPECT_FALSE(parser.removeHandler(&handlers[0]));
}

TEST_F(BasicParserEvents, CannotBeSwitchedOffForAHandlerThatIsNotRegistered) {
    parser.addHandler(&handlers[0]);
    EXPECT_FALSE(parser.removeHandler(&handlers[1]));
    parser.onOptionParse("level");
    EXPECT_EQ(takeEvents(), "0 option level");
}

TEST_F(BasicParserEvents, ReachHandlersInTheOrderOfTheirAddresses) {
    for (const int i : {2, 0, 3, 1}) {
        parser.addHandler(&handlers[i]);
    }
    EXPECT_TRUE(parser.onOptionParse("level"));
    EXPECT_EQ(takeEvents(), "0 option level; 1 option level; 2 option level; 3 option level");
    EXPECT_TRUE(parser.onValueParse("level", value));
    EXPECT_EQ(takeEvents(), "0 value level=5; 1 value level=5; 2 value level=5; 3 value level=5");
    EXPECT_TRUE(parser.onUknownArgument("x"));
    EXPECT_EQ(takeEvents(), "0 unknown x; 1 unknown x; 2 unknown x; 3 unknown x");
}

TEST_F(BasicParserEvents, OfOptionsIgnoreTheAnswers) {
    parser.addHandler(&handlers[0]);
    parser.addHandler(&handlers[1]);
    handlers[0].answer = false;
    EXPECT_TRUE(parser.onOptionParse("level"));
    EXPECT_EQ(takeEvents(), "0 option level; 1 option level");
}

TEST_F(BasicParserEvents, OfValuesStopAtTheFirstRefusal) {
    for (NumberedHandler& handler : handlers) {
        parser.addHandler(&handler);
    }
    handlers[1].answer = false;
    EXPECT_FALSE(parser.onValueParse("level", value));
    EXPECT_EQ(takeEvents(), "0 value level=5; 1 value level=5");
}

TEST_F(BasicParserEvents, OfUnknownArgumentsReachEveryHandler) {
    parser.addHandler(&handlers[0]);
    parser.addHandler(&handlers[1]);
    handlers[0].answer = false;
    EXPECT_FALSE(parser.onUknownArgument("x"));
    EXPECT_EQ(takeEvents(), "0 unknown x; 1 unknown x");
    handlers[0].answer = true;
    handlers[1].answer = false;
    EXPECT_FALSE(parser.onUknownArgument("x"));
    EXPECT_EQ(takeEvents(), "0 unknown x; 1 unknown x");
    handlers[1].answer = true;
    EXPECT_TRUE(parser.onUknownArgument("x"));
}

/// Keeps the pointers that it is given.
class PointerKeeper : public EventHandler {
public:
    bool onOptionParse(const char* name) override { return keep(name); }
    bool onValueParse(const char* name, const Value&) override { return keep(name); }
    bool onUknownArgument(const char* argument) override { return keep(argument); }

    std::vector<const char*> kept;

private:
    bool keep(const char* text) {
        kept.push_back(text);
        return true;
    }
};

TEST_F(BasicParserEvents, HandOutCopiesThatLiveAsLongAsTheParser) {
    PointerKeeper keepers[2];
    parser.addHandler(&keepers[0]);
    parser.addHandler(&keepers[1]);
    {
        std::string text = "level";
        parser.onOptionParse(text.c_str());
        parser.onValueParse(text.c_str(), value);
        parser.onUknownArgument(text.c_str());
        text = "gone";
    }
    EXPECT_EQ(keepers[0].kept, keepers[1].kept);
    for (const char* const kept : keepers[0].kept) {
        EXPECT_STREQ(kept, "level");
    }
    EXPECT_EQ(keepers[0].kept, std::vector<const char*>(3, keepers[0].kept.front()));
}

TEST_F(BasicParserEvents, AcceptANullHandlerAndNeverCallIt) {
    EXPECT_TRUE(parser.addHandler(nullptr));
    EXPECT_FALSE(parser.addHandler(nullptr));
    EXPECT_TRUE(parser.onValueParse("level", value));
    EXPECT_TRUE(parser.onUknownArgument("x"));
    parser.addHandler(&handlers[0]);
    EXPECT_TRUE(parser.onUknownArgument("x"));
    EXPECT_EQ(takeEvents(), "0 unknown x");
    EXPECT_TRUE(parser.removeHandler(nullptr));
    EXPECT_FALSE(parser.removeHandler(nullptr));
}

TEST_F(BasicParserEvents, GoOnWhenAHandlerRemovesItself) {
    for (NumberedHandler& handler : handlers) {
        parser.addHandler(&handler);
    }
    handlers[1].whenTold = [this] { parser.removeHandler(&handlers[1]); };
    parser.onOptionParse("a");
    EXPECT_EQ(takeEvents(), "0 option a; 1 option a; 2 option a; 3 option a");
    parser.onOptionParse("b");
    EXPECT_EQ(takeEvents(), "0 option b; 2 option b; 3 option b");
}

TEST_F(BasicParserEvents, DoNotReachAHandlerThatWasRemovedMeanwhile) {
    for (NumberedHandler& handler : handlers) {
        parser.addHandler(&handler);
    }
    handlers[1].whenTold = [this] {
        parser.removeHandler(&handlers[0]);
        parser.removeHandler(&handlers[2]);
    };
    parser.onUknownArgument("a");
    EXPECT_EQ(takeEvents(), "0 unknown a; 1 unknown a; 3 unknown a");
    parser.onUknownArgument("b");
    EXPECT_EQ(takeEvents(), "1 unknown b; 3 unknown b");
}

TEST_F(BasicParserEvents, EndWhenAHandlerRemovesEverybody) {
    for (NumberedHandler& handler : handlers) {
        parser.addHandler(&handler);
    }
    handlers[0].whenTold = [this] {
        for (NumberedHandler& handler : handlers) {
            parser.removeHandler(&handler);
        }
    };
    EXPECT_TRUE(parser.onValueParse("level", value));
    EXPECT_EQ(takeEvents(), "0 value level=5");
}

TEST_F(BasicParserEvents, ReachAHandlerAddedMeanwhileAtAHigherAddress) {
    parser.addHandler(&handlers[1]);
    handlers[1].whenTold = [this] {
        parser.addHandler(&handlers[0]);
        parser.addHandler(&handlers[2]);
    };
    parser.onOptionParse("a");
    EXPECT_EQ(takeEvents(), "1 option a; 2 option a");
    parser.onOptionParse("b");
    EXPECT_EQ(takeEvents(), "0 option b; 1 option b; 2 option b");
}

} // namespace
} // namespace tarv_3_3
