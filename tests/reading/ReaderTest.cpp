#include "reading/Reader.h"

#include <gtest/gtest.h>

#include "parser/BasicParser.h"

namespace tarv_3_3 {
namespace {

std::string describe(const ReadArgument& read) {
    static const char* const roles[] = {"trace", "named",   "value",    "positional", "marker",
                                        "plain", "unknown", "misnamed", "ambiguous"};
    static const char* const sources[] = {"no value", "from name",     "same argument",
                                          "next",     "unwanted",      "unwanted by switch",
                                          "missing",  "next is empty", "next looks like option"};
    std::string text = roles[static_cast<int>(read.role)];
    if (read.index != ReadArgument::nowhere) {
        text += " " + std::to_string(read.index);
    }
    if (read.role == ArgumentRole::named) {
        text += " " + read.name + (read.isAbbreviated ? ", cut short" : "") +
                (read.isNegated ? ", negated" : "") + ", " + sources[static_cast<int>(read.source)];
    }
    return text + (read.isRefused ? ", refused" : "");
}

std::string describeAll(BasicParser& parser, const std::vector<std::string>& arguments) {
    std::string text;
    for (const ReadArgument& read : readArguments(parser, arguments)) {
        text += describe(read) + "; ";
    }
    return text;
}

void declare(BasicParser& parser) {
    parser.option("level,l", "", vtInt32, nullptr);
    parser.option("verbose", "", vtBool, nullptr);
    parser.option("version", "", vtNull, nullptr);
    parser.option("max-count", "", vtUInt32, nullptr).synonym("most");
}

TEST(Reader, SaysWhatEachArgumentIs) {
    const struct {
        int flags;
        bool hasPositional;
        std::vector<std::string> arguments;
        const char* expected;
    } cases[] = {
        {0, false, {}, ""},
        {0, false, {"--level=3"}, "named 0 level, same argument; "},
        {0, false, {"-l", "3"}, "named 0 l, next; value 0; "},
        {0, false, {"--lev", "3", "x"}, "named 0 level, cut short, next; value 0; unknown; "},
        {0, false, {"--level 3"}, "named 0 level, same argument; "},
        {0, false, {"--level", "-3"}, "named 0 level, next looks like option, refused; unknown; "},
        {0,
         false,
         {"--level", "--verb"},
         "named 0 level, next looks like option, refused; named 1 verbose, cut short, from name; "},
        {0, false, {"--level", "\xE2\x80\x93v"}, "named 0 level, next; value 0; "},
        {0, false, {"--level", ""}, "named 0 level, next is empty, refused; value 0; "},
        {0, false, {"--level="}, "named 0 level, missing, refused; "},
        {0,
         false,
         {"--no-verb", "--n-verbose"},
         "named 1 no-verbose, cut short, negated, from name; named 1 no-verbose, cut short, negated, from "
         "name; "},
        {0, false, {"--verbose=1"}, "named 1 verbose, unwanted by switch, refused; "},
        {0, false, {"--version=1"}, "named 2 version, unwanted, refused; "},
        {0, false, {"--ver", "--verb"}, "ambiguous, refused; named 1 verbose, cut short, from name; "},
        {0,
         false,
         {"--m-c=1", "--mo=1"},
         "named 3 max-count, cut short, same argument; named 3 most, cut short, same argument; "},
        {0, false, {"---x", "-", "x", ""}, "unknown; unknown; unknown; unknown; "},
        {flagRejectUnknown, false, {"--x", "x"}, "unknown, refused; unknown, refused; "},
        {0, false, {"--", "--level", "3"}, "marker; plain; plain; "},
        {0, true, {"a", "--x", "--level=1"}, "positional 4; positional 4; named 0 level, same argument; "},
        {flagDashIsNotPositional, true, {"a", "--x"}, "positional 4; unknown; "},
        {flagPositionalTakesRest,
         true,
         {"--verb", "a", "--", "--level"},
         "named 1 verbose, cut short, from name; positional 4; positional 4; positional 4; "},
        {0, true, {"--", "a"}, "marker; plain; "},
        {flagPlainArePositional | flagDashIsNotPositional, true, {"--", "-a"}, "marker; plain 4; "},
        {flagPlainArePositional, false, {"--", "a"}, "marker; plain; "},
        {0, true, {"tarvoption=tarvlogenable=1", "tarvoption=tarvlogenable=1"}, "trace; positional 4; "},
    };
    for (const auto& [flags, hasPositional, arguments, expected] : cases) {
        SCOPED_TRACE(testing::PrintToString(arguments) + " " + std::to_string(flags));
        BasicParser parser(flags);
        declare(parser);
        if (hasPositional) {
            parser.option("file", "", vtString, nullptr).positional();
        }
        EXPECT_EQ(describeAll(parser, arguments), expected);
    }
}

// The name is matched before it is found to have three dashes.
TEST(Reader, RefusesAThirdDashWhereTheNameMatches) {
    BasicParser parser(0);
    parser.option("-odd", "", vtNull, nullptr);
    EXPECT_EQ(describeAll(parser, {"---odd", "---x"}), "misnamed, refused; unknown; ");
}

TEST(Reader, OfAParserWithoutDeclarationsKnowsNothing) {
    BasicParser parser(0);
    EXPECT_EQ(describeAll(parser, {"--x", "x", "--", "y"}), "unknown; unknown; marker; plain; ");
}

TEST(Reader, SaysWhereNameAndValueBegin) {
    BasicParser parser(0);
    declare(parser);
    const struct {
        const char* argument;
        std::size_t nameStart, nameEnd, valueStart;
        bool hasValue;
    } cases[] = {
        {"--level=3", 2, 7, 8, true},          {"-l=", 1, 2, 3, true},      {"--lev  3", 2, 5, 7, true},
        {"\xE2\x80\x94level", 3, 8, 8, false}, {"--none=x", 2, 6, 7, true},
    };
    for (const auto& [argument, nameStart, nameEnd, valueStart, hasValue] : cases) {
        SCOPED_TRACE(argument);
        const Token token = readArguments(parser, {argument}).front().token;
        EXPECT_EQ(token.nameStart, nameStart);
        EXPECT_EQ(token.nameEnd, nameEnd);
        EXPECT_EQ(token.valueStart, valueStart);
        EXPECT_EQ(token.hasValue, hasValue);
    }
}

// Each as if it were the only one on the line, however often its name comes, and with which value.
TEST(Reader, ReadsANameThatComesAgainLikeTheFirst) {
    BasicParser parser(0);
    declare(parser);
    parser.option("x", "", vtString, nullptr);
    const std::string longest(Reader::longestRemembered - 2, 'y');
    const std::string tooLong = longest + "y";
    parser.option((longest + "z," + tooLong + "zz").c_str(), "", vtNull, nullptr);
    const std::string longName(Reader::longestRemembered + 1, 'q');
    parser.option(longName.c_str(), "", vtNull, nullptr);
    const struct {
        std::vector<std::string> arguments;
        std::string expected;
    } cases[] = {
        {{"--qq", "--qq=1"},
         "named 6 " + longName + ", cut short, no value; named 6 " + longName +
             ", cut short, unwanted, refused; "},
        {{"--lev=3", "--lev=4", "-lev=5", "--lev"},
         "named 0 level, cut short, same argument; named 0 level, cut short, same argument; "
         "named 0 level, cut short, same argument; named 0 level, cut short, missing, refused; "},
        {{"--lev", "3", "--lev 4", "--lev", "-l"},
         "named 0 level, cut short, next; value 0; named 0 level, cut short, same argument; "
         "named 0 level, cut short, next looks like option, refused; named 0 l, missing, refused; "},
        {{"--no-verb", "--no-verb=1", "--verb", "--no-verb"},
         "named 1 no-verbose, cut short, negated, from name; "
         "named 1 no-verbose, cut short, negated, unwanted by switch, refused; "
         "named 1 verbose, cut short, from name; named 1 no-verbose, cut short, negated, from name; "},
        {{"--ver", "--ver", "--ver=1", "--vers"},
         "ambiguous, refused; ambiguous, refused; ambiguous, refused; named 2 version, cut short, no "
         "value; "},
        {{"--none", "none", "--none=1", "--none"}, "unknown; unknown; unknown; unknown; "},
        {{"--level=1", "--level=2"}, "named 0 level, same argument; named 0 level, same argument; "},
        {{"-=x", "-", "-=x", "-"}, "misnamed, refused; unknown; misnamed, refused; unknown; "},
        {{"--" + longest, "--" + longest}, "ambiguous, refused; ambiguous, refused; "},
        {{"--" + tooLong, "--" + tooLong + "=1"},
         "named 5 " + tooLong + "zz, cut short, no value; named 5 " + tooLong +
             "zz, cut short, unwanted, refused; "},
    };
    for (const auto& [arguments, expected] : cases) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        EXPECT_EQ(describeAll(parser, arguments), expected);
    }
}

// Without a name, the first is an abbreviation of all that there is, but the second has no name at all.
TEST(Reader, TellsADashFromANameOfNoLetters) {
    BasicParser parser(0);
    parser.option("level", "", vtInt32, nullptr);
    EXPECT_EQ(describeAll(parser, {"-=x", "-", "-=x"}), "misnamed, refused; unknown; misnamed, refused; ");
}

std::vector<std::string> abbreviatedNames(std::size_t count, std::size_t different) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < count; ++i) {
        names.push_back("--option-numb-" + std::to_string(i % different));
    }
    return names;
}

