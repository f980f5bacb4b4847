#include "tarv_3_3/internal/log.h"

#include <charconv>
#include <cstddef>
#include <mutex>
#include <new>

#include "platform/logLine.h"
#include "platform/ucout.h"

namespace tarv_3_3::internal {

bool tarvLogEnabled = false;
std::atomic<UntracedLines> untracedLines{UntracedLines::none};

template <class Char, class Traits>
basic_nullbuf<Char, Traits>::~basic_nullbuf() = default;

template class basic_nullbuf<char, std::char_traits<char>>;

TarvLog::TarvLog() = default;

// The stream refers to the buffer, so it goes first.
TarvLog::~TarvLog() {
    m_stream.reset();
    m_buffer.reset();
}

std::ostream& TarvLog::discarding() {
    if (m_stream == nullptr) {
        m_buffer = std::make_unique<basic_nullbuf<char, std::char_traits<char>>>();
        m_stream = std::make_unique<std::ostream>(m_buffer.get());
    }
    return *m_stream;
}

LinePart::LinePart(int number) {
    const char* const end = std::to_chars(m_own, m_own + sizeof m_own, number).ptr;
    m_text = {m_own, static_cast<std::size_t>(end - m_own)};
}

namespace {

// Recursive, since a host's stream buffer may itself parse while a line is written to it.
std::recursive_mutex logMutex;

alignas(TarvLog) std::byte holderRoom[sizeof(TarvLog)];

TarvLog& holderInRoom() {
    return *std::launder(reinterpret_cast<TarvLog*>(holderRoom));
}

// Leaves an empty holder behind at exit: static destructors of the host that run later may parse, and ask
// for the log.
struct HolderLife {
    HolderLife() { new (holderRoom) TarvLog; }

    HolderLife(const HolderLife&) = delete;
    HolderLife& operator=(const HolderLife&) = delete;

    ~HolderLife() {
        const std::lock_guard<std::recursive_mutex> lock(logMutex);
        untracedLines = UntracedLines::dropped;
        holderInRoom().~TarvLog();
        new (holderRoom) TarvLog;
    }
};

TarvLog& processHolder() {
    static const HolderLife life;
    return holderInRoom();
}

} // namespace

std::ostream& tarvLog() {
    const std::lock_guard<std::recursive_mutex> lock(logMutex);
    TarvLog& holder = processHolder();
    if (isTraceOn()) {
        return MERO_2_16::strings::gh2::ucout();
    }
    std::ostream& discarding = holder.discarding();
    // What the lines that were dropped before would have done to it.
    if (untracedLines.exchange(UntracedLines::written) == UntracedLines::dropped) {
        discarding.setstate(std::ios::badbit | std::ios::failbit);
    }
    return discarding;
}

namespace {

// Whether lines may be dropped: the trace is off, and nobody has the discarding stream. Needs no lock:
// whoever asks for that stream meanwhile finds this line written either before or after.
bool isDropped() {
    UntracedLines before = UntracedLines::none;
    return !isTraceOn() && (untracedLines.compare_exchange_strong(before, UntracedLines::dropped) ||
                            before == UntracedLines::dropped);
}

} // namespace

void writeLine(std::initializer_list<LinePart> parts) {
    if (isDropped()) {
        return;
    }
    const std::lock_guard<std::recursive_mutex> lock(logMutex);
    std::ostream& log = tarvLog();
    if (log.fail()) {
        return;
    }
    for (const LinePart& part : parts) {
        log.write(part.text().data(), static_cast<std::streamsize>(part.text().size()));
    }
    log << std::endl;
}

} // namespace tarv_3_3::internal
