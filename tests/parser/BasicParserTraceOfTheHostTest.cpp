#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

#include "parser/Parsing.h"
#include "tarv_3_3/internal/log.h"

namespace tarv_3_3 {
namespace {

/// Reads the lines that are discarded while the trace is off, as a host may that asks for the stream and
/// gives it a buffer of its own.
class ReadDiscardedLines {
public:
    ReadDiscardedLines() : m_stream(internal::tarvLog()), m_former(m_stream.rdbuf(m_text.rdbuf())) {}
    ReadDiscardedLines(const ReadDiscardedLines&) = delete;
    ReadDiscardedLines& operator=(const ReadDiscardedLines&) = delete;
    ~ReadDiscardedLines() { m_stream.rdbuf(m_former); }

    std::string text() const { return m_text.str(); }

private:
    std::ostream& m_stream;
    std::ostringstream m_text;
    std::streambuf* m_former;
};

// Which stream has failed is asked of that stream: the trace may have none to go to for a while.
TEST(TraceOfTheHost, GetsEveryLineBehindATraceThatCouldNotBeWritten) {
    const ReadDiscardedLines lines;
    Parsing parsing;
    std::cout.setstate(std::ios::failbit);
    EXPECT_EQ(parsing.parse({"tarvoption=tarvlogenable=1", "lost"}), 0);
    std::cout.clear();
    EXPECT_EQ(lines.text(), "");
    EXPECT_EQ(parsing.parse({"--", "found"}), 0);
    EXPECT_EQ(lines.text(), "collectNonparsingArguments: stored argument: 'found'\n");
}

} // namespace
} // namespace tarv_3_3
