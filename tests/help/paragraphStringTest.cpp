#include "help/paragraphString.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <random>
#include <sstream>
#include <vector>

namespace tarv_3_3 {
namespace {

struct Row {
    unsigned long indent;
    unsigned long width;
    const char* lead;
    const char* text;
    const char* expected;
};

template <std::size_t count>
void expectParagraphs(const Row (&rows)[count]) {
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << "indent " << row.indent << ", width " << row.width << ", lead '"
                                        << row.lead << "', text '" << row.text << "'");
        EXPECT_EQ(paragraphString(row.text, row.lead, row.indent, row.width), row.expected);
    }
}

TEST(ParagraphString, DropsTheLeadOfAnEmptyText) {
    expectParagraphs({
        {4, 10, "", "", ""},
        {4, 10, "-v", "", ""},
        {4, 10, "-verbose", "", ""},
        {1UL << 62, 10, "-v", "", ""},
    });
}

TEST(ParagraphString, PadsAShortLeadToTheIndent) {
    expectParagraphs({
        {4, 10, "", "abc", "    abc\n"},
        {4, 10, "-v", "abc", "-v  abc\n"},
        {4, 10, "-ab", "abc", "-ab abc\n"},
        {1, 10, "", "abc", " abc\n"},
    });
}

TEST(ParagraphString, FillsAPaddedLineWithOneByteLessThanTheWidth) {
    expectParagraphs({
        {4, 10, "", "123456789", "    123456789\n"},
        {4, 10, "-v", "123456789", "-v  123456789\n"},
        {4, 10, "-v", "1234567890", "-v  123456789\n    0\n"},
    });
}

TEST(ParagraphString, PutsABlankBehindALongLeadAndShrinksTheRoomWithIt) {
    expectParagraphs({
        {4, 10, "-abc", "1234567890", "-abc 12345678\n    90\n"},
        {4, 10, "-abcd", "1234567890", "-abcd 1234567\n    890\n"},
        {4, 10, "-abcdefghij", "1234567890", "-abcdefghij 1\n    234567890\n"},
        {4, 10, "-abc", "12 34567 9", "-abc 12 34567\n    9\n"},
    });
}

TEST(ParagraphString, LeavesTheTextToTheNextLinesBehindALeadWithoutRoom) {
    expectParagraphs({
        {4, 10, "-abcdefghijk", "12 34", "-abcdefghijk \n    12 34\n"},
        {4, 10, "-abcdefghijkl", "12 34", "-abcdefghijkl \n    12 34\n"},
        {4, 10, "-abcdefghijklmnopqrstuvwxyz", "1234567890",
         "-abcdefghijklmnopqrstuvwxyz \n    123456789\n    0\n"},
        {4, 10, "-abcdefghijkl", "\n", "-abcdefghijkl \n"},
    });
}

TEST(ParagraphString, BreaksAtTheLastBlankThatFits) {
    expectParagraphs({
        {2, 7, "", "aaa bbb ccc", "  aaa\n  bbb\n  ccc\n"},
        {2, 8, "", "aaa bbb ccc", "  aaa bbb\n  ccc\n"},
        {2, 10, "", "aaa bbb ccc", "  aaa bbb\n  ccc\n"},
        {2, 11, "", "aaa bbb ccc", "  aaa bbb\n  ccc\n"},
        {2, 12, "", "aaa bbb ccc", "  aaa bbb ccc\n"},
        {2, 7, "", "a b c d e f", "  a b c \n  d e f\n"},
    });
}

TEST(ParagraphString, KeepsABlankThatStillFitsAtTheEndOfItsLine) {
    expectParagraphs({
        {2, 9, "", "aaa bbb ccc", "  aaa bbb \n  ccc\n"},
        {2, 9, "", "aaa   bbb ccc", "  aaa  \n  bbb ccc\n"},
        {2, 7, "", "aaa   bbb", "  aaa   \n  bbb\n"},
        {2, 8, "", "aaa   bbb", "  aaa  \n  bbb\n"},
    });
}

TEST(ParagraphString, CutsAWordThatIsLongerThanTheLine) {
    expectParagraphs({
        {1, 6, "", "abcdefghijkl", " abcde\n fghij\n kl\n"},
        {1, 6, "", "abcdefghij", " abcde\n fghij\n"},
        {1, 6, "", "ab cdefghij", " ab\n cdefg\n hij\n"},
        {1, 6, "", "abcdefg hi", " abcde\n fg hi\n"},
    });
}

