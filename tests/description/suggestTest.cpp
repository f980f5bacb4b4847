#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "parser/BasicParser.h"
#include "tarv_3_3/description.h"

using namespace tarv_3_3;

namespace {

std::string suggested(IParser& parser, const std::string& argument) {
    const char* const sentence = suggest(&parser, argument.c_str());
    return sentence != nullptr ? sentence : "(null)";
}

void declare(BasicParser& parser) {
    parser.option("max-count,m", "", vtInt32, "");
    parser.option("verbose,v", "", vtBool, "");
    parser.option("level,l", "", vtInt32, "");
    parser.option("output,o", "", vtString, "");
    parser.option("quiet,q", "", vtNull, "");
    parser.option("secret,s", "", vtNull, "tarv_hidden");
    parser.option("pattern,p", "", vtString, "").positional();
    parser.action("rebuild-index", "", vtNull, "");
}

struct Row {
    const char* argument;
    const char* sentence;
};

void expectSentences(BasicParser& parser, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        SCOPED_TRACE(row.argument);
        EXPECT_EQ(suggested(parser, row.argument), row.sentence);
    }
}

TEST(Suggest, NamesWhatIsNear) {
    BasicParser parser(0);
    declare(parser);
    expectSentences(parser, {
                                {"--m-cuont", "Did you mean '--max-count'?"},
                                {"--m-cuont=3", "Did you mean '--max-count'?"},
                                {"--m-cuont 3", "Did you mean '--max-count'?"},
                                {"-m-cuont", "Did you mean '--max-count'?"},
                                {"\xE2\x80\x93\xE2\x80\x93m-cuont", "Did you mean '--max-count'?"},
                                {"--count", "Did you mean '--max-count'?"},
                                {"--levle", "Did you mean '--level'?"},
                                {"--no-verbsoe", "Did you mean '--no-verbose'?"},
                                {"--vrebose", "Did you mean '--verbose'?"},
                                {"--no-qeit", "(null)"},
                                {"--rebuild-idnex", "Did you mean '--rebuild-index'?"},
                                {"---level", "Did you mean '--level'?"},
                                {"--lvl", "(null)"},
                                {"--lvel", "Did you mean '--level'?"},
                                // Nothing is near.
                                {"--something-else", "(null)"},
                                {"--lx", "(null)"},
                                {"--x", "(null)"},
                                {"--", "(null)"},
                                {"-", "(null)"},
                                {"--=level", "(null)"},
                                {"level", "(null)"},
                                {"levle", "(null)"},
                                {"", "(null)"},
                                // What names an option as it is.
                                {"--level", "(null)"},
                                {"--lev=x", "(null)"},
                                {"-l", "(null)"},
                                {"--max-c", "(null)"},
                                {"--secret", "(null)"},
                                {"--pattern", "(null)"},
                                // Hidden and positional options.
                                {"--secrte", "(null)"},
                                {"--pattren", "(null)"},
                            });
}

TEST(Suggest, TakesJoinedLettersApart) {
    BasicParser parser(0);
    declare(parser);
    expectSentences(parser, {
                                {"-vl3", "Did you mean '-v -l=3'?"},
                                {"-l3", "Did you mean '-l=3'?"},
                                {"-l=3", "(null)"},
                                {"-vl=3", "Did you mean '-v -l=3'?"},
                                {"-vl 3", "Did you mean '-v -l=3'?"},
                                {"-vl", "Did you mean '-v -l'?"},
                                {"-vqv", "Did you mean '-v -q -v'?"},
                                {"-vvvv", "Did you mean '-v -v -v -v'?"},
                                {"\xE2\x80\x93vl3", "Did you mean '-v -l=3'?"},
                                {"-ofile", "Did you mean '-o=file'?"},
                                {"-ofile=x", "Did you mean '-o=file=x'?"},
                                {"-vq=3", "(null)"},
                                {"-lx", "(null)"},
                                {"-vx", "(null)"},
                                {"--vl3", "(null)"},
                                {"-vs", "(null)"},
                                {"-vpx", "(null)"},
                                // A name that is near comes first, unless there are only few letters.
                                {"-ouptut", "Did you mean '--output' or '-o=uptut'?"},
                                {"-lvel", "Did you mean '--level'?"},
                                {"-oup", "Did you mean '-o=up'?"},
                            });
}

