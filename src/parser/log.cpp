#include "tarv_3_3/internal/log.h"

#include "platform/ucout.h"

namespace tarv_3_3::internal {

bool tarvLogEnabled = false;
bool discardingHasFailed = false;

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
        open();
    }
    return *m_stream;
}

void TarvLog::open() {
    m_buffer = std::make_unique<basic_nullbuf<char, std::char_traits<char>>>();
    m_stream = std::make_unique<std::ostream>(m_buffer.get());
}

namespace {

std::ostream& currentLog() {
    static TarvLog holder;
    return tarvLogEnabled ? MERO_2_16::strings::gh2::ucout() : holder.discarding();
}

} // namespace

std::ostream& tarvLog() {
    discardingHasFailed = false;
    return currentLog();
}

std::ostream* findWorkingLog() {
    std::ostream& log = currentLog();
    if (!log.fail()) {
        return &log;
    }
    discardingHasFailed = !tarvLogEnabled;
    return nullptr;
}

} // namespace tarv_3_3::internal
