#include "reliability/AllocationScenario.h"

#include <gtest/gtest.h>

#include <cstring>
#include <new>
#include <ostream>

#include "reliability/FailingAllocations.h"

namespace {

using namespace tarv_3_3;

/// Far more allocations than any scenario makes: a sweep that gets there would never end.
constexpr long tooMany = 5000;

struct Outcome {
    bool threw;
    int status;
    failing::Account account;
};

/// What a sweep saw, so that it can be asked whether it proved anything.
struct Sweep {
    long failures = 0;
    bool around = false;
    bool inside = false;
    bool rendererFailed = false;
};

Outcome actWithout(const Scenario& scenario, Subject& session, long nth, failing::Mode mode) {
    Outcome outcome = {};
    failing::arm(nth, mode);
    try {
        outcome.status = scenario.act(session);
    } catch (const std::bad_alloc&) {
        outcome.threw = true;
    }
    outcome.account = failing::disarm();
    return outcome;
}

void expectParseFailure(const Outcome& outcome, Subject& session, failing::Mode mode, Sweep& sweep) {
    ASSERT_FALSE(outcome.threw);
    if (outcome.status == parseException) {
        EXPECT_STREQ(session.parser->getErrorDesc(), "");
        // With memory for the message, a failure inside the parse is never reported as one around it.
        EXPECT_FALSE(mode == failing::Mode::once && sweep.inside);
        sweep.around = true;
        return;
    }
    EXPECT_EQ(outcome.status, parseUnidentified);
    EXPECT_STREQ(session.parser->getErrorDesc(), "Unidentified problem detected.");
    sweep.inside = true;
}

void expectHelpFailure(const Outcome& outcome, Subject& session, Sweep& sweep) {
    if (outcome.threw) {
        return;
    }
    const std::string text = session.text;
    const std::string renderer = "Unknown error handled.";
    ASSERT_GE(text.size(), renderer.size());
    EXPECT_EQ(text.substr(text.size() - renderer.size()), renderer);
    EXPECT_EQ(session.parser->getErrorDesc(), renderer);
    sweep.rendererFailed = true;
}

void expectFailure(const Scenario& scenario, const Outcome& outcome, Subject& session, failing::Mode mode,
                   Sweep& sweep) {
    switch (scenario.failure) {
    case Failure::throws:
        EXPECT_TRUE(outcome.threw) << "status " << outcome.status;
        break;
    case Failure::creation:
        EXPECT_FALSE(outcome.threw);
        EXPECT_EQ(outcome.status, parseException);
        EXPECT_EQ(session.parser, nullptr);
        break;
    case Failure::parse:
        expectParseFailure(outcome, session, mode, sweep);
        break;
    case Failure::query:
        EXPECT_FALSE(outcome.threw);
        EXPECT_EQ(outcome.status, valueException);
        EXPECT_EQ(session.value.text, nullptr);
        break;
    case Failure::lastValue:
        EXPECT_FALSE(outcome.threw);
        EXPECT_TRUE(outcome.status == valueMissing || outcome.status == valueFound);
        break;
    case Failure::help:
        expectHelpFailure(outcome, session, sweep);
        break;
    }
}

/// The scenario again, now with memory: in the same parser and result, then with a fresh result.
void expectRecovery(const Scenario& scenario, Subject& session) {
    EXPECT_EQ(scenario.act(session), scenario.status) << session.parser->getErrorDesc();
    const std::string answerOfOldResult = scenario.answer(session);
    if (scenario.failure != Failure::parse) {
        EXPECT_EQ(answerOfOldResult, scenario.expected);
        return;
    }
    session.result->destroy();
    session.result = nullptr;
    session.parser->createResult(&session.result);
    EXPECT_EQ(scenario.act(session), scenario.status);
    EXPECT_EQ(scenario.answer(session), scenario.expected);
}

/// Fails the `nth` allocation; false when the scenario does not make that many.
bool failOne(const Scenario& scenario, long nth, failing::Mode mode, Sweep& sweep) {
    SCOPED_TRACE("allocation " + std::to_string(nth));
    const long before = failing::liveBlocks();
    failing::Account account = {};
    {
        Subject session;
        scenario.prepare(session);
        const Outcome outcome = actWithout(scenario, session, nth, mode);
        account = outcome.account;
        sweep.failures += account.failed;
        const bool succeeded = !outcome.threw && outcome.status == scenario.status &&
                               scenario.answer(session) == scenario.expected;
        if (account.failed == 0) {
            EXPECT_TRUE(succeeded) << scenario.answer(session);
        } else {
            if (!succeeded) {
                expectFailure(scenario, outcome, session, mode, sweep);
            }
            expectRecovery(scenario, session);
        }
    }
    // What a failed expectation prints would count as lost.
    if (!testing::Test::HasFailure()) {
        EXPECT_EQ(failing::liveBlocks(), before);
    }
    return account.failed != 0;
}

Sweep failEveryOne(const Scenario& scenario, failing::Mode mode) {
    Sweep sweep;
    long nth = 1;
    while (failOne(scenario, nth, mode, sweep) && !testing::Test::HasFailure()) {
        ++nth;
        if (nth == tooMany) {
            ADD_FAILURE() << "the sweep does not end";
            break;
        }
    }
    EXPECT_GT(sweep.failures, 0) << "the scenario never asked for memory";
    return sweep;
}

class AllocationFailure : public testing::TestWithParam<Scenario> {
protected:
    static void SetUpTestSuite() { failing::hookVariants(); }

