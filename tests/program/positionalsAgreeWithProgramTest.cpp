#include <gtest/gtest.h>

#include <functional>
#include <type_traits>

#include <tarv_3_3/typed.h>

#include "compare/LineQuestion.h"
#include "compare/compare.h"
#include "explain/explainLine.h"
#include "model/readDescription.h"
#include "support/RandomCommandLine.h"
#include "support/TypedLine.h"
#include "support/roundsOf.h"

using namespace tarv_3_3;

namespace tarv_program {
namespace {

using Texts = std::vector<std::string>;

/// What the arguments without a name are in a random program.
struct Plan {
    enum Kind { text, choice, number };
    Kind kind;
    bool isList;
    bool isRequired;
    unsigned least;
    unsigned most;
    int greatest;
};

std::vector<Plan> randomPlans(RandomCommandLine& random) {
    std::vector<Plan> plans(1 + random.below(3));
    const unsigned list = random.below(5);
    for (std::size_t i = 0; i < plans.size(); ++i) {
        Plan& plan = plans[i];
        plan.kind = static_cast<Plan::Kind>(random.below(3));
        plan.isList = i == list;
        plan.isRequired = random.once(2);
        plan.least = random.below(3);
        plan.most = random.once(2) ? 0 : plan.least + 1 + random.below(2);
        plan.greatest = random.once(2) ? 9 : 20;
    }
    return plans;
}

/// A program of the typed face that says what its arguments were taken for.
class Sample {
public:
    explicit Sample(const std::vector<Plan>& plans) : m_tool("tool", "1", "") {
        for (const Plan& plan : plans) {
            if (plan.kind == Plan::number) {
                plan.isList ? declareList<int>(plan) : declareOne<int>(plan);
            } else {
                plan.isList ? declareList<std::string>(plan) : declareOne<std::string>(plan);
            }
        }
        m_tool.flag("verbose,v", "");
        m_tool.option<std::string>("output,o", "");
    }

    CommandLine described() {
        const char* const argv[] = {"tool", "tarvoption=describe"};
        return readDescription(m_tool.parse(2, argv).output(), "it");
    }

    /// The values of each, or "refused".
    std::string ask(const Texts& arguments) {
        if (parseLine(m_tool, arguments) != "ok") {
            return "refused";
        }
        std::string all;
        for (const auto& values : m_values) {
            all += values() + ";";
        }
        return all;
    }

private:
    static std::string shown(const std::string& text) { return "<" + text + ">"; }
    static std::string shown(int number) { return shown(std::to_string(number)); }

    std::string nextName() const { return "word" + std::to_string(m_values.size()); }

    template <class T>
    void declareOne(const Plan& plan) {
        const auto handle = m_tool.positional<T>(nextName().c_str(), "");
        refine<T>(handle, plan);
        m_values.push_back([=] { return handle.given() ? shown(*handle) : ""; });
    }

    template <class T>
    void declareList(const Plan& plan) {
        const auto handle = m_tool.positional<std::vector<T>>(nextName().c_str(), "");
        refine<T>(handle, plan);
        handle.times(plan.least, plan.most);
        m_values.push_back([=] {
            std::string all;
            for (const T& element : *handle) {
                all += shown(element);
            }
            return all;
        });
    }

    template <class T, class Handle>
    static void refine(const Handle& handle, const Plan& plan) {
        if (plan.isRequired) {
            handle.required();
        }
        if constexpr (std::is_same_v<T, int>) {
            handle.range(0, plan.greatest);
        } else {
            if (plan.kind == Plan::choice) {
                handle.oneOf("red", "green", "grey");
            }
        }
    }

