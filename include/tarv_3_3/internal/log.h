#pragma once

#include <memory>
#include <ostream>
#include <streambuf>

#include "tarv_3_3/export.h"

namespace tarv_3_3::internal {

/// Whether the trace of recognition is on, for the whole process. Off at first. Every stream, every option
/// file and every command line with arguments sets it anew, on only if its first argument is the switch.
///
/// Parses on several threads set it for each other: the last one that began decides for all of them. To
/// trace one whole parse, run no other one meanwhile. The library reads and writes it with atomic
/// operations; so should a host that parses on several threads.
TARV_API extern bool tarvLogEnabled;

/// A stream buffer without storage: the first write fails, and a stream that has failed discards
/// everything written later.
template <class Char, class Traits>
class basic_nullbuf : public std::basic_streambuf<Char, Traits> {
public:
    ~basic_nullbuf() override;
};

extern template class TARV_API basic_nullbuf<char, std::char_traits<char>>;

/// Holds the discarding stream of the process, once it was asked for. Not synchronised; `tarvLog` is.
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

/// Where the trace goes: the standard output stream while `tarvLogEnabled`, else a stream that
/// discards everything, always the same one until the process exits. Write whole lines and end them with
/// `std::endl`.
///
/// The discarding stream is made at the first call that returns it. Its state is the caller's: a host may
/// keep the reference and give the stream a buffer (`rdbuf`, which also clears the state), and every line
/// that is traced while the switch is off goes there from then on, without a further call. As it is made, the
/// stream fails at the first line, or has failed already if a line was traced before.
///
/// May be called on any thread. The library writes one line at a time, so lines of parses on several threads
/// do not mix. What a host itself does to the stream, or reads of its state, is not synchronised with
/// that: do it while no other thread parses or declares.
TARV_API std::ostream& tarvLog();

} // namespace tarv_3_3::internal
