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
std::ostream* discardingStream = nullptr;

template class basic_nullbuf<char, std::char_traits<char>>;

TarvLog::TarvLog() = default;

// The stream refers to the buffer, so it is destroyed first.
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

// Recursive, since a host's stream buffer may start a parse while a line is written to it.
std::recursive_mutex logMutex;

alignas(TarvLog) std::byte holderRoom[sizeof(TarvLog)];

TarvLog& holderInRoom() {
    return *std::launder(reinterpret_cast<TarvLog*>(holderRoom));
}

// At exit, the holder is replaced by an empty one. Static destructors of the host may run later, and may
// still parse and trace.
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
    discardingStream = &discarding;
    // Lines were dropped before. The first of them would have made the stream fail.
    if (untracedLines.exchange(UntracedLines::written) == UntracedLines::dropped) {
        discarding.setstate(std::ios::badbit | std::ios::failbit);
    }
    return discarding;
}

namespace {

// Whether a line may be dropped: the trace is off, and nobody has asked for the discarding stream. Needs no
// lock: if another thread asks for that stream meanwhile, this line counts as written before.
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
