#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "Described.h"
#include "compare/compare.h"
#include "compare/report.h"

namespace tarv_program {

using Declare = void (*)(tarv_3_3::IParser&);

/// Two command lines, and what breaks between them.
struct CompareRow {
    const char* title;
    Declare older;
    Declare newer;
    /// A line for each break, as in a baseline.
    const char* expected;
};

inline void expectRows(std::initializer_list<CompareRow> rows,
                       int flags = tarv_3_3::flagRejectUnknown | tarv_3_3::flagDashIsNotPositional) {
    for (const CompareRow& row : rows) {
        SCOPED_TRACE(row.title);
        EXPECT_EQ(reportAsBaseline(compare(described(row.older, flags), described(row.newer, flags))),
                  row.expected);
    }
}

inline void nothing(tarv_3_3::IParser&) {}

/// A verb by its names, the primary one first, and what `declare` declares behind it.
inline CommandLine verb(std::vector<std::string> names, Declare declare) {
    CommandLine line = described(declare);
    line.names = std::move(names);
    return line;
}

} // namespace tarv_program