TEST(Reader, ReadsMoreNamesThanItRemembers) {
    BasicParser parser(0);
    parser.option("option-number-19999", "", vtNull, nullptr);
    const std::size_t different = 2 * Reader::maxRemembered;
    const std::vector<ReadArgument> readings =
        readArguments(parser, abbreviatedNames(2 * different, different));
    ASSERT_EQ(readings.size(), 2 * different);
    for (std::size_t i = 0; i < readings.size(); ++i) {
        const bool isLast = i % different == different - 1 || i % different == 1999 || i % different == 199 ||
                            i % different == 19 || i % different == 1;
        ASSERT_EQ(describe(readings[i]),
                  isLast ? "named 0 option-number-19999, cut short, no value" : "unknown")
            << i;
    }
}

// Declares an option that makes `typed` ambiguous while a reader is in use, which nobody else may do. Only an
// answer that the reader remembers stays the same.
std::string answerBehindARival(std::size_t namesBefore, const std::string& typed) {
    BasicParser parser(0);
    parser.option((typed + "bose").c_str(), "", vtNull, nullptr);
    Reader reader(parser);
    for (std::size_t i = 0; i < namesBefore; ++i) {
        reader.look("--unknown-" + std::to_string(i), nullptr);
    }
    EXPECT_EQ(describe(reader.look("--" + typed, nullptr)), "named 0 " + typed + "bose, cut short, no value");
    parser.option((typed + "sion").c_str(), "", vtNull, nullptr);
    return describe(reader.look("--" + typed, nullptr));
}

TEST(Reader, LooksForANameThatRepeatsOnlyOnce) {
    EXPECT_EQ(answerBehindARival(0, "ver"), "named 0 verbose, cut short, no value");
}

TEST(Reader, RemembersSoManyNamesAndNoMore) {
    EXPECT_EQ(answerBehindARival(Reader::maxRemembered - 1, "ver"), "named 0 verbose, cut short, no value");
    EXPECT_EQ(answerBehindARival(Reader::maxRemembered, "ver"), "ambiguous, refused");
}

TEST(Reader, RemembersNoLongName) {
    const std::string longest(Reader::longestRemembered - 4, 'v');
    EXPECT_EQ(answerBehindARival(0, longest), "named 0 " + longest + "bose, cut short, no value");
    EXPECT_EQ(answerBehindARival(0, longest + "v"), "ambiguous, refused");
}

} // namespace
} // namespace tarv_3_3
