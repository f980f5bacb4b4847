#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "tarv_3_3/completion.h"
#include "tarv_3_3/description.h"
#include "tarv_3_3/tarv.h"

namespace {

using namespace tarv_3_3;

struct Destroy {
    void operator()(IParser* parser) const { parser->destroy(); }
};
using Parser = std::unique_ptr<IParser, Destroy>;

Parser makeParser(int flags = 0) {
    IParser* parser = nullptr;
    createParser(&parser, flags);
    return Parser(parser);
}

/// The candidates with a blank behind each, "files" or "directories" and from where, and what they have in
/// common, where that is more than what is typed.
std::string offered(IParser& parser, std::vector<const char*> words, ValueCompleter completer = nullptr,
                    void* context = nullptr) {
    words.insert(words.begin(), "tool");
    const Completion* const completion =
        complete(&parser, static_cast<int>(words.size()), words.data(), completer, context);
    if (completion == nullptr) {
        return "null";
    }
    std::string text;
    for (unsigned i = 0; i < completion->candidateCount; ++i) {
        text += std::string(completion->candidates[i].text) + " ";
    }
    const char* const kinds[] = {"", "files", "directories"};
    text += kinds[completion->files];
    text += completion->fileOffset != 0 ? " from " + std::to_string(completion->fileOffset) : "";
    text += std::strcmp(completion->common, words.back()) != 0 ? "| " + std::string(completion->common) : "";
    release(completion);
    return text;
}

struct Case {
    std::vector<const char*> words;
    const char* expected;
};

void expectOffers(IParser& parser, const std::vector<Case>& cases, ValueCompleter completer = nullptr) {
    for (const Case& tried : cases) {
        SCOPED_TRACE(testing::PrintToString(tried.words));
        EXPECT_EQ(offered(parser, tried.words, completer), tried.expected);
    }
}

TEST(Complete, OffersNames) {
    const Parser parser = makeParser();
    parser->option("max-count,m", "", vtInt32);
    parser->option("max-depth", "", vtInt32);
    parser->option("verbose", "", vtBool);
    parser->option("colour", "", vtString).synonym("color");
    parser->option("secret", "", vtNull, "tarv_hidden");
    expectOffers(*parser, {
                              {{""}, "--max-count= --max-depth= --verbose --colour= | --"},
                              {{"-"}, "--max-count= --max-depth= --verbose --colour= | --"},
                              {{"--"}, "--max-count= --max-depth= --verbose --colour= "},
                              {{"-m"}, "-max-count= -max-depth= | -max-"},
                              {{"--m-"}, "--max-count= --max-depth= | --max-"},
                              {{"--m-c"}, "--max-count= | --max-count="},
                              {{"--max-count"}, "--max-count= | --max-count="},
                              {{"\xE2\x80\x94v"}, "\xE2\x80\x94verbose | \xE2\x80\x94verbose"},
                              {{"--n"}, ""},
                              {{"--no"}, "--no-verbose | --no-verbose"},
                              {{"--n-v"}, "--no-verbose | --no-verbose"},
                              {{"--color"}, "--color= | --color="},
                              {{"--s"}, "--secret | --secret"},
                              {{"---"}, ""},
                              {{"--zzz"}, ""},
                              {{"zzz"}, ""},
                              {{"--verbose", "--"}, "--max-count= --max-depth= --colour= "},
                              {{"--verbose", "--v"}, "--verbose | --verbose"},
                              {{"--", "--v"}, "files"},
                              {{"--zzz", "--v"}, "--verbose | --verbose"},
                              {{"--max-count", "-"}, ""},
                              {{"--verbose="}, ""},
                              {{"tarvoption=tarvlogenable=1", "--v"}, "--verbose | --verbose"},
                          });
}

TEST(Complete, LengthensEachWordAsFarAsAllAgree) {
    const Parser parser = makeParser();
    parser->option("maximal-count-x", "", vtNull);
    parser->option("maximum-counter-y", "", vtNull);
    parser->option("\xC3\xA4-b", "", vtNull);
    parser->option("\xC3\xB6-b", "", vtNull);
    expectOffers(*parser, {{{"--m-c"}, "--maximal-count-x --maximum-counter-y | --maxim-count"},
                           {{"--m-c-"}, "--maximal-count-x --maximum-counter-y | --maxim-count-"},
                           {{"--\xC3"}, "--\xC3\xA4-b --\xC3\xB6-b "}});
}

TEST(Complete, OffersNoNameThatWouldBeAnother) {
    const Parser parser = makeParser();
    parser->option("color", "", vtBool);
    parser->option("z", "", vtNull).synonym("no-color");
    parser->option("a=b", "", vtNull);
    parser->option("-c", "", vtNull);
    parser->option("x", "", vtNull).synonym("twice");
    parser->option("y", "", vtNull).synonym("twice");
    expectOffers(
        *parser,
        {{{"--"}, "--color --z --x --y "}, {{"--no"}, ""}, {{"--a"}, ""}, {{"---"}, ""}, {{"--t"}, ""}});
}

TEST(Complete, HeedsActions) {
    const Parser parser = makeParser();
    parser->action("search", "", vtNull);
    parser->action("replace", "", vtNull);
    parser->modifier("pattern", "search,replace", "", vtString);
    parser->modifier("with", "replace", "", vtString);
    parser->modifier("near", "search", "", vtNull);
    parser->option("verbose", "", vtBool);
    expectOffers(*parser, {{{"--"}, "--search --replace --pattern= --with= --near --verbose "},
                           {{"--search", "--"}, "--pattern= --near --verbose "},
                           {{"--search", "--r"}, ""},
                           {{"--search", "--s"}, "--search | --search"},
                           {{"--search", "--with="}, ""},
                           {{"--near", "--"}, "--search --pattern= --verbose "},
                           {{"--pattern=x", "--"}, "--search --replace --with= --near --verbose "}});
}

TEST(Complete, HeedsRules) {
    const Parser parser = makeParser();
    parser->option("red", "", vtBool);
    parser->option("green", "", vtNull);
    parser->option("blue", "", vtNull);
    parser->option("gold", "", vtNull);
    addRule(parser.get(), ruleAtMostOne, "red,green");
    addRule(parser.get(), ruleExactlyOne, "blue,gold");
    addRule(parser.get(), ruleAllOrNone, "green,gold");
    expectOffers(*parser, {{{"--red", "--g"}, "--gold | --gold"},
                           {{"--red", "--r"}, "--red | --red"},
                           {{"--no-red", "--g"}, "--green --gold "},
                           {{"--green", "--r"}, ""},
                           {{"--green", "--no"}, "--no-red | --no-red"},
                           {{"--gold", "--"}, "--red --green "}});
}

TEST(Complete, ExcludesWhatSeveralRulesExclude) {
    const Parser parser = makeParser();
    parser->option("red", "", vtNull);
    parser->option("green", "", vtNull);
    parser->option("blue", "", vtNull);
    addRule(parser.get(), ruleAtMostOne, "red,green");
    addRule(parser.get(), ruleAtMostOne, "blue,green");
    addRule(parser.get(), ruleAllOrNone, "red,blue");
    expectOffers(*parser, {{{"--red", "--"}, "--blue | --blue"}, {{"--red", "--blue", "--g"}, ""}});
}

TEST(Complete, OffersNoValueThatWouldBeAnother) {
    const Parser parser = makeParser();
    parser->option("which", "", vtString).allowValue("--which=x").allowValue("y").tokenize(0).positional();
    parser->option("title", "", vtString).allowValue(" x").allowValue("y").tokenize(0);
    parser->option("sizes", "", vtInt32).allowValue(8).allowValue(16);
    expectOffers(*parser, {{{""}, "y | y"},
                           {{"--title="}, "--title= x --title=y "},
                           {{"--title "}, "--title y | --title y"},
                           {{"--sizes=8,8,"}, "--sizes=8,8,16 | --sizes=8,8,16"}});
}

TEST(Complete, HeedsNotesAboutFiles) {
    const Parser parser = makeParser();
    parser->option("input", "", vtString);
    parser->option("count", "", vtInt32);
    parser->option("output", "", vtString);
    annotate(parser.get(), "input", "value", "NAME");
    annotate(parser.get(), "count", "complete", "file");
    expectOffers(
        *parser,
        {{{"--input="}, "files from 8"}, {{"--count="}, "files from 8"}, {{"--output="}, "files from 9"}});
}

TEST(Complete, OffersValues) {
    const Parser parser = makeParser(flagDashIsNotPositional | flagPlainArePositional);
    parser->option("color", "", vtString)
        .allowValue("auto")
        .allowValue("always")
        .allowValue("-x")
        .tokenize(0);
    parser->option("sizes", "", vtInt32).allowValue(8).allowValue(16).allowValue(160);
    parser->option("count", "", vtInt32);
    parser->option("input", "", vtString);
    parser->option("target", "", vtString);
    parser->option("name", "", vtString);
    parser->option("which", "", vtString).allowValue("-this").allowValue("that").positional();
    annotate(parser.get(), "target", "complete", "directory");
    annotate(parser.get(), "name", "complete", "none");
    expectOffers(*parser, {{{"--color="}, "--color=auto --color=always --color=-x "},
                           {{"--col=a"}, "--col=auto --col=always "},
                           {{"--color=al"}, "--color=always | --color=always"},
                           {{"--color a"}, "--color auto --color always "},
                           {{"--color", ""}, "auto always | a"},
                           {{"--color", "-"}, ""},
                           {{"--sizes="}, "--sizes=8 --sizes=16 --sizes=160 "},
                           {{"--sizes=16,"}, "--sizes=16,8 --sizes=16,160 "},
                           {{"--sizes", "8,1"}, "8,16 8,160 | 8,16"},
                           {{"--count="}, ""},
                           {{"--input="}, "files from 8"},
                           {{"--input=a,b"}, "files from 10"},
                           {{"--input", "a"}, "files"},
                           {{"--target=x"}, "directories from 9"},
                           {{"--name="}, ""},
                           {{""}, "that | that"},
                           {{"--", "-"}, "-this | -this"}});
}

bool completeBranch(void*, const char* option, const char* word, CandidateSink& sink) {
    if (std::strcmp(option, "branch") != 0) {
        return false;
    }
    sink.add("main", "The first.");
    sink.add(nullptr, nullptr);
    sink.add("mail", nullptr);
    sink.add("other", "");
    sink.add("", "");
    sink.add((std::string(word) + "+").c_str(), "");
    return true;
}

TEST(Complete, OffersTheValuesOfTheHost) {
    const Parser parser = makeParser();
    parser->option("branch", "", vtString).tokenize(0);
    parser->option("input", "", vtString);
    expectOffers(*parser,
                 {{{"--branch="}, "--branch=main --branch=mail --branch=other --branch=+ "},
                  {{"--branch=ma"}, "--branch=main --branch=mail --branch=ma+ "},
                  {{"--branch", "mai"}, "main mail mai+ "},
                  {{"--input="}, "files from 8"}},
                 completeBranch);
}

TEST(Complete, AnswersNothingToArgumentsThatAreNone) {
    const Parser parser = makeParser();
    const char* const words[] = {"tool", nullptr, ""};
    EXPECT_EQ(complete(nullptr, 1, words), nullptr);
    EXPECT_EQ(complete(parser.get(), 1, words), nullptr);
    EXPECT_EQ(complete(parser.get(), -5, words), nullptr);
    EXPECT_EQ(complete(parser.get(), 2, nullptr), nullptr);
    EXPECT_EQ(complete(parser.get(), 3, words), nullptr);
    release(static_cast<const Completion*>(nullptr));
}

TEST(AnswerCompletion, PrintsTheDescriptionThatIsAskedFor) {
    const Parser parser = makeParser();
    parser->option("level", "", vtInt32);
    const char* const words[] = {"tool", "tarvoption=describe"};
    testing::internal::CaptureStdout();
    EXPECT_TRUE(answerCompletion(parser.get(), 2, words));
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              R"({"format": "tarv-description", "version": "1.1",
"flags": [],
"topics": [
{"name": ""}],
"declarations": [
{"role": "option", "kind": "int32", "names": ["level"], "separator": ","}],
"rules": [],
"checks": []}
)");
}

TEST(AnswerCompletion, IsNotAskedByOtherArguments) {
    const Parser parser = makeParser();
    const char* const words[] = {"tool", "x"};
    EXPECT_FALSE(answerCompletion(parser.get(), 2, words));
    EXPECT_FALSE(answerCompletion(parser.get(), 0, nullptr));
}

} // namespace