TEST(ParagraphString, EndsALineAtANewline) {
    expectParagraphs({
        {2, 10, "", "a\nb", "  a\n  b\n"},
        {2, 10, "-v", "a\nb c\nd", "-v a\n  b c\n  d\n"},
        {2, 6, "", "abcde\nf", "  abcde\n  f\n"},
        {2, 6, "", "ab\ncdefghi", "  ab\n  cdefg\n  hi\n"},
        {2, 6, "", "ab cdef\ng", "  ab\n  cdef\n  g\n"},
        {2, 10, "", "a \nb", "  a \n  b\n"},
    });
}

TEST(ParagraphString, DropsBlanksAndNewlinesAtTheStartOfALine) {
    expectParagraphs({
        {2, 10, "", "  a", "  a\n"},
        {4, 10, "-v", "\n \n a", "-v  a\n"},
        {2, 10, "", "a\n\n\nb", "  a\n  b\n"},
        {2, 10, "", "a\n   b", "  a\n  b\n"},
        {2, 6, "", "abcde    f", "  abcde\n  f\n"},
    });
}

TEST(ParagraphString, YieldsALineOfNothingButTheIndentForBlanksThatAreLeftAtTheEnd) {
    expectParagraphs({
        {2, 10, "", "a\n", "  a\n  \n"},
        {2, 10, "", "a\n \n\n ", "  a\n  \n"},
        {2, 6, "", "abcde ", "  abcde\n  \n"},
        {4, 10, "-v", " ", "-v  \n"},
        {4, 10, "-abc", "\n", "-abc \n"},
    });
}

TEST(ParagraphString, KeepsBlanksAtTheEndThatStillFit) {
    expectParagraphs({
        {2, 10, "", "a  ", "  a  \n"},
        {2, 6, "", "abcd ", "  abcd \n"},
    });
}

TEST(ParagraphString, BreaksAtNothingButBlanksAndNewlines) {
    expectParagraphs({
        {2, 6, "", "ab\tcdef", "  ab\tcd\n  ef\n"},
        {2, 6, "", "ab-cdef", "  ab-cd\n  ef\n"},
        {2, 6, "", "ab\rcdef", "  ab\rcd\n  ef\n"},
    });
}

TEST(ParagraphString, CountsBytes) {
    expectParagraphs({
        {2, 6, "", "\u00E4\u00E4 \u00E4\u00E4", "  \u00E4\u00E4 \n  \u00E4\u00E4\n"},
        {2, 8, "", "\u00E4\u00E4\u00E4\u00E4", "  \u00E4\u00E4\u00E4\xC3\n  \xA4\n"},
    });
}

TEST(ParagraphString, PutsABlankInFrontOfEveryLineThatHasNoIndent) {
    expectParagraphs({
        {0, 6, "", "abcd", " abcd\n"},
        {0, 6, "", "abcdef gh", " abcd\n ef\n gh\n"},
        {0, 6, "-v", "abcd", "-v ab\n cd\n"},
    });
}

TEST(ParagraphString, TakesOneByteALineWhereTheWidthLeavesNoRoom) {
    expectParagraphs({
        {2, 1, "", "ab c", "  a\n  b\n  c\n"},
        {0, 1, "", "ab", " a\n b\n"},
        {0, 2, "", "ab", " a\n b\n"},
        {3, 1, "-v", "ab", "-v \n   a\n   b\n"},
    });
}

TEST(ParagraphString, LaysOutALongTitle) {
    const std::string x79(79, 'x');
    const std::string x42(42, 'x');
    EXPECT_EQ(paragraphString(std::string(200, 'x'), "", 1, 80),
              " " + x79 + "\n " + x79 + "\n " + x42 + "\n");
}

std::vector<std::string> wordsOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

struct Paragraph {
    unsigned long indent;
    unsigned long width;
    std::string lead;
    std::string text;

    /// The column that no line reaches.
    unsigned long end() const { return indent + width - 1; }

    unsigned long textColumnBehindLead() const {
        return lead.size() < indent ? indent : static_cast<unsigned long>(lead.size()) + 1;
    }