TEST(Suggest, ChoosesAmongTheNamesThatAreDeclared) {
    const struct {
        std::vector<const char*> options;
        std::vector<Row> rows;
    } cases[] = {
        // Up to three that are equally near.
        {{"color", "colon"}, {{"--colox", "Did you mean '--color' or '--colon'?"}}},
        {{"color", "colon", "colossal"}, {{"--colox", "Did you mean '--color', '--colon' or '--colossal'?"}}},
        {{"color", "colon", "colossal", "colony"}, {{"--colox", "(null)"}}},
        // The name that is cut least comes first.
        {{"colossal", "color"}, {{"--colox", "Did you mean '--color' or '--colossal'?"}}},
        // One name of an option.
        {{"color,colour"}, {{"--clour", "Did you mean '--colour'?"}, {"--clor", "Did you mean '--color'?"}}},
        // Names of two letters, and no shorter ones.
        {{"io,i"},
         {{"--iox", "Did you mean '--io'?"}, {"--xi", "(null)"}, {"--ixx", "(null)"}, {"--xyx", "(null)"}}},
    };
    for (const auto& [options, rows] : cases) {
        SCOPED_TRACE(testing::PrintToString(options));
        BasicParser parser(0);
        for (const char* const names : options) {
            parser.option(names, "", vtString, "");
        }
        expectSentences(parser, rows);
    }
}

TEST(Suggest, EscapesWhatItRepeats) {
    BasicParser parser(0);
    parser.option("output,o", "", vtString, "");
    parser.option("na\x1Bme", "", vtString, "");
    EXPECT_EQ(suggested(parser, "-o\x1B[31m'\"\\"), "Did you mean '-o=\\x1b[31m\\x27\\x22\\x5c'?");
    EXPECT_EQ(suggested(parser, "-o\xFF"), "Did you mean '-o=\\xff'?");
    EXPECT_EQ(suggested(parser, "-ogr\xC3\xBCn"), "Did you mean '-o=gr\xC3\xBCn'?");
    EXPECT_EQ(suggested(parser, "--naxme"), "Did you mean '--na\\x1bme'?");
}

TEST(Suggest, LooksAtNamesOfUpToAHundredBytes) {
    BasicParser parser(0);
    const std::string name(100, 'a');
    parser.option(name.c_str(), "", vtString, "");
    parser.option((name + "z").c_str(), "", vtString, "");
    parser.option("v", "", vtNull, "");
    EXPECT_EQ(suggested(parser, "--x" + name.substr(1)), "Did you mean '--" + name + "'?");
    EXPECT_EQ(suggested(parser, "--x" + name), "(null)");
    EXPECT_EQ(suggested(parser, "-" + std::string(99, 'v')).size(),
              std::string("Did you mean ''?").size() + 99 * 3 - 1);
    EXPECT_EQ(suggested(parser, "-" + std::string(100, 'v')), "(null)");
    EXPECT_EQ(suggested(parser, "--" + std::string(1000000, 'a')), "(null)");
}

TEST(Suggest, SaysNothingToNoArgument) {
    BasicParser parser(0);
    declare(parser);
    EXPECT_EQ(suggest(&parser, nullptr), nullptr);
}

TEST(Suggest, IsKeptByTheParser) {
    BasicParser parser(0);
    declare(parser);
    const char* const sentence = suggest(&parser, "--levle");
    suggest(&parser, "--outptu");
    EXPECT_STREQ(sentence, "Did you mean '--level'?");
    EXPECT_EQ(suggest(&parser, "--levle"), sentence);
}

} // namespace
