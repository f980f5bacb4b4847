#include "completion/answer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarv_3_3 {
namespace {

struct Offer {
    std::vector<Candidate> candidates;
    const char* common;
    int files = completeNoFiles;
    unsigned fileOffset = 0;
};

Completion makeCompletion(const Offer& offer) {
    return {sizeof(Completion),
            sizeof(Candidate),
            offer.files,
            offer.fileOffset,
            static_cast<unsigned>(offer.candidates.size()),
            offer.candidates.data(),
            offer.common};
}

Question plainQuestion(Shell shell, const std::string& word) {
    return {shell, {"tool", "--verbose", word}, "", 0};
}

Question bashQuestion(const std::string& word, const std::string& kept, char openQuote = 0) {
    return {Shell::bash, {"tool", word}, kept, openQuote};
}

std::string answer(const Question& question, const Offer& offer) {
    return makeAnswer(question, makeCompletion(offer));
}

const Offer names = {{{"--max-count=", "How many."}, {"--max-depth=", ""}}, "--max-"};

TEST(MakeAnswer, ListsCandidatesWithTheirDescriptions) {
    const char* const expected = "tarv-complete 1 none\n"
                                 "\n"
                                 "\n"
                                 "--max-\n"
                                 "--max-count=\tHow many.\n"
                                 "--max-depth=\t\n";
    EXPECT_EQ(answer(plainQuestion(Shell::zsh, "--m"), names), expected);
    EXPECT_EQ(answer(plainQuestion(Shell::fish, "--m"), names), expected);
    EXPECT_EQ(answer(bashQuestion("--m", ""), names), expected);
}

TEST(MakeAnswer, IsAllEmptyWhereNothingFits) {
    EXPECT_EQ(answer(plainQuestion(Shell::zsh, "--x"), {{}, "--x"}), "tarv-complete 1 none\n\n\n\n");
}

TEST(MakeAnswer, SaysNothingCommonThatIsTyped) {
    EXPECT_EQ(answer(plainQuestion(Shell::fish, "--max-"), names), "tarv-complete 1 none\n"
                                                                   "\n"
                                                                   "\n"
                                                                   "\n"
                                                                   "--max-count=\tHow many.\n"
                                                                   "--max-depth=\t\n");
}

TEST(MakeAnswer, CutsTheWordWhereTheFileNameBegins) {
    const struct {
        const char* word;
        int files;
        unsigned offset;
        const char* expected;
    } cases[] = {
        {"", completeFiles, 0, "tarv-complete 1 file\n\n\n\n"},
        {"no", completeFiles, 0, "tarv-complete 1 file\n\nno\n\n"},
        {"--in=my fi", completeFiles, 5, "tarv-complete 1 file\n--in=\nmy fi\n\n"},
        {"--in=", completeFiles, 5, "tarv-complete 1 file\n--in=\n\n\n"},
        {"--in=d", completeDirectories, 5, "tarv-complete 1 directory\n--in=\nd\n\n"},
        {"--in=\xc3\xa4,\xc3\xa4", completeFiles, 8, "tarv-complete 1 file\n--in=\xc3\xa4,\n\xc3\xa4\n\n"},
        {"short", completeFiles, 99, "tarv-complete 1 file\nshort\n\n\n"},
        {"--in=x", completeNoFiles, 5, "tarv-complete 1 none\n\n\n\n"},
        {"--in=x", 77, 5, "tarv-complete 1 none\n\n\n\n"},
    };
    for (const auto& example : cases) {
        SCOPED_TRACE(example.word);
        const Offer offer = {{}, example.word, example.files, example.offset};
        EXPECT_EQ(answer(plainQuestion(Shell::zsh, example.word), offer), example.expected);
        EXPECT_EQ(answer(plainQuestion(Shell::fish, example.word), offer), example.expected);
    }
}

TEST(MakeAnswer, GivesBashWhatTakesThePlaceOfTheEndOfTheWord) {
    const Offer titles = {{{"--title=my day", "Fine."}, {"--title=it's", ""}}, "--title="};
    EXPECT_EQ(answer(bashQuestion("--title=", "--title="), titles), "tarv-complete 1 none\n"
                                                                    "\n"
                                                                    "\n"
                                                                    "\n"
                                                                    "my\\ day\tFine.\n"
                                                                    "it\\'s\t\n");
    EXPECT_EQ(answer(bashQuestion("--title=", "--title=", '\''), titles), "tarv-complete 1 none\n"
                                                                          "\n"
                                                                          "\n"
                                                                          "\n"
                                                                          "my day\tFine.\n"
                                                                          "it'\\''s\t\n");
    const Offer days = {{{"--title=my day", ""}, {"--title=my dog", ""}}, "--title=my d"};
    EXPECT_EQ(answer(bashQuestion("--title=m", "--title="), days), "tarv-complete 1 none\n"
                                                                   "\n"
                                                                   "\n"
                                                                   "my\\ d\n"
                                                                   "my\\ day\t\n"
                                                                   "my\\ dog\t\n");
}

TEST(MakeAnswer, LeavesOutWhatBashCannotInsert) {
    const Offer offer = {{{"--mode:x-count=", ""}, {"--m:x-depth=", ""}}, "--mode:x-"};
    EXPECT_EQ(answer(bashQuestion("--m:x", "--m:"), offer), "tarv-complete 1 none\n"
                                                            "\n"
                                                            "\n"
                                                            "\n"
                                                            "x-depth=\t\n");
}

TEST(MakeAnswer, GivesBashTheHeadThatItReplaces) {
    const struct {
        const char* kept;
        char openQuote;
        const char* expected;
    } cases[] = {
        {"", 0, "tarv-complete 1 file\n--in=a\\ b,\nmy d\n\n"},
        {"--in=", 0, "tarv-complete 1 file\na\\ b,\nmy d\n\n"},
        {"--in=", '"', "tarv-complete 1 file\na b,\nmy d\n\n"},
        {"--in=a b,", 0, "tarv-complete 1 file\n\nmy d\n\n"},
        {"--in=a b,my ", 0, "tarv-complete 1 file\n\nmy d\n\n"},
    };
    const Offer offer = {{}, "--in=a b,my d", completeFiles, 9};
    for (const auto& example : cases) {
        SCOPED_TRACE(example.kept);
        EXPECT_EQ(answer(bashQuestion("--in=a b,my d", example.kept, example.openQuote), offer),
                  example.expected);
    }
}

TEST(MakeAnswer, KeepsControlCharactersFromTheTerminal) {
    const Offer offer = {{{"--a\x1b[0m", "bad"},
                          {"--b\nc", "bad"},
                          {"--d\te", "bad"},
                          {"--f\xc2\x9b", "bad"},
                          {"--good", "red\x1b[31m\ttext\nsecond line"}},
                         "--\x1b"};
    for (const Shell shell : {Shell::bash, Shell::zsh, Shell::fish}) {
        EXPECT_EQ(answer(plainQuestion(shell, "--"), offer), "tarv-complete 1 none\n"
                                                             "\n"
                                                             "\n"
                                                             "\n"
                                                             "--good\tred [31m text\n");
    }
}

TEST(MakeAnswer, IsNoneForAFileNameWithControlCharacters) {
    EXPECT_EQ(answer(plainQuestion(Shell::zsh, "a\nb"), {{}, "a\nb", completeFiles, 0}), "");
    EXPECT_EQ(answer(plainQuestion(Shell::zsh, "--in\x1b=b"), {{}, "--in\x1b=b", completeDirectories, 6}),
              "");
    EXPECT_EQ(answer(plainQuestion(Shell::zsh, "--x\x1b"), {{}, "--x\x1b"}), "tarv-complete 1 none\n\n\n\n");
}

} // namespace
} // namespace tarv_3_3
