#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

#include "parser/BasicParser.h"
#include "reading/Reader.h"
#include "recognition/IArgumentParser.h"
#include "support/CapturedLog.h"
#include "support/ExpectedParse.h"
#include "support/RandomCommandLine.h"
#include "support/roundsOf.h"

namespace tarv_3_3 {
namespace {

std::vector<ReadArgument> readUnnoticed(BasicParser& parser, const std::vector<std::string>& arguments) {
    Events events;
    parser.addHandler(&events);
    const int position = IArgumentParser::m_idx;
    const CapturedLog log;
    std::vector<ReadArgument> readings = readArguments(parser, arguments);
    EXPECT_EQ(log.text(), "");
    EXPECT_EQ(IArgumentParser::m_idx, position);
    EXPECT_EQ(events.all, std::vector<std::string>());
    parser.removeHandler(&events);
    return readings;
}

/// Returns whether the parse succeeded.
bool expectAgreement(BasicParser& parser, const std::vector<std::string>& arguments) {
    const std::vector<ReadArgument> readings = readUnnoticed(parser, arguments);
    const ExpectedParse expected(parser, arguments, readings);
    std::vector<const char*> argv(1, "program");
    for (const std::string& argument : arguments) {
        argv.push_back(argument.c_str());
    }
    Events events;
    parser.addHandler(&events);
    IParseResult* result = nullptr;
    parser.createResult(&result);
    const std::ostringstream trace;
    std::streambuf* const output = std::cout.rdbuf(trace.rdbuf());
    const int status = parser.parseArgsVector(static_cast<int>(argv.size()), argv.data(), result);
    std::cout.rdbuf(output);
    internal::tarvLogEnabled = false;
    parser.removeHandler(&events);
    const std::string message = status == parseOk ? "" : parser.getErrorDesc();

    EXPECT_EQ(events.all, expected.events);
    EXPECT_TRUE(expected.agreesOnMessage(message)) << message << "\n" << expected.message;
    if (expected.message.empty()) {
        EXPECT_EQ(plainArguments(*result), expected.plain);
    }
    result->destroy();
    return status == parseOk;
}

TEST(Reader, AgreesWithTheParseAboutRandomCommandLines) {
    const unsigned rounds = roundsOf(6000);
    unsigned successes = 0;
    for (unsigned seed = 0; seed < rounds && !testing::Test::HasFailure(); ++seed) {
        RandomCommandLine random(seed);
        BasicParser parser(random.flags());
        random.declare(parser, seed % 2 == 0);
        const std::vector<std::string> arguments = random.arguments(5);
        SCOPED_TRACE("seed " + std::to_string(seed) + ", " + testing::PrintToString(arguments));
        successes += expectAgreement(parser, arguments) ? 1 : 0;
    }
    // Neither half of the outcomes is rare.
    EXPECT_GT(successes, rounds / 5);
    EXPECT_LT(successes, rounds * 4 / 5);
}

} // namespace
} // namespace tarv_3_3
