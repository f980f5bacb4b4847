#pragma once

#include <memory>
#include <ostream>
#include <streambuf>

#include "tarv_3_3/export.h"

namespace tarv_3_3::internal {

/// Whether the trace of recognition is on, for the whole process. Off at first; every parse, stream
/// and option file sets it anew, on only if its first argument is the switch.
TARV_API extern bool tarvLogEnabled;

/// A stream buffer without storage: the first write fails, and a stream that has failed discards
/// everything written later.
template <class Char, class Traits>
class basic_nullbuf : public std::basic_streambuf<Char, Traits> {
public:
    ~basic_nullbuf() override;
};

extern template class TARV_API basic_nullbuf<char, std::char_traits<char>>;

/// Holds the discarding stream of the process, once it was asked for.
class TARV_API TarvLog {
public:
    TarvLog();
    TarvLog(const TarvLog&) = delete;
    TarvLog& operator=(const TarvLog&) = delete;
    ~TarvLog();

    /// The discarding stream, made at the first call.
    std::ostream& discarding();

private:
    void open();

    std::unique_ptr<std::ostream> m_stream;
    std::unique_ptr<std::streambuf> m_buffer;
};

/// Where the trace goes: the standard output stream while `tarvLogEnabled`, else a stream that
/// discards everything, always the same one. Write whole lines and end them with `std::endl`.
TARV_API std::ostream& tarvLog();

/// What follows is for the library's own code.

/// Whether the discarding stream is known to have failed, as it does at its first write. Whoever asks
/// for it with `tarvLog` may clear its state, so that is forgotten then.
[[gnu::visibility("hidden")]] extern bool discardingHasFailed;

/// What `workingLog` returns until that is known, and while the trace is on.
std::ostream* findWorkingLog();

/// `tarvLog()`, or null when that stream has failed.
inline std::ostream* workingLog() {
    return discardingHasFailed && !tarvLogEnabled ? nullptr : findWorkingLog();
}

/// Writes the parts to `log` as one line. Kept apart from the code that nearly always passes it by.
template <class... Parts>
[[gnu::cold, gnu::noinline]] void writeParts(std::ostream& log, const Parts&... parts) {
    (log << ... << parts) << std::endl;
}

/// Writes the parts as one line. A stream that has failed takes nothing any more: then the parts
/// are not even looked at.
template <class... Parts>
void writeLogLine(const Parts&... parts) {
    if (std::ostream* const log = workingLog()) {
        writeParts(*log, parts...);
    }
}

} // namespace tarv_3_3::internal
