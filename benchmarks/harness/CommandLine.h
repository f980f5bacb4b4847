#pragma once

#include "harness/Workload.h"

#include <string>
#include <vector>

namespace bench {

/// How a library wants the same command line to be written.
struct Dialect {
    /// It understands "--name=value". If not, the value follows as an argument of its own.
    bool joinsValues = true;
    /// What stands between the words of a name.
    char wordSeparator = '-';
    /// What stands before the name of a switch that is turned off.
    const char* negation = "no-";
};

/// A command line as main receives it.
class CommandLine {
public:
    CommandLine(const Workload& workload, const Dialect& dialect);

    int count() const { return static_cast<int>(m_texts.size()); }

    /// The arguments in their order, and a null; libraries may reorder what an earlier call gave.
    char** arguments();

private:
    std::vector<std::string> m_texts;
    std::vector<char*> m_pointers;
};

} // namespace bench
