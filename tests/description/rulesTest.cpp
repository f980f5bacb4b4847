#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "parser/Parsing.h"
#include "result/StoredOptions.h"
#include "tarv_3_3/description.h"

using namespace tarv_3_3;

namespace {

/// Declares what the rules below are about.
void declare(BasicParser& parser) {
    parser.option("apple,a", "", vtNull, "").synonym("fruit");
    parser.option("berry", "", vtBool, "");
    parser.option("cherry", "", vtInt32, "").defaultValue(3);
    parser.option("date", "", vtString, "");
}

struct RuleRow {
    int kind;
    const char* names;
    std::vector<const char*> arguments;
    /// Empty where the rule is kept.
    const char* message;
};

std::string nameOf(const RuleRow& row) {
    std::string name = std::to_string(row.kind) + " " + row.names + ":";
    for (const char* argument : row.arguments) {
        name.append(" ").append(argument);
    }
    return name;
}

TEST(CheckRules, SaysWhichRuleIsBroken) {
    const RuleRow rows[] = {
        {ruleRequired, "apple", {"-a"}, ""},
        {ruleRequired, "apple", {}, "Option 'apple' is required"},
        {ruleRequired, "apple,date", {"-a"}, "Option 'date' is required"},
        {ruleRequired, "apple,date", {"-a", "--date=x"}, ""},
        {ruleRequired, "date,apple", {}, "Option 'date' is required"},
        {ruleAtMostOne, "apple,berry,date", {}, ""},
        {ruleAtMostOne, "apple,berry,date", {"--date=x"}, ""},
        {ruleAtMostOne,
         "apple,berry,date",
         {"--date=x", "-a"},
         "Option 'apple' and option 'date' exclude each other"},
        {ruleAtMostOne,
         "apple,berry,date",
         {"--date=x", "-a", "--berry"},
         "Option 'apple' and option 'berry' exclude each other"},
        {ruleAtLeastOne, "apple,berry,date", {}, "One of the options 'apple', 'berry', 'date' is required"},
        {ruleAtLeastOne, "apple,berry,date", {"--date=x"}, ""},
        {ruleAtLeastOne, "apple,berry,date", {"--date=x", "-a"}, ""},
        {ruleExactlyOne, "apple,date", {}, "One of the options 'apple', 'date' is required"},
        {ruleExactlyOne, "apple,date", {"-a"}, ""},
        {ruleExactlyOne,
         "apple,date",
         {"-a", "--date=x"},
         "Option 'apple' and option 'date' exclude each other"},
        {ruleAllOrNone, "apple,berry,date", {}, ""},
        {ruleAllOrNone, "apple,berry,date", {"-a", "--berry", "--date=x"}, ""},
        {ruleAllOrNone,
         "apple,berry,date",
         {"--date=x"},
         "The options 'apple', 'berry', 'date' go together, but option 'apple' is missing"},
        {ruleAllOrNone,
         "apple,berry,date",
         {"-a", "--berry"},
         "The options 'apple', 'berry', 'date' go together, but option 'date' is missing"},
        {ruleNeeds, "apple,berry,date", {}, ""},
        {ruleNeeds, "apple,berry,date", {"--berry"}, ""},
        {ruleNeeds, "apple,berry,date", {"--berry", "--date=x"}, ""},
        {ruleNeeds, "apple,berry,date", {"-a"}, "Option 'apple' needs option 'berry'"},
        {ruleNeeds, "apple,berry,date", {"-a", "--berry"}, "Option 'apple' needs option 'date'"},
        {ruleNeeds, "apple,berry,date", {"-a", "--berry", "--date=x"}, ""},
        // A switch that was turned off is not given; the last time decides.
        {ruleRequired, "berry", {"--no-berry"}, "Option 'berry' is required"},
        {ruleRequired, "berry", {"--berry", "--no-berry"}, "Option 'berry' is required"},
        {ruleRequired, "berry", {"--no-berry", "--berry"}, ""},
        {ruleAtMostOne, "apple,berry", {"-a", "--no-berry"}, ""},
        {ruleAtLeastOne, "apple,berry", {"--no-berry"}, "One of the options 'apple', 'berry' is required"},
        {ruleExactlyOne, "apple,berry", {"-a", "--no-berry"}, ""},
        {ruleAllOrNone, "apple,berry", {"--no-berry"}, ""},
        {ruleNeeds, "berry,apple", {"--no-berry"}, ""},
        {ruleNeeds, "apple,berry", {"-a", "--no-berry"}, "Option 'apple' needs option 'berry'"},
        // Defaults do not count.
        {ruleRequired, "cherry", {}, "Option 'cherry' is required"},
        {ruleRequired, "cherry", {"--cherry=3"}, ""},
        {ruleAtMostOne, "apple,cherry", {"-a"}, ""},
        // A name may be any of the option's.
        {ruleRequired, "fruit", {"-a"}, ""},
        {ruleRequired, "a", {"--fruit"}, ""},
        {ruleRequired, "fruit", {}, "Option 'apple' is required"},
    };
    for (const RuleRow& row : rows) {
        SCOPED_TRACE(nameOf(row));
        Parsing parsing;
        declare(parsing.parser);
        ASSERT_EQ(addRule(&parsing.parser, row.kind, row.names), remarkStored);
        ASSERT_EQ(parsing.parse(row.arguments), parseOk);
        const bool isKept = *row.message == '\0';
        EXPECT_EQ(checkRules(&parsing.parser, &parsing.result), isKept ? 0 : 2);
        EXPECT_STREQ(parsing.parser.getErrorDesc(), row.message);
    }
}

TEST(CheckRules, CallsAnActionAnAction) {
    Parsing parsing;
    parsing.parser.action("build", "", vtNull, "");
    parsing.parser.action("test", "", vtNull, "");
    parsing.parser.option("jobs", "", vtInt32, "");
    addRule(&parsing.parser, ruleNeeds, "build,jobs");
    addRule(&parsing.parser, ruleNeeds, "jobs,test");
    ASSERT_EQ(parsing.parse({"--build"}), parseOk);
    EXPECT_EQ(checkRules(&parsing.parser, &parsing.result), parseFailed);
    EXPECT_STREQ(parsing.parser.getErrorDesc(), "Action 'build' needs option 'jobs'");
    ASSERT_EQ(parsing.parse({"--jobs=1"}), parseOk);
    EXPECT_EQ(checkRules(&parsing.parser, &parsing.result), parseFailed);
    EXPECT_STREQ(parsing.parser.getErrorDesc(), "Option 'jobs' needs action 'test'");
}

TEST(CheckRules, ReportsTheFirstBrokenRuleInTheOrderAdded) {
    Parsing parsing;
    declare(parsing.parser);
    addRule(&parsing.parser, ruleAtMostOne, "apple,berry");
    addRule(&parsing.parser, ruleRequired, "date");
    addRule(&parsing.parser, ruleRequired, "apple");
    ASSERT_EQ(parsing.parse({}), parseOk);
    EXPECT_EQ(checkRules(&parsing.parser, &parsing.result), parseFailed);
    EXPECT_STREQ(parsing.parser.getErrorDesc(), "Option 'date' is required");
}

TEST(CheckRules, SucceedsWithoutRulesAndKeepsTheLastMessage) {
    Parsing parsing(flagRejectUnknown);
    declare(parsing.parser);
    EXPECT_EQ(parsing.parse({"--unknown"}), parseFailed);
    EXPECT_EQ(checkRules(&parsing.parser, &parsing.result), parseOk);
    EXPECT_STREQ(parsing.parser.getErrorDesc(), "Unknown option: --unknown");
    annotate(&parsing.parser, "apple", "value", "x");
    EXPECT_EQ(checkRules(&parsing.parser, &parsing.result), parseOk);
}

TEST(CheckRules, SeesWhatSeveralParsesAndTextsStored) {
    Parsing parsing;
    declare(parsing.parser);
    addRule(&parsing.parser, ruleRequired, "apple,date");
    ASSERT_EQ(parsing.parse({"-a"}), parseOk);
    ASSERT_EQ(parsing.parseStream("--date=x"), parseOk);
    EXPECT_EQ(checkRules(&parsing.parser, &parsing.result), parseOk);
}

TEST(CheckRules, CountsPositionalArguments) {
    const struct {
        const char* argument;
        int status;
    } rows[] = {{"1", 0}, {"0", 2}, {" 0 ", 2}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.argument);
        Parsing parsing;
        parsing.parser.option("answer", "", vtBool, "").positional();
        addRule(&parsing.parser, ruleRequired, "answer");
        ASSERT_EQ(parsing.parse({row.argument}), parseOk);
        EXPECT_EQ(checkRules(&parsing.parser, &parsing.result), row.status);
    }
}

