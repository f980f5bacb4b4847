#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

#include "api/CommandLine.h"

namespace tarv = tarv_3_3;

namespace {

TEST(Handlers, SeeOptionsValuesAndUnknownArgumentsInOrder) {
    CommandLine line;
    line.parser->option("level,l", "", tarv::vtInt32);
    line.parser->option("color", "", tarv::vtBool);
    line.parser->option("quiet", "", tarv::vtNull);
    EventLog handler;
    EXPECT_TRUE(line.parser->addHandler(&handler));
    EXPECT_FALSE(line.parser->addHandler(&handler));
    EXPECT_EQ(line.parse({"-l=1,2", "x", "--no-color", "--quiet", "--", "y"}), 0);
    EXPECT_EQ(handler.events, "option level; value level=1; value level=2; unknown x; option color; "
                              "value color=0; option quiet");
    EXPECT_TRUE(line.parser->removeHandler(&handler));
    EXPECT_FALSE(line.parser->removeHandler(&handler));
    EXPECT_EQ(line.parse({"-l=3"}), 0);
    EXPECT_EQ(handler.events, "option level; value level=1; value level=2; unknown x; option color; "
                              "value color=0; option quiet");
}

TEST(Handlers, SeeCompletedAndConvertedValues) {
    class ValueKeeper : public tarv::EventHandler {
    public:
        bool onValueParse(const char* name, const tarv::Value& value) override {
            kept += std::string(name) + " " + value.text + " " + value.as<const char*>() + " " +
                    std::to_string(value.status) + " " +
                    (value.value == tarv::variant_t("large") ? "large" : "else");
            position = value.position;
            return true;
        }

        std::string kept;
        int position = 0;
    };
    CommandLine line;
    line.parser->option("size", "", tarv::vtString).allowValue("small").allowValue("large");
    ValueKeeper keeper;
    line.parser->addHandler(&keeper);
    EXPECT_EQ(line.parse({"--size=l"}), 0);
    EXPECT_EQ(keeper.kept, "size large large 0 large");
    EXPECT_EQ(line.result->get("size").position, keeper.position);
}

TEST(Handlers, ThatRefuseAValueEndTheParseAndTheRound) {
    CommandLine line;
    line.parser->option("level", "", tarv::vtString);
    EventLog handlers[3] = {EventLog(), EventLog("bad"), EventLog()};
    for (EventLog& handler : handlers) {
        line.parser->addHandler(&handler);
    }
    EXPECT_EQ(line.parse({"--level=good,bad,other", "x"}), 1);
    EXPECT_EQ(line.error(),
              "Value 'good,bad,other' is not valid for option 'level' in argument '--level=good,bad,other'");
    EXPECT_EQ(handlers[0].events, "option level; value level=good; value level=bad");
    EXPECT_EQ(handlers[1].events, "option level; value level=good; value level=bad");
    EXPECT_EQ(handlers[2].events, "option level; value level=good");
    EXPECT_FALSE(line.result->present("level"));
}

TEST(Handlers, ThatRefuseAnUnknownArgumentHaveItDropped) {
    CommandLine line(tarv::flagRejectUnknown);
    EventLog handlers[2] = {EventLog("x"), EventLog()};
    line.parser->addHandler(&handlers[1]);
    line.parser->addHandler(&handlers[0]);
    EXPECT_EQ(line.parse({"x"}), 0);
    EXPECT_EQ(line.parse({"x", "y"}), 2);
    EXPECT_EQ(line.error(), "Unknown option: y");
    EXPECT_EQ(handlers[0].events, "unknown x; unknown x; unknown y");
    EXPECT_EQ(handlers[1].events, "unknown x; unknown x; unknown y");
}

TEST(Handlers, HaveDefaultsThatAcceptEverything) {
    CommandLine line(tarv::flagRejectUnknown);
    line.parser->option("level", "", tarv::vtString);
    tarv::EventHandler handler;
    line.parser->addHandler(&handler);
    EXPECT_EQ(line.parse({"--level=1"}), 0);
    EXPECT_EQ(line.parse({"x"}), 2);
}

/// Does what the test wants at its first event.
class ActingHandler : public tarv::EventHandler {
public:
    bool onOptionParse(const char*) override { return act(); }
    bool onValueParse(const char*, const tarv::Value&) override { return act(); }
    bool onUknownArgument(const char*) override { return act(); }

