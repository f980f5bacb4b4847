#pragma once

#include <memory>
#include <ostream>
#include <streambuf>

#include "tarv_3_3/export.h"

namespace tarv_3_3::internal {

/// Whether the trace of recognition is on, for the whole process. Off at first. Every stream, option file and
/// command line with arguments sets it: on if its first argument is the switch, else off.
///
/// Parses on several threads share it, so the last one that began decides for all. To trace one whole parse,
/// run no other one meanwhile. The library reads and writes it with atomic operations. A host that parses on
/// several threads must do the same.
TARV_API extern bool tarvLogEnabled;

/// A stream buffer without storage: the first write fails, and a stream that has failed discards
/// everything written later.
template <class Char, class Traits>
class basic_nullbuf : public std::basic_streambuf<Char, Traits> {
public:
    ~basic_nullbuf() override;
};

template <class Char, class Traits>
basic_nullbuf<Char, Traits>::~basic_nullbuf() = default;

extern template class TARV_API basic_nullbuf<char, std::char_traits<char>>;

/// Holds the discarding stream of the process. Not synchronised; `tarvLog` is.
class TARV_API TarvLog {
public:
    TarvLog();
    TarvLog(const TarvLog&) = delete;
    TarvLog& operator=(const TarvLog&) = delete;
    ~TarvLog();

    /// The discarding stream, made at the first call.
    std::ostream& discarding();

private:
    std::unique_ptr<std::ostream> m_stream;
    std::unique_ptr<std::streambuf> m_buffer;
};

/// Where the trace goes: the standard output stream while `tarvLogEnabled`, else a stream that discards
/// everything. That stream stays the same until the process exits. Write whole lines and end them with
/// `std::endl`.
///
/// The discarding stream is made at the first call that returns it. It has no storage, so it fails at the
/// first line; it has failed already if a line was traced before that call. A host may keep the reference and
/// give the stream a buffer with `rdbuf`, which also clears its state. From then on, every line that is
/// traced while the switch is off is written to that buffer.
///
/// May be called on any thread. The library writes one line at a time, so lines of parses on several threads
/// do not mix. A host that changes the stream or reads its state must do so while no other thread parses or
/// declares.
TARV_API std::ostream& tarvLog();

} // namespace tarv_3_3::internal
