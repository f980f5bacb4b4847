#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include <tarv_3_3/description.h>

#include "compare/compare.h"
#include "model/readDescription.h"
#include "support/RandomCommandLine.h"
#include "support/roundsOf.h"

using namespace tarv_3_3;

namespace tarv_program {
namespace {

/// Notes which option a parse was given, and whether it was a switch that was turned off.
class Given final : private EventHandler {
public:
    /// The primary name of the option that "--" and `typed` gives, with "=0" where it turns a switch off; ""
    /// for none.
    std::string ask(IParser& parser, const std::string& typed) {
        const std::string argument = "--" + typed;
        const char* const argv[] = {"tool", argument.c_str(), "1"};
        m_name.clear();
        parser.addHandler(this);
        parser.parseArgsVector(2, argv, nullptr);
        if (m_name.empty()) {
            parser.parseArgsVector(3, argv, nullptr);
        }
        parser.removeHandler(this);
        return m_name;
    }

private:
    bool onOptionParse(const char* name) override {
        m_name = m_name.empty() ? std::string("=") + name : m_name;
        return true;
    }
    bool onValueParse(const char*, const Value& value) override {
        m_name += value.text == std::string("0") ? "=0" : "";
        return true;
    }

    std::string m_name;
};

void addAbbreviations(const std::string& name, std::set<std::string>& all, std::size_t at = 0,
                      const std::string& typed = "") {
    const std::size_t end = std::min(name.find('-', at), name.size());
    for (std::size_t length = at == 0 ? 1 : 0; length <= end - at; ++length) {
        const std::string longer = typed + name.substr(at, length);
        if (end == name.size()) {
            all.insert(longer);
        } else {
            addAbbreviations(name, all, end + 1, longer + "-");
        }
    }
}

void declare(BasicParser& parser, RandomCommandLine& random, unsigned count) {
    for (unsigned i = 0; i < count; ++i) {
        std::string names = random.word();
        while (random.once(2)) {
            names += "-" + random.word();
        }
        parser.option(names.c_str(), "", random.once(2) ? vtBool : vtNull, "");
    }
}

std::set<std::string> abbreviationsOf(const BasicParser& parser) {
    std::set<std::string> all;
    for (const OptionDescription& option : parser.registry().m_options) {
        for (const std::string& name : option.m_names) {
            addAbbreviations(name, all);
            if (option.m_type == vtBool) {
                addAbbreviations("no-" + name, all);
            }
        }
    }
    return all;
}

CommandLine lineOf(IParser& parser) {
    CommandLine line = readDescription(describeAsJson(&parser), "it");
    line.names = {"tool"};
    return line;
}

TEST(CompareNames, FindsExactlyTheAbbreviationsThatAParseTakesOtherwise) {
    std::size_t all = 0;
    const unsigned rounds = roundsOf(200);
    for (unsigned seed = 0; seed < rounds && !testing::Test::HasFailure(); ++seed) {
        RandomCommandLine random(seed);
        BasicParser older(flagRejectUnknown | flagDashIsNotPositional);
        BasicParser newer(flagRejectUnknown | flagDashIsNotPositional);
        declare(older, random, 1 + random.below(5));
        RandomCommandLine again(random.once(2) ? seed : seed + rounds);
        again.once(2);
        declare(newer, again, 1 + random.below(5));
        declare(newer, random, random.below(3));

        std::size_t expected = 0;
        Given given;
        for (const std::string& typed : abbreviationsOf(older)) {
            const std::string before = given.ask(older, typed);
            expected += !before.empty() && given.ask(newer, typed) != before ? 1 : 0;
        }
        std::size_t found = 0;
        for (const Finding& finding : compare(lineOf(older), lineOf(newer)).breaks) {
            found += finding.kind == "name" ? 1 + finding.shorter : 0;
        }
        EXPECT_EQ(found, expected) << "seed " << seed << "\n"
                                   << describeAsJson(&older) << describeAsJson(&newer);
        all += expected;
    }
    EXPECT_GT(all, rounds);
}

TEST(CompareNames, ComparesSevenHundredOptionsOfManyWords) {
    const std::size_t count = roundsOf(700);
    const char* const words[] = {"max", "min", "count", "size", "depth", "color", "output", "input", "file"};
    const auto line = [&](const char* last) {
        CommandLine made;
        made.names = {"tool"};
        for (std::size_t i = 0; i < count; ++i) {
            Option option;
            option.kind = vtString;
            option.names = {std::string(words[i % 9]) + "-" + words[i / 9 % 9] + "-" + words[i / 81 % 9] +
                            last};
            option.defaultText = "text";
            made.options.push_back(option);
        }
        return made;
    };
    EXPECT_EQ(compare(line(""), line("")).breaks.size(), 0U);
    EXPECT_GE(compare(line(""), line("-new")).breaks.size(), count);
    EXPECT_GE(compare(line("x"), line("y")).breaks.size(), count);
}

} // namespace
} // namespace tarv_program
