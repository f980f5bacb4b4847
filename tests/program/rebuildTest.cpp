#include "model/rebuild.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <tarv_3_3/description.h>

#include "model/readDescription.h"
#include "support/RandomCommandLine.h"
#include "support/roundsOf.h"

using namespace tarv_3_3;

namespace tarv_program {
namespace {

/// Makes its parser a host's: with defaults, notes and rules.
void remark(BasicParser& parser, RandomCommandLine& random) {
    for (unsigned i = 0; i < 3; ++i) {
        annotate(&parser, random.name().c_str(), "environment", random.word().c_str());
        annotate(&parser, random.name().c_str(), "host.note", "\xFF\x01 text");
        addRule(&parser, static_cast<int>(random.below(6)), (random.word() + "," + random.word()).c_str());
    }
}

/// What is told to handlers, and how the parse and the rules end.
class Outcome final : private EventHandler {
public:
    Outcome(IParser& parser, const std::vector<std::string>& arguments) {
        std::vector<const char*> argv(1, "program");
        for (const std::string& argument : arguments) {
            // Not the switch of the trace.
            argv.push_back(argument.find("tarvoption") == 0 ? "x" : argument.c_str());
        }
        parser.addHandler(this);
        const Result result = createResult(parser);
        const int status = parser.parseArgsVector(static_cast<int>(argv.size()), argv.data(), result.get());
        isSuccess = status == parseOk;
        m_text += std::to_string(status);
        m_text += isSuccess ? "" : parser.getErrorDesc();
        m_text += isSuccess && checkRules(&parser, result.get()) != parseOk ? parser.getErrorDesc() : "";
        parser.removeHandler(this);
    }

    const std::string& text() const { return m_text; }

    bool isSuccess = false;

private:
    bool onOptionParse(const char* name) override { return note(name); }
    bool onValueParse(const char* name, const Value& value) override {
        return note(std::string(name) + "=" + value.text);
    }
    bool onUknownArgument(const char* argument) override { return note(argument); }
    bool note(const std::string& text) {
        m_text += text + "; ";
        return true;
    }

    std::string m_text;
};

// The order of notes says nothing.
nlohmann::json described(IParser& parser) {
    return nlohmann::json::parse(describeAsJson(&parser));
}

TEST(Rebuild, GivesTheDescriptionBackAndTheSameOutcomes) {
    unsigned successes = 0;
    const unsigned rounds = roundsOf(1000);
    for (unsigned seed = 0; seed < rounds && !testing::Test::HasFailure(); ++seed) {
        RandomCommandLine random(seed);
        BasicParser original(random.flags());
        random.declare(original, seed % 2 == 0);
        remark(original, random);
        const std::string json = describeAsJson(&original);
        SCOPED_TRACE("seed " + std::to_string(seed) + "\n" + json);
        const Parser rebuilt = rebuild(readDescription(json, "it"));
        EXPECT_EQ(described(*rebuilt), described(original));
        for (unsigned i = 0; i < 5; ++i) {
            const std::vector<std::string> arguments = random.arguments(4);
            const Outcome expected(original, arguments);
            EXPECT_EQ(Outcome(*rebuilt, arguments).text(), expected.text());
            successes += expected.isSuccess ? 1 : 0;
        }
    }
    EXPECT_GT(successes, rounds);
    EXPECT_LT(successes, rounds * 4);
}

TEST(Rebuild, GivesBackDefaultsTopicsSeparatorsAndOptionFiles) {
    const Parser original = rebuild(CommandLine());
    original->option("level", "How much.", vtInt32, "one:The first").defaultValue(-3).tokenize(0);
    original->option("ratio,r", "", vtDouble, "two").defaultValue(0.1).allowValue(1e300).allowValue(0.1);
    original->option("size", "", vtUInt64).allowValue(std::uint64_t(18446744073709551615U)).tokenize('\xFF');
    original->option("switch", "", vtBool, "one").defaultValue(true);
    original->option("a,b,c,d", "", vtNull, "refused:Stays");
    original->option(",empty", "", vtString).defaultValue("").synonym("a,comma");
    original->option("", "", vtString).positional();
    original->action("do,d", "", vtNull).synonym("make").tag("free");
    original->modifier("mod", "do,free", "", vtInt64, "tarv_hidden").defaultValue(std::int64_t(1));
    original->addOptionFileOption("Files.", "one");
    const std::string json = describeAsJson(original.get());
    const Parser rebuilt = rebuild(readDescription(json, "it"), OptionFiles::areRead);
    EXPECT_EQ(describeAsJson(rebuilt.get()), json);
}

TEST(Rebuild, SaysWhatIsNotAsItMustBe) {
    CommandLine line;
    line.options.resize(2);
    line.options[0].names = {"one"};
    line.options[1].names = {"two"};
    const auto message = [&] {
        try {
            rebuild(line);
        } catch (const Failure& failure) {
            return std::string(failure.what());
        }
        return std::string();
    };
    EXPECT_EQ(message(), "");
    line.rules = {{ruleRequired, {"one"}}, {ruleNeeds, {"one", "three"}}};
    EXPECT_EQ(message(), "rules[1]: does not hold of what is declared");
    line.options[0].kind = vtInt32;
    line.options[0].allowed = {"1", "x"};
    EXPECT_EQ(message(), "declarations[0]: 'x' is no value of its kind");
}

} // namespace
} // namespace tarv_program
