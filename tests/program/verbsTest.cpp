#include "model/verbs.h"

#include <gtest/gtest.h>

#include <tarv_3_3/description.h>

using namespace tarv_3_3;

namespace tarv_program {
namespace {

Option named(const char* name) {
    Option option;
    option.names = {name};
    return option;
}

TEST(Within, PutsWhatBelongsToTheProgramInFrontOfTheVerb) {
    CommandLine program;
    program.version = "1.0";
    program.mends = {"loneDash"};
    program.topics = {{"general", "General"}};
    Option file = named("file");
    file.positional = Positional::filled;
    program.options = {named("dir"), file, named("quiet")};
    program.rules = {{ruleAtMostOne, {"dir", "quiet"}}, {ruleNeeds, {"dir", "file"}}};
    CommandLine verb;
    verb.names = {"log"};
    verb.topics = {{"own", "Own"}};
    verb.options = {named("count")};
    verb.rules = {{ruleRequired, {"count"}}};

    const CommandLine line = within(program, verb);
    EXPECT_EQ(line.names, std::vector<std::string>{"log"});
    EXPECT_EQ(line.version, "1.0");
    EXPECT_EQ(line.mends, std::vector<std::string>{"loneDash"});
    ASSERT_EQ(line.topics.size(), 2U);
    EXPECT_EQ(line.topics[0].name + line.topics[1].name, "generalown");
    ASSERT_EQ(line.options.size(), 3U);
    EXPECT_EQ(line.options[0].primaryName(), "dir");
    EXPECT_EQ(line.options[1].primaryName(), "quiet");
    EXPECT_EQ(line.options[2].primaryName(), "count");
    ASSERT_EQ(line.rules.size(), 2U);
    EXPECT_EQ(line.rules[0].kind, ruleAtMostOne);
    EXPECT_EQ(line.rules[0].names, (std::vector<std::string>{"dir", "quiet"}));
    EXPECT_EQ(line.rules[1].kind, ruleRequired);
    EXPECT_EQ(line.rules[1].names, std::vector<std::string>{"count"});
}

} // namespace
} // namespace tarv_program
