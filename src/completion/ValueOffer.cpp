#include "completion/ValueOffer.h"

#include <algorithm>
#include <exception>
#include <new>
#include <sstream>
#include <utility>

#include "completion/commonBeginning.h"
#include "description/declarationFacts.h"
#include "parser/BasicParser.h"
#include "parser/Remarks.h"

namespace tarv_3_3 {

ValueOffer::ValueOffer(const BasicParser& parser, Reader& reader, std::size_t index, const std::string& word,
                       std::size_t offset)
    : m_parser(parser), m_reader(reader), m_index(index), m_offset(offset),
      m_option(parser.registry().m_options[index]), m_before(word.substr(0, offset)),
      m_piece(word.substr(offset)) {
    m_option.m_garbage = &m_garbage;
    const char separator = m_option.m_tokenizer;
    const std::size_t last = separator != 0 ? m_piece.rfind(separator) : std::string::npos;
    if (last != std::string::npos) {
        noteList(m_piece.substr(0, last));
        m_piece.erase(0, last + 1);
        m_before = word.substr(0, word.size() - m_piece.size());
    }
}

// Records the elements that the list has already. They may be abbreviated.
void ValueOffer::noteList(const std::string& list) {
    std::istringstream rest(list);
    for (std::string piece; std::getline(rest, piece, m_option.m_tokenizer);) {
        if (!piece.empty() && m_known.insert(piece).second) {
            m_isRefused = m_isRefused || !isValue(piece);
            m_known.insert(std::move(piece));
        }
    }
}

void ValueOffer::addTo(KeptCompletion& kept, const HostValues& host) {
    if (m_isRefused) {
        return;
    }
    m_kept = &kept;
    // Before the declared values, which have no descriptions: the host may describe them.
    const bool isKnown = host.complete != nullptr &&
                         host.complete(host.context, m_option.primaryName().c_str(), m_piece.c_str(), *this);
    offerDeclared();
    if (m_isOutOfMemory) {
        throw std::bad_alloc();
    }
    const int files = isKnown ? static_cast<int>(completeNoFiles) : filesToAdd();
    kept.addFiles(files, m_before.size());
    if (files == completeNoFiles && !m_texts.empty()) {
        kept.setCommon(commonBeginning(m_before + m_piece, m_texts));
    }
}

void ValueOffer::offerDeclared() {
    for (const variant_t& allowed : m_option.m_allowedValues) {
        offer(internal::typedText(m_option, allowed), "");
    }
    if (m_option.m_type == vtBool) {
        offer("1", "");
        offer("0", "");
    }
}

// Called by the host's code, through which no exception may pass.
void ValueOffer::add(const char* value, const char* description) {
    if (value == nullptr) {
        return;
    }
    try {
        offer(value, description != nullptr ? description : "");
    } catch (const std::exception&) {
        m_isOutOfMemory = true;
    }
}

void ValueOffer::offer(std::string value, const char* description) {
    if (value.empty() || value.compare(0, m_piece.size(), m_piece) != 0) {
        return;
    }
    std::string whole = m_before + value;
    if (isTaken(value, whole) && m_known.insert(std::move(value)).second) {
        m_texts.push_back(whole);
        m_kept->add(std::move(whole), description);
    }
}

// Whether a parse takes `whole` as this value of this option.
bool ValueOffer::isTaken(const std::string& value, const std::string& whole) {
    // Without a separator it is a zero byte, which no value has.
    if (value.find(m_option.m_tokenizer) != std::string::npos || !hasPlace(whole)) {
        return false;
    }
    std::string text = value;
    return isValue(text);
}

// Whether `text` is a value of the option. Completes it if it is abbreviated.
bool ValueOffer::isValue(std::string& text) const {
    variant_t converted;
    std::string reason;
    return m_option.validate(text, converted, reason);
}

bool ValueOffer::hasPlace(const std::string& whole) {
    const ReadArgument read = m_reader.look(whole, nullptr);
    if (read.index != m_index) {
        return false;
    }
    if (read.role == ArgumentRole::value) {
        return valueSource(m_option.m_type, "", &whole) == ValueSource::nextArgument;
    }
    return read.role != ArgumentRole::named ? m_offset == 0
                                            : m_offset > 0 && read.token.valueStart == m_offset;
}

// The note "complete" of an option takes precedence over its kind.
int ValueOffer::filesToAdd() const {
    if (!m_option.m_allowedValues.empty()) {
        return completeNoFiles;
    }
    const internal::Remarks* const remarks = m_parser.remarks();
    if (remarks != nullptr && m_index < remarks->notes.size()) {
        for (const auto& [key, value] : remarks->notes[m_index]) {
            if (key == "complete") {
                return value == "file"        ? completeFiles
                       : value == "directory" ? completeDirectories
                                              : completeNoFiles;
            }
        }
    }
    return m_option.m_type == vtString ? completeFiles : completeNoFiles;
}

} // namespace tarv_3_3