    typed::Program m_tool;
    std::vector<std::function<std::string()>> m_values;
};

/// The same as `Sample::ask`, of a program that is rebuilt from its description.
std::string askRebuilt(const CommandLine& line, const Texts& arguments) {
    const Side side(line);
    LineAnswer answer = askLine(side, arguments, Wanted::values);
    if (!answer.isAccepted) {
        return "refused";
    }
    std::string all;
    for (const std::size_t place : side.slots().places()) {
        for (const std::string& value : answer.values[place]) {
            all += "<" + value + ">";
        }
        all += ";";
    }
    return all;
}

Texts randomArguments(RandomCommandLine& random) {
    Texts arguments(random.below(6));
    for (std::string& argument : arguments) {
        argument = random.oneOf({"1", "5", "15", "red", "re", "gr", "gree", "x", "", "7", "-v", "--verb",
                                 "--out=x", "-o", "--", "--other"});
    }
    return arguments;
}

TEST(Positionals, GoWhereTheProgramItselfTakesThem) {
    unsigned successes = 0;
    const unsigned rounds = roundsOf(400);
    for (unsigned seed = 0; seed < rounds && !testing::Test::HasFailure(); ++seed) {
        RandomCommandLine random(seed);
        Sample sample(randomPlans(random));
        const CommandLine line = sample.described();
        for (unsigned i = 0; i < 20; ++i) {
            const Texts arguments = randomArguments(random);
            SCOPED_TRACE("seed " + std::to_string(seed) + ": " + testing::PrintToString(arguments));
            const std::string expected = sample.ask(arguments);
            EXPECT_EQ(askRebuilt(line, arguments), expected);
            const ExplainedLine explained = explainLine(line, arguments);
            EXPECT_EQ(explained.isAccepted, expected != "refused") << table(explained);
            successes += expected != "refused" ? 1 : 0;
        }
    }
    EXPECT_GT(successes, rounds);
    EXPECT_LT(successes, rounds * 15);
}

// All lines of up to four of some words.
std::vector<Texts> allLines() {
    std::vector<Texts> lines = {{}};
    for (std::size_t i = 0; i < lines.size() && lines[i].size() < 4; ++i) {
        for (const char* const word : {"1", "15", "red", "text"}) {
            lines.push_back(lines[i]);
            lines.back().emplace_back(word);
        }
    }
    return lines;
}

TEST(Positionals, BreakWhereTheProgramsTakeThemForOthers) {
    const std::vector<Texts> lines = allLines();
    unsigned brokenPairs = 0;
    unsigned examples = 0;
    const unsigned rounds = roundsOf(300);
    for (unsigned seed = 0; seed < rounds && !testing::Test::HasFailure(); ++seed) {
        RandomCommandLine random(seed);
        std::vector<Plan> plans = randomPlans(random);
        Sample older(plans);
        plans[random.below(static_cast<unsigned>(plans.size()))] = randomPlans(random).front();
        if (random.once(3)) {
            plans.push_back(randomPlans(random).front());
        }
        bool hasList = false;
        for (Plan& plan : plans) {
            plan.isList = plan.isList && !hasList;
            hasList = hasList || plan.isList;
        }
        Sample newer(plans);
        const Comparison comparison = compare(older.described(), newer.described());
        Texts broken;
        for (const Texts& line : lines) {
            // What the newer program has more is empty here.
            const std::string before = older.ask(line);
            if (before != "refused" && newer.ask(line).compare(0, before.size(), before) != 0) {
                broken.push_back(testing::PrintToString(line) + " was " + before + ", is " + newer.ask(line));
            }
        }
        SCOPED_TRACE("seed " + std::to_string(seed));
        if (!broken.empty()) {
            EXPECT_FALSE(comparison.breaks.empty()) << testing::PrintToString(broken);
            ++brokenPairs;
        }
        for (const Finding& finding : comparison.breaks) {
            Texts line = words(finding.command);
            line.erase(line.begin());
            // Of what is quoted for a shell, nothing is said here.
            if (finding.command.find('\'') == std::string::npos) {
                EXPECT_NE(older.ask(line), "refused") << finding.command;
                EXPECT_NE(newer.ask(line).substr(0, older.ask(line).size()), older.ask(line))
                    << finding.command;
                ++examples;
            }
        }
    }
    EXPECT_GT(brokenPairs, rounds / 4);
    EXPECT_LT(brokenPairs, rounds);
    EXPECT_GT(examples, rounds / 4);
}

} // namespace
} // namespace tarv_program
