#include "compare/NameQuestion.h"

#include <gtest/gtest.h>

namespace tarv_program {
namespace {

Option named(std::vector<std::string> names, tarv_3_3::das_variant_type_t kind = tarv_3_3::vtNull) {
    Option option;
    option.names = std::move(names);
    option.kind = kind;
    return option;
}

CommandLine sampleLine() {
    CommandLine line;
    line.names = {"tool"};
    line.flags = tarv_3_3::flagRejectUnknown;
    line.options = {
        named({"verbose", "v"}), named({"max-count"}),        named({"color"}, tarv_3_3::vtBool),
        named({"max-depth"}),    named({"no-op", "nothing"}), named({"file"}, tarv_3_3::vtString)};
    return line;
}

/// "3 max-depth", "2 not no-color", "several max-count max-depth".
std::string said(const Meaning& meaning) {
    std::string text;
    switch (meaning.kind) {
    case Meaning::nothing:
        return "nothing";
    case Meaning::positional:
        return "positional";
    case Meaning::one:
        return std::to_string(meaning.place) + (meaning.isNegated ? " not " : " ") + meaning.name;
    case Meaning::several:
        text = "several";
        for (const std::string& name : meaning.candidates) {
            text += " " + name;
        }
    }
    return text;
}

void expectAnswers(const CommandLine& line, const std::map<std::string, std::string>& answers) {
    NameQuestion question(line);
    const Side whole(line);
    for (const auto& [typed, expected] : answers) {
        SCOPED_TRACE(typed);
        EXPECT_EQ(said(question.meaningOf(typed)), expected);
        EXPECT_EQ(said(whole.meaningOf(typed)), expected);
    }
}

TEST(NameQuestion, AnswersAsAParserOfAllOptions) {
    const CommandLine line = sampleLine();
    expectAnswers(line, {{"verbose", "0 verbose"},
                         {"v", "0 v"},
                         {"ver", "0 verbose"},
                         {"m-d", "3 max-depth"},
                         {"max-count", "1 max-count"},
                         {"m-", "several max-count max-depth"},
                         {"no-color", "2 not no-color"},
                         {"n-c", "2 not no-color"},
                         {"n-o", "4 no-op"},
                         {"n-", "several no-color no-op"},
                         {"no", "4 nothing"},
                         {"fi", "5 file"},
                         {"m-d-x", "nothing"},
                         {"x", "nothing"}});
}

TEST(NameQuestion, FindsThatNamesArePositionalWhateverTheyBeginWith) {
    CommandLine line = sampleLine();
    line.options.back().positional = Positional::filled;
    expectAnswers(line, {{"verb", "0 verbose"}, {"x", "positional"}, {"m-d-x", "positional"}});
}

} // namespace
} // namespace tarv_program
