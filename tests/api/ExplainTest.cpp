#include "tarv_3_3/explain.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tarv_3_3/tarv.h"

using namespace tarv_3_3;

namespace {

std::string describe(const ExplainedArgument& argument) {
    static const char* const roles[] = {"trace", "named",   "value",    "positional", "marker",
                                        "plain", "unknown", "misnamed", "ambiguous"};
    static const char* const sources[] = {"no value", "from name",     "same argument",
                                          "next",     "unwanted",      "unwanted by switch",
                                          "missing",  "next is empty", "next looks like option"};
    std::string text = roles[argument.role];
    if (argument.place >= 0) {
        text += " " + std::to_string(argument.place);
    }
    if (argument.role == explainedNamed) {
        text += std::string(" ") + argument.name + " [" + std::to_string(argument.nameStart) + "," +
                std::to_string(argument.nameEnd) + "," + std::to_string(argument.valueStart) + "] " +
                sources[argument.source];
    }
    text += argument.isAbbreviated != 0 ? ", cut short" : "";
    text += argument.isNegated != 0 ? ", negated" : "";
    text += argument.isRefused != 0 ? ", refused" : "";
    for (unsigned i = 0; i < argument.candidateCount; ++i) {
        text += std::string(" ") + argument.candidates[i];
    }
    return text;
}

class ExplainTest : public testing::Test {
protected:
    ExplainTest() {
        createParser(&parser, flagDashIsNotPositional);
        parser->option("verbose,v", "", vtBool);
        parser->option("version", "", vtNull);
        parser->option("level,l", "", vtInt32);
        parser->option("file", "", vtString).positional();
    }
    ~ExplainTest() override { parser->destroy(); }

    std::string explained(std::vector<const char*> argv) {
        argv.insert(argv.begin(), "tool");
        const Explanation* const explanation = explain(parser, static_cast<int>(argv.size()), argv.data());
        if (explanation == nullptr) {
            return "null";
        }
        std::string text;
        for (unsigned i = 0; i < explanation->argumentCount; ++i) {
            text += describe(explainedAt(*explanation, i)) + "; ";
        }
        release(explanation);
        return text;
    }

    IParser* parser = nullptr;
};

TEST_F(ExplainTest, SaysWhatEachArgumentIs) {
    const struct {
        std::vector<const char*> arguments;
        const char* expected;
    } rows[] = {
        {{}, ""},
        {{"--lev=3"}, "named 2 level [2,5,6] same argument, cut short; "},
        {{"-l", "3", "a"}, "named 2 l [1,2,2] next; value 2; positional 3; "},
        {{"--n-verb"}, "named 0 no-verbose [2,8,8] from name, cut short, negated; "},
        {{"\xE2\x80\x94level 4"}, "named 2 level [3,8,9] same argument; "},
        {{"--ver", "--version=1"},
         "ambiguous, refused verbose version; named 1 version [2,9,10] unwanted, refused; "},
        {{"--level", "-1"}, "named 2 level [2,7,7] next looks like option, refused; unknown; "},
        {{"--", "--level"}, "marker; plain; "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.expected);
        EXPECT_EQ(explained(row.arguments), row.expected);
    }
}

TEST_F(ExplainTest, KnowsTheSizesOfItsRecords) {
    const char* const argv[] = {"tool", "-v"};
    const Explanation* const explanation = explain(parser, 2, argv);
    EXPECT_EQ(explanation->size, sizeof(Explanation));
    EXPECT_EQ(explanation->stride, sizeof(ExplainedArgument));
    release(explanation);
}

TEST_F(ExplainTest, OutlivesItsParser) {
    const char* const argv[] = {"tool", "--ver"};
    IParser* other = nullptr;
    createParser(&other);
    other->option("version", "", vtNull);
    other->option("verbose", "", vtNull);
    const Explanation* const explanation = explain(other, 2, argv);
    other->destroy();
    EXPECT_EQ(describe(explainedAt(*explanation, 0)), "ambiguous, refused version verbose");
    release(explanation);
}

TEST_F(ExplainTest, RefusesWhatIsNull) {
    const char* const argv[] = {"tool", nullptr};
    EXPECT_EQ(explain(parser, 2, argv), nullptr);
    EXPECT_EQ(explain(nullptr, 1, argv), nullptr);
    release(static_cast<const Explanation*>(nullptr));
}

} // namespace