    std::function<void()> action;

private:
    bool act() {
        action();
        return true;
    }
};

TEST(Handlers, MayRemoveThemselvesAndOthersWhileTheyAreTold) {
    CommandLine line;
    line.parser->option("level", "", tarv::vtString);
    struct {
        ActingHandler acting;
        EventLog log;
    } handlers;
    handlers.acting.action = [&] {
        line.parser->removeHandler(&handlers.log);
        line.parser->removeHandler(&handlers.acting);
    };
    line.parser->addHandler(&handlers.acting);
    line.parser->addHandler(&handlers.log);
    EXPECT_EQ(line.parse({"--level=1", "x"}), 0);
    EXPECT_EQ(handlers.log.events, "");
    EXPECT_EQ(line.values("level"), "[1]");
}

TEST(Handlers, MayAddOthersWhileTheyAreTold) {
    CommandLine line;
    line.parser->option("level", "", tarv::vtString);
    struct {
        ActingHandler acting;
        EventLog log;
    } handlers;
    handlers.acting.action = [&] { line.parser->addHandler(&handlers.log); };
    line.parser->addHandler(&handlers.acting);
    EXPECT_EQ(line.parse({"--level=1", "x"}), 0);
    EXPECT_EQ(handlers.log.events, "option level; value level=1; unknown x");
}

TEST(Handlers, MayAskTheParserForAnotherParse) {
    CommandLine line;
    CommandLine other;
    line.parser->option("level", "", tarv::vtString);
    bool nested = false;
    ActingHandler handler;
    handler.action = [&] {
        if (!nested) {
            nested = true;
            EXPECT_EQ(line.parser->parseStream("--level=inner", other.result), 0);
        }
    };
    line.parser->addHandler(&handler);
    EXPECT_EQ(line.parse({"--level=outer"}), 0);
    EXPECT_EQ(line.values("level"), "[outer]");
    EXPECT_EQ(other.values("level"), "[inner]");
}

TEST(Handlers, EndTheParseWhenTheyThrowAStandardException) {
    CommandLine line;
    line.parser->option("level", "", tarv::vtString);
    ActingHandler handler;
    line.parser->addHandler(&handler);
    for (const char* const argument : {"--level=1", "x"}) {
        SCOPED_TRACE(argument);
        handler.action = [] { throw std::logic_error("the host's"); };
        EXPECT_EQ(line.parse({argument}), 4);
        EXPECT_EQ(line.error(), "Unidentified problem detected.");
        EXPECT_FALSE(line.result->present("level"));
        EXPECT_EQ(line.parseStream(argument), 4);
    }
    handler.action = [] {};
    EXPECT_EQ(line.parse({"--level=2"}), 0);
    EXPECT_EQ(line.values("level"), "[2]");
}

TEST(Handlers, ReachTheHostWithWhateverElseTheyThrow) {
    struct NoStandardException {};
    CommandLine line;
    line.parser->option("level", "", tarv::vtString);
    ActingHandler handler;
    line.parser->addHandler(&handler);
    handler.action = [] { throw NoStandardException(); };
    EXPECT_THROW(line.parse({"--level=1"}), NoStandardException);
    EXPECT_THROW(line.parse({"x"}), NoStandardException);
    EXPECT_THROW(line.parseStream("x"), NoStandardException);
    EXPECT_EQ(line.error(), "");
    handler.action = [] {};
    EXPECT_EQ(line.parse({"--level=2"}), 0);
    EXPECT_EQ(line.values("level"), "[2]");
}

} // namespace
