#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "reliability/FailingAllocations.h"
#include "reliability/Session.h"

// Whoever supplies a command line decides what it costs. Hosts are told what a value takes at most while it
// is parsed, so that may not grow unnoticed.

namespace {

using namespace tarv_3_3;

// A little more than a power of two, where a list that grows has just been moved to one of twice the room.
constexpr unsigned valueCount = 132000;

/// A number of six digits, behind as many letters as it takes.
std::string valueOf(unsigned number, std::size_t width) {
    return std::string(width - 6, 'x') + std::to_string(100000 + number);
}

/// One argument with all values, or as many arguments.
std::vector<std::string> argumentsOf(std::size_t width, bool inOneList) {
    std::vector<std::string> arguments;
    for (unsigned number = 0; number < valueCount; ++number) {
        if (inOneList && number > 0) {
            arguments.back() += "," + valueOf(number, width);
        } else {
            arguments.push_back("--list=" + valueOf(number, width));
        }
    }
    return arguments;
}

/// What parsing takes at its peak.
long peakOfParsing(Session& session, const std::vector<std::string>& arguments) {
    std::vector<const char*> argv = {"host"};
    for (const std::string& argument : arguments) {
        argv.push_back(argument.c_str());
    }
    failing::forgetPeak();
    const long before = failing::liveBytes();
    const int status =
        session.parser->parseArgsVector(static_cast<int>(argv.size()), argv.data(), session.result);
    const long peak = failing::peakBytes() - before;
    EXPECT_EQ(status, parseOk) << session.parser->getErrorDesc();
    return peak;
}

unsigned countValues(Session& session) {
    unsigned count = 0;
    for (Value value = session.result->get("list"); value.text != nullptr;
         value = session.result->next("list")) {
        ++count;
    }
    return count;
}

TEST(MemoryOfLists, StaysBelowWhatHostsAreTold) {
    const struct {
        das_variant_type_t kind;
        std::size_t width;
        bool inOneList;
        long mostBytes;
    } rows[] = {
        {vtInt32, 6, true, 100},   {vtInt32, 6, false, 140},   {vtString, 6, true, 125},
        {vtString, 6, false, 165}, {vtString, 16, true, 135},  {vtString, 16, false, 190},
        {vtString, 24, true, 160}, {vtString, 24, false, 220},
    };
    failing::hookVariants();
    for (const auto& row : rows) {
        SCOPED_TRACE("kind " + std::to_string(row.kind) + ", " + std::to_string(row.width) + " bytes" +
                     (row.inOneList ? " in one list" : ""));
        Session session;
        open(session);
        session.parser->option("list", "", row.kind);
        const long peak = peakOfParsing(session, argumentsOf(row.width, row.inOneList));
        EXPECT_LE(peak / long(valueCount), row.mostBytes);
        EXPECT_GT(peak / long(valueCount), row.mostBytes / 2);
        EXPECT_EQ(getLastValue(session.result, "list").text, valueOf(valueCount - 1, row.width));
    }
}

TEST(MemoryOfLists, StaysBelowWhatHostsAreToldOfReading) {
    const struct {
        std::size_t width;
        long mostBytes;
    } rows[] = {{6, 70}, {16, 85}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::to_string(row.width) + " bytes");
        Session session;
        open(session);
        session.parser->option("list", "", vtString);
        peakOfParsing(session, argumentsOf(row.width, true));
        failing::forgetPeak();
        const long before = failing::liveBytes();
        EXPECT_EQ(countValues(session), valueCount);
        const long perValue = (failing::peakBytes() - before) / long(valueCount);
        EXPECT_LE(perValue, row.mostBytes);
        EXPECT_GT(perValue, row.mostBytes / 2);
    }
}

} // namespace
