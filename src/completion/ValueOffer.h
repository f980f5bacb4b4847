#pragma once

#include <string>
#include <unordered_set>
#include <vector>

#include "completion/KeptCompletion.h"
#include "options/OptionDescription.h"
#include "platform/hashOf.h"
#include "reading/Reader.h"
#include "tarv_3_3/completion.h"
#include "tarv_3_3/internal/Garbage.h"

namespace tarv_3_3 {

class BasicParser;

/// A host's own values; without a function there are none.
struct HostValues {
    ValueCompleter complete;
    void* context;
};

/// Offers the values of one option. `word` has the beginning of the value, from byte `offset` on.
class ValueOffer final : private CandidateSink {
public:
    ValueOffer(const BasicParser& parser, Reader& reader, std::size_t index, const std::string& word,
               std::size_t offset);

    void addTo(KeptCompletion& kept, const HostValues& host);

private:
    void add(const char* value, const char* description) override;
    void offer(std::string value, const char* description);
    void offerDeclared();
    void noteList(const std::string& list);
    bool isValue(std::string& text) const;
    bool isTaken(const std::string& value, const std::string& whole);
    bool hasPlace(const std::string& whole);
    int filesToAdd() const;

    const BasicParser& m_parser;
    Reader& m_reader;
    const std::size_t m_index;
    const std::size_t m_offset;
    /// Keeps the texts that are made while values are tried, so that the parser need not.
    Garbage m_garbage;
    OptionDescription m_option;
    /// The word up to the last piece of a list, and that piece.
    std::string m_before;
    std::string m_piece;
    /// Values that are offered or in the list already.
    std::unordered_set<std::string, internal::TextHash> m_known;
    std::vector<std::string> m_texts;
    KeptCompletion* m_kept = nullptr;
    /// Whether the list has an element that no parse takes.
    bool m_isRefused = false;
    bool m_isOutOfMemory = false;
};

} // namespace tarv_3_3
