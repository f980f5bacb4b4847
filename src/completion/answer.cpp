#include "completion/answer.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "completion/controlCharacters.h"
#include "completion/quotes.h"

namespace tarv_3_3 {

namespace {

std::string_view nameOf(int files) {
    return files == completeFiles ? "file" : files == completeDirectories ? "directory" : "none";
}

/// `word` as the shell is to insert it. None when it does not begin with the part that the shell keeps.
std::optional<std::string> makeInsertion(const Question& question, std::string_view word) {
    if (question.shell != Shell::bash) {
        return std::string(word);
    }
    if (word.substr(0, question.kept.size()) != question.kept) {
        return std::nullopt;
    }
    return quote(word.substr(question.kept.size()), question.openQuote);
}

void appendLine(std::string& text, std::string_view line) {
    text.append(line).append(1, '\n');
}

std::string makeCandidates(const Question& question, const Completion& completion) {
    std::string lines;
    for (unsigned i = 0; i < completion.candidateCount; ++i) {
        const Candidate& candidate = completion.candidates[i];
        const std::optional<std::string> insertion = makeInsertion(question, candidate.text);
        if (insertion && !hasControlCharacters(*insertion)) {
            appendLine(lines, *insertion + '\t' + withoutControlCharacters(candidate.description));
        }
    }
    return lines;
}

std::string makeCommon(const Question& question, const Completion& completion) {
    const bool isTyped = completion.common == question.words.back();
    if (isTyped || hasControlCharacters(completion.common)) {
        return "";
    }
    return makeInsertion(question, completion.common).value_or("");
}

} // namespace

std::string makeAnswer(const Question& question, const Completion& completion) {
    const std::string_view word = question.words.back();
    const std::string_view files = nameOf(completion.files);
    const bool addsFiles = files != "none";
    if (addsFiles && hasControlCharacters(word)) {
        return "";
    }
    const std::size_t offset =
        addsFiles ? std::min<std::size_t>(completion.fileOffset, word.size()) : word.size();
    std::string answer;
    appendLine(answer, std::string("tarv-complete 1 ").append(files));
    appendLine(answer, addsFiles ? makeInsertion(question, word.substr(0, offset)).value_or("") : "");
    appendLine(answer, word.substr(offset));
    appendLine(answer, makeCommon(question, completion));
    return answer + makeCandidates(question, completion);
}

} // namespace tarv_3_3