    unsigned long narrowestRoom() const {
        return end() - std::min(end(), std::max(indent, textColumnBehindLead()));
    }
};

class RandomParagraphs {
public:
    explicit RandomParagraphs(unsigned int seed) : m_engine(seed) {}

    Paragraph next() { return {upTo(1, 12), upTo(3, 30), std::string(upTo(0, 25), '-'), text(upTo(1, 120))}; }

private:
    unsigned long upTo(unsigned long least, unsigned long most) {
        return std::uniform_int_distribution<unsigned long>(least, most)(m_engine);
    }

    // Letters run through the alphabet, so that a lost or moved one shows.
    std::string text(unsigned long length) {
        const unsigned long wordLength = upTo(1, 12);
        std::string text = "a";
        for (unsigned long i = 1; i < length; ++i) {
            const char letter = static_cast<char>('a' + i % 26);
            const bool isBreak = upTo(0, wordLength) == 0;
            text += !isBreak ? letter : upTo(0, 5) == 0 ? '\n' : ' ';
        }
        return text;
    }

    std::mt19937 m_engine;
};

// Takes from `output`, from its element `at` on, the pieces that make up `word`; 0 when they do not.
std::size_t countPieces(const std::string& word, const std::vector<std::string>& output, std::size_t at) {
    std::string joined;
    for (std::size_t i = at; i < output.size(); ++i) {
        joined += output[i];
        if (joined.size() >= word.size()) {
            return joined == word ? i - at + 1 : 0;
        }
    }
    return 0;
}

void expectEveryWordInOrder(const Paragraph& paragraph, const std::string& output) {
    ASSERT_EQ(output.compare(0, paragraph.lead.size(), paragraph.lead), 0);
    const std::vector<std::string> found = wordsOf(output.substr(paragraph.lead.size()));
    std::size_t at = 0;
    for (const std::string& word : wordsOf(paragraph.text)) {
        const std::size_t pieces = countPieces(word, found, at);
        ASSERT_NE(pieces, 0U) << "lost or moved: " << word;
        if (word.size() <= paragraph.narrowestRoom()) {
            ASSERT_EQ(pieces, 1U) << "cut without need: " << word;
        }
        at += pieces;
    }
    EXPECT_EQ(at, found.size());
}

void expectLinesWithinLimits(const Paragraph& paragraph, const std::string& output) {
    ASSERT_FALSE(output.empty());
    EXPECT_EQ(output.back(), '\n');
    const std::vector<std::string> lines = linesOf(output);
    EXPECT_LE(lines.front().size(), std::max(paragraph.end(), paragraph.textColumnBehindLead()));
    const std::string margin(paragraph.indent, ' ');
    for (std::size_t i = 1; i < lines.size(); ++i) {
        SCOPED_TRACE(lines[i]);
        EXPECT_LE(lines[i].size(), paragraph.end());
        EXPECT_EQ(lines[i].substr(0, paragraph.indent), margin);
        const bool isLast = i + 1 == lines.size();
        EXPECT_TRUE(isLast || lines[i].size() > paragraph.indent);
    }
}

// TARV_TEST_SEED repeats a run.
unsigned int chooseSeed() {
    const char* const given = std::getenv("TARV_TEST_SEED");
    return given != nullptr ? static_cast<unsigned int>(std::strtoul(given, nullptr, 10))
                            : std::random_device()();
}

TEST(ParagraphString, LosesNoWordAndPassesNoLimitOnRandomTexts) {
    const unsigned int seed = chooseSeed();
    std::cout << "TARV_TEST_SEED=" << seed << '\n';
    RandomParagraphs paragraphs(seed);
    for (int i = 0; i < 20000 && !HasFailure(); ++i) {
        const Paragraph paragraph = paragraphs.next();
        SCOPED_TRACE(testing::Message()
                     << "seed " << seed << ", indent " << paragraph.indent << ", width " << paragraph.width
                     << ", lead of " << paragraph.lead.size() << ", text '" << paragraph.text << "'");
        const std::string output =
            paragraphString(paragraph.text, paragraph.lead, paragraph.indent, paragraph.width);
        expectEveryWordInOrder(paragraph, output);
        expectLinesWithinLimits(paragraph, output);
    }
}

} // namespace
} // namespace tarv_3_3
