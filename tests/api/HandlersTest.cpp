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

} // namespace
