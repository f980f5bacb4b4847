#include <gtest/gtest.h>

#include <tarv_3_3/typed.h>

#include "explain/explainLine.h"
#include "model/readDescription.h"
#include "support/TypedLine.h"

using namespace tarv_3_3;

namespace tarv_program {
namespace {

/// "ok", or what is wrong.
std::string explained(typed::Program& tool, const std::vector<std::string>& arguments) {
    const char* const argv[] = {"tool", "tarvoption=describe"};
    const ExplainedLine line = explainLine(readDescription(tool.parse(2, argv).output(), "it"), arguments);
    EXPECT_EQ(line.doubt, "");
    return line.isAccepted ? "ok" : line.message;
}

TEST(ExplainLine, KnowsWhichCommandsDoWithoutAVerb) {
    const struct {
        bool hasBody;
        bool hasBodyOfVerb;
        std::vector<std::string> arguments;
        const char* expected;
    } rows[] = {
        {false, false, {}, "a verb is missing"},
        {false, false, {"--dir=x"}, "a verb is missing"},
        {false, false, {"remote"}, "a verb is missing"},
        {false, true, {}, "a verb is missing"},
        {false, true, {"remote"}, "ok"},
        {true, false, {}, "ok"},
        {true, false, {"--dir=x"}, "ok"},
        {true, false, {"remote"}, "a verb is missing"},
        {false, false, {"remote", "add"}, "ok"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.arguments) + (row.hasBody ? " with a body" : ""));
        typed::Program tool("tool", "", "");
        tool.option<std::string>("dir", "");
        typed::Command& remote = tool.verb("remote", "");
        remote.verb("add", "").does([] {});
        if (row.hasBody) {
            tool.does([] {});
        }
        if (row.hasBodyOfVerb) {
            remote.does([] {});
        }
        EXPECT_EQ(explained(tool, row.arguments), row.expected);
        const bool isAccepted = parseLine(tool, row.arguments) == "ok";
        EXPECT_EQ(isAccepted, row.expected == std::string("ok"));
    }
}

} // namespace
} // namespace tarv_program
