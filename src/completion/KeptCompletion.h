#pragma once

#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "tarv_3_3/completion.h"

namespace tarv_3_3 {

/// A completion while it is made, and what it points to.
class KeptCompletion : public Completion {
public:
    /// For a word that nothing is known of yet.
    explicit KeptCompletion(const std::string& word)
        : Completion{sizeof(Completion), sizeof(Candidate), completeNoFiles, 0, 0, nullptr, nullptr} {
        setCommon(word);
    }

    void add(std::string text, std::string description) {
        const char* const keptText = keep(std::move(text));
        m_list.push_back({keptText, keep(std::move(description))});
        candidates = m_list.data();
        candidateCount = static_cast<unsigned>(m_list.size());
    }

    void addFiles(int kind, std::size_t offset) {
        files = kind;
        fileOffset = kind == completeNoFiles ? 0 : static_cast<unsigned>(offset);
    }

    void setCommon(std::string text) { common = keep(std::move(text)); }

private:
    const char* keep(std::string text) { return m_texts.emplace_back(std::move(text)).c_str(); }

    // A deque leaves its elements where they are.
    std::deque<std::string> m_texts;
    std::vector<Candidate> m_list;
};

} // namespace tarv_3_3
