#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <sstream>

#include "options/findOption.h"
#include "parser/BasicParser.h"
#include "support/CapturedLog.h"
#include "support/RandomCommandLine.h"
#include "support/roundsOf.h"
#include "tarv_3_3/IParseResult.h"
#include "tarv_3_3/completion.h"

namespace tarv_3_3 {
namespace {

/// What is offered behind `before` in place of `word`.
std::vector<std::string> offered(BasicParser& parser, const std::vector<std::string>& before,
                                 const std::string& word) {
    std::vector<const char*> words(1, "tool");
    for (const std::string& argument : before) {
        words.push_back(argument.c_str());
    }
    words.push_back(word.c_str());
    const Completion* const completion = complete(&parser, static_cast<int>(words.size()), words.data());
    std::vector<std::string> texts;
    for (unsigned i = 0; i < completion->candidateCount; ++i) {
        texts.emplace_back(completion->candidates[i].text);
    }
    release(completion);
    return texts;
}

struct Parsed {
    int status;
    std::string message;
    /// The place of the option that was stored in this parse; -1: none or several.
    long place;
};

Parsed parse(BasicParser& parser, const std::vector<std::string>& arguments) {
    std::vector<const char*> argv(1, "tool");
    for (const std::string& argument : arguments) {
        argv.push_back(argument.c_str());
    }
    IParseResult* result = nullptr;
    parser.createResult(&result);
    std::ostringstream trace;
    std::streambuf* const output = std::cout.rdbuf(trace.rdbuf());
    const int status = parser.parseArgsVector(static_cast<int>(argv.size()), argv.data(), result);
    internal::tarvLogEnabled = false;
    std::cout.rdbuf(output);
    Parsed parsed = {status, status == parseOk ? "" : parser.getErrorDesc(), -1};
    result->destroy();
    return parsed;
}

// That an action is missing yet is no fault of what is offered.
bool isAccepted(const Parsed& parsed) {
    return parsed.status == parseOk || parsed.message == "No action defined.";
}

// Behind an error nothing is accepted, but the last option may lack its value yet.
bool lacksValueAtEnd(BasicParser& parser, std::vector<std::string> arguments) {
    if (arguments.empty()) {
        return false;
    }
    const bool lacksValue = parse(parser, arguments).message.find("' requires a value") != std::string::npos;
    arguments.pop_back();
    return lacksValue && isAccepted(parse(parser, arguments));
}

/// A value that every kind takes which has no allowed ones.
std::string anyValue(const OptionDescription& option) {
    if (option.m_allowedValues.empty()) {
        return "1";
    }
    return option.m_type == vtString ? "red" : "1";
}

const OptionDescription* findOptionOf(BasicParser& parser, const std::string& name) {
    unsigned long place = 0;
    const auto& options = parser.registry().m_options;
    return findOption(name, place, options) == 0 ? &options[place] : nullptr;
}

/// A word at the cursor: the beginning of a name or of a value.
std::string makeWord(RandomCommandLine& random) {
    std::string word = random.argument();
    return random.once(3) ? word.substr(0, random.below(5)) : word;
}

struct Count {
    unsigned names = 0;
    unsigned values = 0;
    unsigned cut = 0;
};

void expectAccepted(BasicParser& parser, const std::vector<std::string>& before, const std::string& word,
                    Count& count) {
    for (const std::string& text : offered(parser, before, word)) {
        SCOPED_TRACE("offered: " + text);
        std::vector<std::string> arguments = before;
        arguments.push_back(text);
        const bool isName = text.back() == '=' && text.find('=') == text.size() - 1 && text.size() > 2;
        if (isName) {
            const std::string name = text.substr(text.find_first_not_of("-\xE2\x80\x93\x94"));
            const OptionDescription* const option = findOptionOf(parser, name.substr(0, name.size() - 1));
            ASSERT_NE(option, nullptr);
            arguments.back() += anyValue(*option);
            ++count.names;
        } else {
            ++(text.front() == '-' ? count.names : count.values);
        }
        const Parsed parsed = parse(parser, arguments);
        EXPECT_TRUE(isAccepted(parsed)) << parsed.message;
    }
}

// Names that several options have in common are left out: what is stored under them belongs to all.
TEST(Complete, OffersWhatTheParseAccepts) {
    const unsigned rounds = roundsOf(20000);
    Count count;
    for (unsigned seed = 0; seed < rounds && !testing::Test::HasFailure(); ++seed) {
        RandomCommandLine random(seed);
        BasicParser parser(random.flags());
        random.declare(parser, seed % 2 == 0, false);
        std::vector<std::string> before = random.arguments(3);
        if (random.once(3)) {
            before.push_back("--" + random.name());
        }
        const std::string word = makeWord(random);
        SCOPED_TRACE("seed " + std::to_string(seed) + ", " + testing::PrintToString(before) + " " + word);
        if (isAccepted(parse(parser, before)) || lacksValueAtEnd(parser, before)) {
            expectAccepted(parser, before, word, count);
        }
    }
    EXPECT_GT(count.names, rounds / 20);
    EXPECT_GT(count.values, rounds / 100);
}

/// Which option a single argument gives, by the parse alone; null: none.
class Given final : public EventHandler {
public:
    bool onOptionParse(const char* name) override {
        names.emplace_back(name);
        return true;
    }

    std::vector<std::string> names;
};

TEST(Complete, OffersWhatTheParseAcceptsWhenCutShort) {
    const unsigned rounds = roundsOf(20000);
    unsigned cut = 0;
    for (unsigned seed = 0; seed < rounds && !testing::Test::HasFailure(); ++seed) {
        RandomCommandLine random(seed);
        BasicParser parser(random.flags() | flagRejectUnknown | flagDashIsNotPositional);
        random.declare(parser, seed % 2 == 0, false);
        const std::vector<OptionDescription>& options = parser.registry().m_options;
        const std::vector<std::string> before = random.arguments(2);
        const std::string typed = random.cutShort(random.name());
        const std::string word = "--" + typed;
        SCOPED_TRACE("seed " + std::to_string(seed) + ", " + testing::PrintToString(before) + " " + word);
        if (typed.empty() || typed.find('=') != std::string::npos || !isAccepted(parse(parser, before))) {
            continue;
        }
        // The value that it may need stands in the same argument.
        for (const char* const value : {"", "=1", "=red"}) {
            std::vector<std::string> arguments = before;
            arguments.push_back(word + value);
            Given given;
            parser.addHandler(&given);
            const Parsed parsed = parse(parser, arguments);
            parser.removeHandler(&given);
            const bool isPlain = std::find(before.begin(), before.end(), "--") != before.end();
            if (parsed.status != parseOk || given.names.empty() || isPlain) {
                continue;
            }
            const std::string option = given.names.back();
            if (option.find('=') != std::string::npos) {
                // No argument gives it whole.
                continue;
            }
            bool isOffered = false;
            for (const std::string& text : offered(parser, before, word)) {
                const std::string name = text.substr(2, text.find('=') - 2);
                const OptionDescription* const found = findOptionOf(parser, name);
                isOffered = isOffered || (found != nullptr && found->primaryName() == option);
            }
            const bool isRest = options[0].primaryName() == option && !isOffered &&
                                (parser.flags() & flagPositionalTakesRest) != 0;
            EXPECT_TRUE(isOffered || isRest) << option;
            ++cut;
            break;
        }
    }
    EXPECT_GT(cut, rounds / 40);
}

} // namespace
} // namespace tarv_3_3
