#include <chrono>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/TypedLine.h"

namespace {

namespace tarv = tarv_3_3::typed;

std::string wrong(const std::string& message) {
    return "2 p: " + message + "\nTry 'p --help'.\n";
}

TEST(TypedRefinements, ARangeHasBothBounds) {
    tarv::Program program("p");
    program.option("copies", "", 1).range(1, 99);
    program.option<unsigned char>("byte", "").range(3, 200);
    program.option("gamma", "", 1.0).range(0.5, 5);
    program.option("size", "", tarv::Size(2)).range(2, tarv::Size(1024));
    program.option<std::chrono::seconds>("wait", "").range(std::chrono::seconds(1), std::chrono::minutes(2));
    program.option<std::vector<int>>("list", "").range(-1, 1);
    const struct {
        const char* argument;
        const char* reason;
    } rows[] = {{"--copies=1", ""},
                {"--copies=99", ""},
                {"--copies=0", "must be from 1 to 99"},
                {"--copies=100", "must be from 1 to 99"},
                {"--copies=99999999999999999999", "must be from 1 to 99"},
                {"--copies=x", "must be a whole number from 1 to 99"},
                {"--byte=2", "must be from 3 to 200"},
                {"--byte=200", ""},
                {"--byte=201", "must be from 3 to 200"},
                {"--gamma=0.4", "must be from 0.5 to 5"},
                {"--gamma=5", ""},
                {"--gamma=5.1", "must be from 0.5 to 5"},
                {"--size=1", "must be from 2 to 1KiB"},
                {"--size=1Ki", ""},
                {"--size=1025", "must be from 2 to 1KiB"},
                {"--wait=121s", "must be from 1s to 120s"},
                {"--wait=2min", ""},
                {"--list=0,-1,1", ""},
                {"--list=2", "must be from -1 to 1"},
                {"--list=0,2", "'2' must be from -1 to 1"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.argument);
        EXPECT_EQ(parseLine(program, {row.argument}),
                  *row.reason == '\0' ? "ok" : wrong(std::string(row.argument) + ": " + row.reason));
    }
}

TEST(TypedRefinements, OneOfTakesTheseValuesAlone) {
    tarv::Program program("p");
    const auto word = program.option<std::string>("word", "").oneOf("red", "green", "grey");
    const auto number = program.option<int>("number", "").oneOf(1, 2, 16);
    program.option<double>("real", "").oneOf(0.5, 1);
    EXPECT_EQ(parseLine(program, {"--word=re", "--number=0x10", "--real=.5"}), "ok");
    EXPECT_EQ(*word, "red");
    EXPECT_EQ(*number, 16);
    EXPECT_EQ(parseLine(program, {"--word=gr"}), wrong("--word=gr: is ambiguous, could be green or grey"));
    EXPECT_EQ(parseLine(program, {"--word=blue"}), wrong("--word=blue: must be one of red, green or grey"));
    EXPECT_EQ(parseLine(program, {"--number=3"}), wrong("--number=3: must be one of 1, 2 or 16"));
    EXPECT_EQ(parseLine(program, {"--real=2"}), wrong("--real=2: must be one of 0.5 or 1"));
}

TEST(TypedRefinements, OneOfTakesCharacters) {
    tarv::Program program("p");
    const auto mark = program.option("mark", "", 'x').oneOf('x', '+', '-');
    EXPECT_STREQ(program.problems(), "");
    EXPECT_EQ(parseLine(program, {"--mark=+"}), "ok");
    EXPECT_EQ(*mark, '+');
    EXPECT_EQ(parseLine(program, {"--mark=-"}), "ok");
    EXPECT_EQ(parseLine(program, {"--mark=1"}), wrong("--mark=1: must be one of x, + or -"));
}

TEST(TypedRefinements, ChecksSeeEachElement) {
    tarv::Program program("p");
    program.option<std::vector<int>>("even", "")
        .check("even", [](int value) { return value % 2 == 0; })
        .check("below 10", [](const int& value) { return value < 10; });
    EXPECT_EQ(parseLine(program, {"--even=2,4"}), "ok");
    EXPECT_EQ(parseLine(program, {"--even=2,3"}), wrong("--even=2,3: '3' must be even"));
    EXPECT_EQ(parseLine(program, {"--even=12"}), wrong("--even=12: must be below 10"));
}

TEST(TypedRefinements, WhatACheckThrowsReachesTheCallerOfParse) {
    tarv::Program program("p");
    const auto level = program.option<int>("level", "").check("good", [](int value) -> bool {
        if (value == 13) {
            throw std::runtime_error("thirteen");
        }
        return true;
    });
    EXPECT_THROW(parseLine(program, {"--level=13"}), std::runtime_error);
    EXPECT_EQ(parseLine(program, {"--level=12"}), "ok");
    EXPECT_EQ(*level, 12);
}

TEST(TypedRefinements, ARequiredOptionMustBeGiven) {
    tarv::Program program("p");
    program.option<std::string>("message,m", "").required();
    EXPECT_EQ(parseLine(program, {}), wrong("option '--message' is required"));
    EXPECT_EQ(parseLine(program, {"-m=x"}), "ok");
}

TEST(TypedRefinements, NeedsAsksForAnotherOption) {
    tarv::Program program("p");
    const auto user = program.option<std::string>("user", "");
    program.option<std::string>("password", "").needs(user);
    EXPECT_EQ(parseLine(program, {"--user=x"}), "ok");
    EXPECT_EQ(parseLine(program, {"--password=x"}), wrong("option '--password' needs option '--user'"));
    EXPECT_EQ(parseLine(program, {"--password=x", "--user=y"}), "ok");
}

TEST(TypedRefinements, ADeprecatedOptionIsTakenWithAWarning) {
    tarv::Program program("p");
    const auto old = program.flag("old", "").deprecated("--new");
    program.flag("older", "").deprecated("");
    EXPECT_EQ(parseLine(program, {"--old"}), "okp: option '--old' is deprecated; use --new\n");
    EXPECT_TRUE(*old);
    EXPECT_EQ(parseLine(program, {"--older"}), "okp: option '--older' is deprecated\n");
    EXPECT_EQ(parseLine(program, {"--older", "--older"}), "okp: option '--older' is deprecated\n");
    EXPECT_EQ(parseLine(program, {}), "ok");
}

TEST(TypedRefinements, WhatTheLibraryDoesNotKnowRefinesNothing) {
    tarv::Program program("p");
    const auto level = program.option("level", "Which one.", 3);
    tarv::engine::refine(level.option(), 1000, "x");
    tarv::engine::refine(nullptr, tarv::engine::refineRequired, "");
    tarv::engine::failMemory(nullptr);
    EXPECT_STREQ(program.problems(), "");
    EXPECT_EQ(parseLine(program, {"--help"}), "0 Usage: p [OPTION]...\n\nOptions:\n"
                                              "      --level=NUMBER  Which one. (default: 3)\n"
                                              "  -h, --help          Show this help.\n");
}

TEST(TypedRefinements, ASeparatorSplitsListsAndNothingElse) {
    tarv::Program program("p");
    const auto colons = program.option<std::vector<std::string>>("path", "").separator(':');
    const auto whole = program.option<std::vector<std::string>>("line", "").separator('\0');
    const auto text = program.option<std::string>("text", "");
    EXPECT_EQ(parseLine(program, {"--path=a:b,c", "--line=a,b", "--line=c", "--text=a,b"}), "ok");
    EXPECT_EQ(*colons, (std::vector<std::string>{"a", "b,c"}));
    EXPECT_EQ(*whole, (std::vector<std::string>{"a,b", "c"}));
    EXPECT_EQ(*text, "a,b");
}

} // namespace
