#pragma once

#include <string>
#include <vector>

#include "model/CommandLine.h"

namespace tarv_program {

/// How one argument is understood.
struct ExplainedWord {
    std::string argument;
    /// The whole name of the option, or what else it is.
    std::string means;
    /// What the option has of it.
    std::string value;
    /// Where the value comes from, what the name is short for, why it is refused.
    std::string remark;
};

struct ExplainedLine {
    std::vector<ExplainedWord> words;
    /// What is not given, and what it is then.
    std::vector<std::string> notGiven;
    /// Why nothing is known of the outcome, such as that the program mends it before it is parsed; "" when it
    /// is.
    std::string doubt;
    bool isAccepted = false;
    /// Why it is not.
    std::string message;
};

/// How a program understands its arguments; the program is not run.
ExplainedLine explainLine(const CommandLine& program, const std::vector<std::string>& arguments);

/// The same as a table for people.
std::string table(const ExplainedLine& line);

} // namespace tarv_program