TEST(CheckRules, DoesNotDisturbAnIteration) {
    Parsing parsing;
    declare(parsing.parser);
    addRule(&parsing.parser, ruleAtMostOne, "apple,berry,cherry");
    ASSERT_EQ(parsing.parse({"--date=x", "--date=y", "--berry"}), parseOk);
    EXPECT_STREQ(parsing.result.get("date", 0, noPosition).text, "x");
    EXPECT_EQ(checkRules(&parsing.parser, &parsing.result), parseOk);
    EXPECT_STREQ(parsing.result.next("date").text, "y");
}

TEST(CheckRules, RefusesWhatIsNotTheLibrarys) {
    Parsing parsing;
    EXPECT_EQ(checkRules(nullptr, &parsing.result), parseException);
    EXPECT_EQ(checkRules(&parsing.parser, nullptr), parseException);
    EXPECT_STREQ(parsing.parser.getErrorDesc(), "");
}

TEST(AddRule, RefusesNamesThatItCannotUse) {
    const struct {
        int kind;
        const char* names;
        int status;
    } rows[] = {
        {ruleRequired, "apple", 0},
        {ruleRequired, "apple,berry,cherry,date", 0},
        {ruleAtMostOne, "apple", 1},
        {ruleAtLeastOne, "apple", 1},
        {ruleExactlyOne, "apple", 1},
        {ruleAllOrNone, "apple", 1},
        {ruleNeeds, "apple", 1},
        {ruleNeeds, "apple,berry", 0},
        {ruleRequired, "", 1},
        {ruleNeeds, "", 1},
        {ruleRequired, nullptr, 1},
        {ruleRequired, "app", 1},
        {ruleRequired, "no-berry", 1},
        {ruleRequired, "apple, berry", 1},
        {ruleRequired, "apple,apple", 1},
        {ruleRequired, "apple,fruit", 1},
        {ruleRequired, "apple,unknown", 1},
        {ruleRequired, "apple,", 1},
        {ruleRequired - 1, "apple,berry", 1},
        {ruleNeeds + 1, "apple,berry", 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::to_string(row.kind) + " " + (row.names != nullptr ? row.names : "null"));
        Parsing parsing;
        declare(parsing.parser);
        EXPECT_EQ(addRule(&parsing.parser, row.kind, row.names), row.status);
        const Description* const description = describe(&parsing.parser);
        EXPECT_EQ(description->ruleCount, row.status == 0 ? 1U : 0U);
        release(description);
    }
}

// As when memory ran out between the two.
TEST(CheckRules, TakesASwitchWithoutAValueForGiven) {
    Parsing parsing;
    declare(parsing.parser);
    addRule(&parsing.parser, ruleRequired, "berry");
    EXPECT_EQ(checkRules(&parsing.parser, &parsing.result), parseFailed);
    parsing.result.store(parsing.parser.registry().m_options[1], occurrences({1}));
    EXPECT_EQ(checkRules(&parsing.parser, &parsing.result), parseOk);
}

} // namespace
