#include "completion/question.h"

#include <string_view>
#include <utility>

#include "completion/quotes.h"

namespace tarv_3_3 {

namespace {

constexpr std::size_t maxBytes = std::size_t{1} << 24U;
constexpr std::size_t maxWords = 1000000;

/// The words of `text`, each of which ends in a zero byte. Empty when the last one does not, or when there
/// are too many.
std::vector<std::string_view> cutIntoWords(std::string_view text) {
    std::vector<std::string_view> words;
    if (text.empty() || text.back() != '\0') {
        return words;
    }
    while (!text.empty()) {
        if (words.size() == maxWords) {
            return {};
        }
        const std::size_t end = text.find('\0');
        words.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    return words;
}

/// Reads up to one byte more than the limit, so that the caller notices a longer input.
std::string readUpToTheLimit(std::FILE* input) {
    std::string text;
    char block[16384];
    while (text.size() <= maxBytes) {
        const std::size_t count = std::fread(block, 1, sizeof block, input);
        if (count == 0) {
            break;
        }
        text.append(block, count);
    }
    return text;
}

// Bash sends the words as they were typed, and the one at the cursor in two pieces.
std::optional<Question> makeBashQuestion(const std::vector<std::string_view>& sent) {
    if (sent.size() < 3) {
        return std::nullopt;
    }
    Question question;
    question.shell = Shell::bash;
    const std::string_view kept = sent[sent.size() - 2];
    for (const std::string_view word : sent) {
        question.words.push_back(unquote(word).text);
    }
    question.words.pop_back();
    question.words.back() = unquote(std::string(kept).append(sent.back())).text;
    Unquoted plain = unquote(kept);
    question.kept = std::move(plain.text);
    question.openQuote = plain.openQuote;
    return question;
}

} // namespace

std::optional<Question> readQuestion(std::FILE* input, Shell shell) {
    const std::string text = readUpToTheLimit(input);
    if (text.size() > maxBytes) {
        return std::nullopt;
    }
    const std::vector<std::string_view> sent = cutIntoWords(text);
    if (shell == Shell::bash) {
        return makeBashQuestion(sent);
    }
    if (sent.size() < 2) {
        return std::nullopt;
    }
    Question question;
    question.shell = shell;
    question.words.assign(sent.begin(), sent.end());
    return question;
}

} // namespace tarv_3_3
