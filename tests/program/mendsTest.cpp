#include "model/mends.h"

#include <gtest/gtest.h>

namespace tarv_program {
namespace {

TEST(MendOf, NamesTheMendThatMayChangeAnArgument) {
    const struct {
        std::vector<std::string> mends;
        const char* argument;
        const char* expected;
    } rows[] = {
        {{"negativeNumbers"}, "-5", "negativeNumbers"},
        {{"negativeNumbers"}, "-.5", "negativeNumbers"},
        {{"negativeNumbers"}, "-", ""},
        {{"negativeNumbers"}, "-x", ""},
        {{"negativeNumbers"}, "5", ""},
        {{"loneDash"}, "-", "loneDash"},
        {{"loneDash"}, "--", ""},
        {{"emptyValues"}, "", "emptyValues"},
        {{"emptyPositionals"}, "", "emptyPositionals"},
        {{"emptyValues", "emptyPositionals"}, "x", ""},
        {{"repeatedLetters"}, "-vv", "repeatedLetters"},
        {{"repeatedLetters"}, "-vvv", "repeatedLetters"},
        {{"repeatedLetters"}, "-v", ""},
        {{"repeatedLetters"}, "-vx", ""},
        {{"repeatedLetters"}, "-xv", ""},
        {{"repeatedLetters"}, "--v", ""},
        {{"repeatedLetters"}, "vvv", ""},
        {{"joinedLetters"}, "-vx", "joinedLetters"},
        {{"joinedLetters"}, "-v", ""},
        {{"joinedLetters"}, "--vx", ""},
        {{"joinedLetters"}, "vxy", ""},
        {{"joinedLetters", "repeatedLetters"}, "-vv", "repeatedLetters"},
        {{"another"}, "-55", ""},
        {{}, "-55", ""},
        {{}, "-", ""},
        {{}, "", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.mends) + " of '" + row.argument + "'");
        CommandLine line;
        line.mends = row.mends;
        EXPECT_EQ(mendOf(line, row.argument), row.expected);
    }
}

TEST(MendOf, KnowsTheNamesOfLastResort) {
    CommandLine line;
    EXPECT_EQ(mendOf(line, "--help"), "");
    line.mends = {"loneDash"};
    for (const char* const argument : {"--help", "--hel", "--h", "-h", "-help"}) {
        SCOPED_TRACE(argument);
        EXPECT_EQ(mendOf(line, argument), "help");
    }
    for (const char* const argument : {"help", "---help", "--helps", "--elp", "--version"}) {
        SCOPED_TRACE(argument);
        EXPECT_EQ(mendOf(line, argument), "");
    }
    line.version = "1.0";
    EXPECT_EQ(mendOf(line, "--vers"), "version");
    EXPECT_EQ(mendOf(line, "version"), "");
    EXPECT_EQ(mendOf(line, "--versions"), "");
    line.mends.clear();
    EXPECT_EQ(mendOf(line, "--version"), "");
}

} // namespace
} // namespace tarv_program
