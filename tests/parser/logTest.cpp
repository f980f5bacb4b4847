#include "tarv_3_3/internal/log.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <iostream>
#include <locale>
#include <memory>
#include <sstream>
#include <type_traits>

#include "platform/logLine.h"
#include "support/CapturedLog.h"
#include "support/CapturedOutput.h"
#include "tarv_3_3/tarv.h"

namespace tarv_3_3::internal {
namespace {

using Nullbuf = basic_nullbuf<char, std::char_traits<char>>;

TEST(TarvLog, IsOneStreamThatDiscardsWhileTheTraceIsOff) {
    const CapturedOutput output;
    tarvLogEnabled = false;
    std::ostream& log = tarvLog();
    EXPECT_NE(&log, &std::cout);
    log << "a line" << std::endl;
    log << 5 << std::endl;
    EXPECT_EQ(&tarvLog(), &log);
    EXPECT_FALSE(log.good());
    EXPECT_EQ(output.text(), "");
}

TEST(TarvLog, IsStandardOutputWhileTheTraceIsOn) {
    std::ostream& discarding = tarvLog();
    const CapturedLog log;
    EXPECT_EQ(&tarvLog(), &std::cout);
    tarvLog() << "a line" << std::endl;
    EXPECT_EQ(log.text(), "a line\n");
    tarvLogEnabled = false;
    EXPECT_EQ(&tarvLog(), &discarding);
    tarvLog() << "another line" << std::endl;
    EXPECT_EQ(log.text(), "a line\n");
}

TEST(TarvLog, MakesItsStreamAtTheFirstCallAndKeepsIt) {
    TarvLog holder;
    std::ostream& stream = holder.discarding();
    EXPECT_NE(&stream, &TarvLog().discarding());
    EXPECT_TRUE(stream.good());
    EXPECT_EQ(&holder.discarding(), &stream);
    EXPECT_NE(dynamic_cast<Nullbuf*>(stream.rdbuf()), nullptr);
}

TEST(TarvLog, FailsAtTheFirstWriteAndStaysFailed) {
    TarvLog holder;
    std::ostream& stream = holder.discarding();
    stream << 'x';
    EXPECT_TRUE(stream.bad());
    stream << "more" << std::endl;
    EXPECT_TRUE(stream.bad());
}

TEST(BasicNullbuf, IsAStreamBufferWithoutStorage) {
    EXPECT_TRUE((std::is_base_of_v<std::streambuf, Nullbuf>));
    Nullbuf buffer;
    EXPECT_EQ(buffer.sputc('x'), std::char_traits<char>::eof());
    EXPECT_EQ(buffer.sputn("text", 4), 0);
    EXPECT_EQ(buffer.sgetc(), std::char_traits<char>::eof());
}

TEST(BasicNullbuf, IsThereForAnyKindOfCharacter) {
    basic_nullbuf<wchar_t, std::char_traits<wchar_t>> buffer;
    std::wostream stream(&buffer);
    stream << L'x';
    EXPECT_TRUE(stream.bad());
}

TEST(WriteLogLine, WritesItsPartsAsOneLine) {
    const CapturedLog log;
    writeLogLine("text ", 5, std::string(" and more"));
    writeLogLine("next");
    EXPECT_EQ(log.text(), "text 5 and more\nnext\n");
}

TEST(WriteLogLine, WritesNothingWhileTheTraceIsOff) {
    const CapturedOutput output;
    tarvLogEnabled = false;
    writeLogLine("text");
    EXPECT_EQ(output.text(), "");
}

TEST(WriteLogLine, FlushesEveryLine) {
    struct FlushCounter : std::stringbuf {
        int sync() override {
            ++flushes;
            return 0;
        }
        int flushes = 0;
    };
    const CapturedLog log;
    FlushCounter buffer;
    std::streambuf* const captured = std::cout.rdbuf(&buffer);
    writeLogLine("one");
    EXPECT_EQ(buffer.flushes, 1);
    writeLogLine("two");
    EXPECT_EQ(buffer.flushes, 2);
    EXPECT_EQ(buffer.str(), "one\ntwo\n");
    std::cout.rdbuf(captured);
}

TEST(WriteLogLine, WritesToADiscardingStreamThatAHostGaveABuffer) {
    tarvLogEnabled = false;
    writeLogLine("first");
    std::ostream& log = tarvLog();
    writeLogLine("second");
    EXPECT_TRUE(log.fail());
    std::ostringstream text;
    std::streambuf* const own = log.rdbuf(text.rdbuf());
    writeLogLine("third");
    log.setstate(std::ios::failbit);
    writeLogLine("lost");
    log.clear();
    writeLogLine("fourth");
    EXPECT_EQ(text.str(), "third\nfourth\n");
    log.rdbuf(own);
    EXPECT_TRUE(log.good());
    writeLogLine("fifth");
    EXPECT_TRUE(log.fail());
    EXPECT_EQ(text.str(), "third\nfourth\n");
}

TEST(WriteLogLine, WritesNumbersInDecimalWhateverTheStreamIsSetTo) {
    struct Grouping : std::numpunct<char> {
        char do_thousands_sep() const override { return '\''; }
        std::string do_grouping() const override { return "\1"; }
    };
    const CapturedLog log;
    std::ios before(nullptr);
    before.copyfmt(std::cout);
    const std::locale locale = std::cout.imbue(std::locale(std::locale::classic(), new Grouping));
    std::cout << std::hex << std::showbase << std::showpos << std::uppercase << std::internal
              << std::setfill('*') << std::setw(20);
    writeLogLine("text ", 1234, ' ', -2147483647 - 1, std::string_view("!"), 2147483647);
    EXPECT_EQ(std::cout.width(), 20);
    std::cout.copyfmt(before);
    std::cout.imbue(locale);
    EXPECT_EQ(log.text(), "text 1234 -2147483648!2147483647\n");
}

// A buffer of the host that parses while a line is written to it.
TEST(WriteLogLine, MayBeCalledWhileALineIsWritten) {
    struct Echo : std::stringbuf {
        int sync() override {
            if (!m_told) {
                m_told = true;
                writeLogLine("inner");
            }
            return 0;
        }
        bool m_told = false;
    };
    const CapturedLog log;
    Echo buffer;
    std::streambuf* const captured = std::cout.rdbuf(&buffer);
    writeLogLine("outer");
    std::cout.rdbuf(captured);
    EXPECT_EQ(buffer.str(), "outer\ninner\n");
}

// The switch is looked at for every line, whatever was found out at the one before.
TEST(WriteLogLine, FollowsTheSwitchFromLineToLine) {
    const CapturedLog log;
    writeLogLine("on");
    for (int i = 0; i < 3; ++i) {
        tarvLogEnabled = false;
        writeLogLine("off");
        writeLogLine("off");
        tarvLogEnabled = true;
        writeLogLine("on again");
    }
    EXPECT_EQ(log.text(), "on\non again\non again\non again\n");
}

TEST(WriteLogLine, GoesOnWhereStandardOutputWorksAgain) {
    const CapturedLog log;
    std::cout.setstate(std::ios::failbit);
    writeLogLine("lost");
    std::cout.clear();
    writeLogLine("written");
    EXPECT_EQ(log.text(), "written\n");
}

TEST(WriteLogLine, LeavesAStreamAloneThatHasFailedAndThrows) {
    const CapturedLog log;
    Nullbuf full;
    std::streambuf* const captured = std::cout.rdbuf(&full);
    std::cout.exceptions(std::ios::badbit | std::ios::failbit);
    EXPECT_THROW(writeLogLine("lost"), std::ios::failure);
    EXPECT_NO_THROW(writeLogLine("lost as well"));
    std::cout.exceptions(std::ios::goodbit);
    std::cout.rdbuf(captured);
    writeLogLine("written");
    EXPECT_EQ(log.text(), "written\n");
}

TEST(LogSwitch, HoldsUntilTheNextParse) {
    struct Destroyer {
        void operator()(IParser* parser) const { parser->destroy(); }
        void operator()(IParseResult* result) const { result->destroy(); }
    };
    IParser* parser = nullptr;
    ASSERT_EQ(createParser(&parser), 0);
    const std::unique_ptr<IParser, Destroyer> parserOwner(parser);
    IParseResult* result = nullptr;
    ASSERT_EQ(parser->createResult(&result), 0);
    const std::unique_ptr<IParseResult, Destroyer> resultOwner(result);

    const CapturedOutput output;
    std::ostream& discarding = tarvLog();
    const char* const traced[] = {"program", "tarvoption=tarvlogenable=1"};
    EXPECT_EQ(parser->parseArgsVector(2, traced, result), 0);
    EXPECT_EQ(&tarvLog(), &std::cout);
    parser->getErrorDesc();
    EXPECT_EQ(&tarvLog(), &std::cout);
    const char* const untraced[] = {"program", "argument"};
    EXPECT_EQ(parser->parseArgsVector(2, untraced, result), 0);
    EXPECT_EQ(&tarvLog(), &discarding);
}

} // namespace
} // namespace tarv_3_3::internal
