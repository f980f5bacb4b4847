#pragma once

#include <atomic>
#include <initializer_list>
#include <string_view>

#include "platform/mayHaveThreads.h"
#include "tarv_3_3/internal/log.h"

namespace tarv_3_3::internal {

/// What happens to a line that is written while the trace is off.
enum class UntracedLines : unsigned char {
    /// There was no line so far.
    none,
    /// It is dropped. No host has asked for the discarding stream, which does not exist yet.
    dropped,
    /// It is written to `discardingStream`. A host has asked for it, and may have given it a buffer.
    written
};

extern std::atomic<UntracedLines> untracedLines;
/// Null until a host has asked for it.
extern std::ostream* discardingStream;

inline bool isTraceOn() {
    return __atomic_load_n(&tarvLogEnabled, __ATOMIC_RELAXED);
}

/// Whether a line that is not traced has to be written all the same. Where other threads may be writing,
/// only who writes it may ask the stream for its state.
inline bool isUntracedLineWritten() {
    const UntracedLines lines = untracedLines.load(std::memory_order_relaxed);
    return lines != UntracedLines::dropped &&
           (lines == UntracedLines::none || mayHaveThreads() || !discardingStream->fail());
}

/// A piece of a line as text. Numbers are decimal, whatever format a stream is set to.
class LinePart {
public:
    explicit LinePart(std::string_view text) : m_text(text) {}
    explicit LinePart(char character) : m_own{character}, m_text(m_own, 1) {}
    explicit LinePart(int number);
    LinePart(const LinePart&) = delete;
    LinePart& operator=(const LinePart&) = delete;
    ~LinePart() = default;

    std::string_view text() const { return m_text; }

private:
    char m_own[12] = {};
    std::string_view m_text;
};

/// Writes the parts to `tarvLog()` as one line, unless that stream has failed. Lines of several threads do
/// not mix.
[[gnu::cold]] void writeLine(std::initializer_list<LinePart> parts);

/// The same. The parts of a line that is dropped are not converted to text.
template <class... Parts>
void writeLogLine(const Parts&... parts) {
    if (isTraceOn() || isUntracedLineWritten()) {
        writeLine({LinePart(parts)...});
    }
}

} // namespace tarv_3_3::internal
