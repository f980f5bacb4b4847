#include <gtest/gtest.h>

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

} // namespace
