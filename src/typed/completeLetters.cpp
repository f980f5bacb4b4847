#include <algorithm>

#include "completion/KeptCompletion.h"
#include "typed/LineReader.h"
#include "typed/complete.h"

namespace tarv_3_3::typed::engine {

// The last letter is completed as its whole name would be: "-vl3" as "--level=3" behind "--verbose".
void ProgramCompleter::readLetters(LineReader& reader) {
    const std::string& word = m_line.arguments.back();
    const std::size_t before = m_line.occurrences.size();
    if (!reader.readLastLetters() || m_line.wish != Wish::none) {
        return;
    }
    m_letters = word;
    m_letterCount = m_line.occurrences.size() - before;
    if (reader.awaiting() != nullptr) {
        m_writtenLetters = "--" + reader.awaiting()->name() + "=";
        return;
    }
    const Occurrence last = m_line.occurrences.back();
    m_line.occurrences.pop_back();
    --m_letterCount;
    m_writtenLetters = "--" + last.option->name();
    if (last.option->takesValue()) {
        m_writtenLetters += "=";
        m_letters.resize(static_cast<std::size_t>(last.text - word.c_str()));
        // "-l=" alone has the value "=", but more may follow.
        if (*last.text == '=' && m_letters.back() != '=') {
            m_letters += "=";
        }
    }
}

// Whether each letter in front of the last one is offered behind what stands before it.
bool ProgramCompleter::mayLettersStand() const {
    std::vector<const char*> words;
    for (const std::string& word : m_words) {
        words.push_back(word.c_str());
        if (words.size() + m_letterCount < m_words.size() || words.size() == m_words.size()) {
            continue;
        }
        const std::unique_ptr<const Completion, Release> offered(
            complete(m_parser.get(), static_cast<int>(words.size()), words.data()));
        if (offered == nullptr ||
            std::none_of(offered->candidates, offered->candidates + offered->candidateCount,
                         [&](const Candidate& candidate) { return candidate.text == word; })) {
            return false;
        }
    }
    return true;
}

// With the letters as they are typed.
std::unique_ptr<KeptCompletion> ProgramCompleter::completeLetters(const Completion& written) const {
    auto typed = std::make_unique<KeptCompletion>(m_line.arguments.back());
    if (!mayLettersStand()) {
        return typed;
    }
    const bool hasValue = !m_writtenLetters.empty() && m_writtenLetters.back() == '=';
    for (unsigned i = 0; i < written.candidateCount; ++i) {
        const Candidate& candidate = written.candidates[i];
        const std::string value = std::string(candidate.text).substr(m_writtenLetters.size());
        // The name of the letter may begin others, and "-l=3" is the value "3".
        const bool isLost = hasValue ? value[0] == '=' && m_letters.back() != '=' : !value.empty();
        if (!isLost) {
            typed->add(m_letters + value, candidate.description);
        }
    }
    if (hasValue) {
        typed->setCommon(m_letters + std::string(written.common).substr(m_writtenLetters.size()));
        typed->addFiles(written.files, written.fileOffset - m_writtenLetters.size() + m_letters.size());
    }
    return typed;
}

} // namespace tarv_3_3::typed::engine
