#include "completion/quotes.h"

#include <gtest/gtest.h>

namespace tarv_3_3 {
namespace {

TEST(Unquote, TakesOffWhatBashTakesOff) {
    const struct {
        const char* word;
        const char* text;
        char openQuote;
    } cases[] = {
        {"", "", 0},
        {"--name=value", "--name=value", 0},
        {"a\\ b", "a b", 0},
        {"a\\\\b", "a\\b", 0},
        {"a\\", "a\\", 0},
        {"'a b'", "a b", 0},
        {"'a b", "a b", '\''},
        {"'a\\b'", "a\\b", 0},
        {"'a\"b", "a\"b", '\''},
        {"\"a b\"", "a b", 0},
        {"\"a b", "a b", '"'},
        {"\"a'b", "a'b", '"'},
        {"\"\\\"\\\\\\$\\`\"", "\"\\$`", 0},
        {"\"a\\b\\ \"", "a\\b\\ ", 0},
        {"\"a\\", "a\\", '"'},
        {"a'b c'd\"e f\"g", "ab cde fg", 0},
        {"'a'\\''b'", "a'b", 0},
        {"''", "", 0},
        {"'", "", '\''},
        {"\"", "", '"'},
        {"$'a\\'b'", "a'b", 0},
        {"$'a b", "a b", '\''},
        {"$'a'\"\\b\"", "a\\b", 0},
        {"$\"a b", "a b", '"'},
        {"$HOME/~x$", "$HOME/~x$", 0},
        {"\"$'a", "$'a", '"'},
        {"\xc3\xa4\\\xc3\xa4", "\xc3\xa4\xc3\xa4", 0},
    };
    for (const auto& example : cases) {
        SCOPED_TRACE(example.word);
        const Unquoted plain = unquote(example.word);
        EXPECT_EQ(plain.text, example.text);
        EXPECT_EQ(plain.openQuote, example.openQuote);
    }
}

TEST(Unquote, TakesAZeroByteForOneLikeOthers) {
    const std::string zero(1, '\0');
    EXPECT_EQ(unquote("a" + zero + "\"b" + zero).text, "a" + zero + "b" + zero);
}

TEST(Quote, MakesBashTakeATextLiterally) {
    const struct {
        const char* text;
        char openQuote;
        const char* quoted;
    } cases[] = {
        {"", 0, ""},
        {"--max-count=", 0, "--max-count="},
        {"http://a_b.c,d:e@f%g+h", 0, "http://a_b.c,d:e@f%g+h"},
        {"a b", 0, "a\\ b"},
        {" \"'\\$`&;|<>(){}[]*?!#~^", 0,
         "\\ \\\"\\'\\\\\\$\\`\\&\\;\\|\\<\\>\\(\\)\\{\\}\\[\\]\\*\\?\\!\\#\\~\\^"},
        {"\xc3\xa4", 0, "\xc3\xa4"},
        {"a b", '"', "a b"},
        {"it's \"$HOME\" \\ `x` *", '"', "it's \\\"\\$HOME\\\" \\\\ \\`x\\` *"},
        {"a \"b\" $HOME \\ *", '\'', "a \"b\" $HOME \\ *"},
        {"it's", '\'', "it'\\''s"},
    };
    for (const auto& example : cases) {
        SCOPED_TRACE(example.text);
        EXPECT_EQ(quote(example.text, example.openQuote), example.quoted);
    }
}

} // namespace
} // namespace tarv_3_3