    // What is made once in a process is made here, so that it does not count as lost.
    void SetUp() override {
        Subject session;
        GetParam().prepare(session);
        GetParam().act(session);
        GetParam().answer(session);
    }
};

std::vector<Scenario> allScenarios() {
    std::vector<Scenario> all;
    for (const auto& group : {declarationScenarios(), parseScenarios(), handlerScenarios(), queryScenarios(),
                              helpScenarios(), descriptionScenarios()}) {
        all.insert(all.end(), group.begin(), group.end());
    }
    return all;
}

std::string nameOf(const testing::TestParamInfo<Scenario>& info) {
    return info.param.name;
}

TEST_P(AllocationFailure, OnceIsReportedAndLeavesEverythingUsable) {
    const Sweep sweep = failEveryOne(GetParam(), failing::Mode::once);
    const bool isParse = GetParam().failure == Failure::parse;
    EXPECT_EQ(sweep.around, isParse);
    EXPECT_EQ(sweep.inside, isParse);
    EXPECT_EQ(sweep.rendererFailed, GetParam().failure == Failure::help);
}

TEST_P(AllocationFailure, ForGoodIsReportedAndLeavesEverythingUsable) {
    failEveryOne(GetParam(), failing::Mode::forGood);
}

INSTANTIATE_TEST_SUITE_P(In, AllocationFailure, testing::ValuesIn(allScenarios()), nameOf);

TEST(AllocationFailureInsideAParse, IsTheMessageWhenTheLastOneLeftRoomForIt) {
    Subject session;
    open(session);
    session.parser->option("level", "", vtInt32);
    ASSERT_EQ(parse(session, {"--level=a value that is refused"}), parseFailed);
    int inside = 0;
    for (long nth = 1;; ++nth) {
        failing::arm(nth, failing::Mode::forGood);
        const int status = parse(session, {"--level=3"});
        if (failing::disarm().failed == 0) {
            EXPECT_EQ(status, parseOk);
            break;
        }
        if (status == parseUnidentified) {
            ++inside;
            EXPECT_STREQ(session.parser->getErrorDesc(), "Unidentified problem detected.");
        } else {
            EXPECT_EQ(status, parseException);
        }
    }
    EXPECT_GT(inside, 0);
}

TEST(AllocationFailureInsideAParse, KeepsWhatWasStoredBefore) {
    for (long nth = 1;; ++nth) {
        SCOPED_TRACE(nth);
        Subject session;
        open(session);
        session.parser->option("output-file,output,o", "", vtString);
        ASSERT_EQ(parse(session, {"-o=the first value of the option"}), parseOk);
        failing::arm(nth, failing::Mode::once);
        parse(session, {"-o=the second value of the option"});
        const failing::Account account = failing::disarm();
        for (const char* const name : {"output-file", "output", "o"}) {
            EXPECT_STREQ(session.result->get(name).text, "the first value of the option") << name;
        }
        if (account.failed == 0) {
            EXPECT_GT(nth, 1);
            break;
        }
    }
}

TEST(AllocationFailureSweep, HasAtLeastThirtyScenarios) {
    EXPECT_GE(allScenarios().size(), 30U);
}

} // namespace

/// Shows a scenario by its name where a test reports it.
void PrintTo(const Scenario& scenario, std::ostream* out) {
    *out << scenario.name;
}
