#include "completion/question.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace tarv_3_3 {
namespace {

using std::string_literals::operator""s;
using Words = std::vector<std::string>;

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

std::optional<Question> read(const std::string& sent, Shell shell) {
    const std::unique_ptr<std::FILE, FileCloser> file(std::tmpfile());
    EXPECT_EQ(std::fwrite(sent.data(), 1, sent.size(), file.get()), sent.size());
    std::rewind(file.get());
    return readQuestion(file.get(), shell);
}

std::string zeros(std::size_t count) {
    return std::string(count, '\0');
}

TEST(ReadQuestion, TakesPlainWordsAsTheyAre) {
    const struct {
        std::string sent;
        Words words;
    } cases[] = {
        {"tool\0--na\0"s, {"tool", "--na"}},
        {"tool\0\0"s, {"tool", ""}},
        {"\0\0"s, {"", ""}},
        {"tool\0a b\0\0'c\\\0"s, {"tool", "a b", "", "'c\\"}},
        {"tool\0\n\x1b\xff\t\0"s, {"tool", "\n\x1b\xff\t"}},
    };
    for (const Shell shell : {Shell::zsh, Shell::fish}) {
        for (const auto& example : cases) {
            SCOPED_TRACE(testing::PrintToString(example.sent));
            const std::optional<Question> question = read(example.sent, shell);
            ASSERT_TRUE(question);
            EXPECT_EQ(question->shell, shell);
            EXPECT_EQ(question->words, example.words);
            EXPECT_EQ(question->kept, "");
            EXPECT_EQ(question->openQuote, 0);
        }
    }
}

TEST(ReadQuestion, TakesTheQuotesOffWhatBashSends) {
    const struct {
        std::string sent;
        Words words;
        const char* kept;
        char openQuote;
    } cases[] = {
        {"tool\0\0--na\0"s, {"tool", "--na"}, "", 0},
        {"tool\0\0\0"s, {"tool", ""}, "", 0},
        {"tool\0--name=\0va\0"s, {"tool", "--name=va"}, "--name=", 0},
        {"tool\0a\\ b\0'c d'\0\0e\\ f\0"s, {"tool", "a b", "c d", "e f"}, "", 0},
        {"tool\0--name=\"\0a b\0"s, {"tool", "--name=a b"}, "--name=", '"'},
        {"tool\0'a b:\0c\0"s, {"tool", "a b:c"}, "a b:", '\''},
        {"tool\0\"a\0\\b\0"s, {"tool", "a\\b"}, "a", '"'},
        {"'my tool'\0\0\"a\\\"\0"s, {"my tool", "a\""}, "", 0},
    };
    for (const auto& example : cases) {
        SCOPED_TRACE(testing::PrintToString(example.sent));
        const std::optional<Question> question = read(example.sent, Shell::bash);
        ASSERT_TRUE(question);
        EXPECT_EQ(question->shell, Shell::bash);
        EXPECT_EQ(question->words, example.words);
        EXPECT_EQ(question->kept, example.kept);
        EXPECT_EQ(question->openQuote, example.openQuote);
    }
}

TEST(ReadQuestion, TakesNothingThatIsNotWhole) {
    for (const std::string& sent : {""s, "tool"s, "tool\0"s, "tool\0--na"s, "tool\0a\0b"s}) {
        SCOPED_TRACE(testing::PrintToString(sent));
        EXPECT_FALSE(read(sent, Shell::zsh));
        EXPECT_FALSE(read(sent, Shell::fish));
        EXPECT_FALSE(read(sent, Shell::bash));
    }
    EXPECT_FALSE(read("tool\0--na\0"s, Shell::bash));
}

TEST(ReadQuestion, TakesAHundredThousandWords) {
    std::string sent;
    for (int i = 0; i < 100000; ++i) {
        sent.append("word").append(std::to_string(i)).append(1, '\0');
    }
    const std::optional<Question> question = read(sent, Shell::zsh);
    ASSERT_TRUE(question);
    ASSERT_EQ(question->words.size(), 100000U);
    EXPECT_EQ(question->words.front(), "word0");
    EXPECT_EQ(question->words.back(), "word99999");
}

TEST(ReadQuestion, TakesNoMoreThanAMillionWords) {
    const std::optional<Question> most = read(zeros(1000000), Shell::zsh);
    ASSERT_TRUE(most);
    EXPECT_EQ(most->words.size(), 1000000U);
    EXPECT_FALSE(read(zeros(1000001), Shell::zsh));
}

TEST(ReadQuestion, TakesNoMoreThanSixteenMebibytes) {
    const std::string tool = "tool\0"s;
    const std::string most = tool + std::string(16777216 - tool.size() - 1, 'x') + '\0';
    const std::optional<Question> question = read(most, Shell::zsh);
    ASSERT_TRUE(question);
    EXPECT_EQ(question->words.back().size(), 16777210U);
    EXPECT_FALSE(read(tool + 'x' + most.substr(tool.size()), Shell::zsh));
}

TEST(ReadQuestion, ReadsNoEndlessInput) {
    const std::unique_ptr<std::FILE, FileCloser> zero(std::fopen("/dev/zero", "r"));
    ASSERT_NE(zero, nullptr);
    EXPECT_FALSE(readQuestion(zero.get(), Shell::bash));
}

} // namespace
} // namespace tarv_3_3
