#pragma once

#include "completion/Shell.h"
#include "tarv_3_3/completion.h"

namespace tarv_3_3 {

/// A request of a shell script or a tool, which a program answers instead of doing its work.
struct Request {
    enum class Kind { none, script, answer, description };

    Kind kind;
    /// The shell of the script, or the shell that asks.
    Shell shell;
};

/// Only a command line with one argument is a request.
Request recognizeRequest(int argc, const char* const* argv);

/// Makes the answers to requests. Both functions may throw standard exceptions.
class Answerer {
public:
    /// What may replace the last of the words; null when that is unknown. The answerer owns what it returns,
    /// which is valid until the next call.
    virtual const Completion* complete(int count, const char* const* words) = 0;

    /// Null when there is none.
    virtual const char* describeAsJson() = 0;

protected:
    Answerer() = default;
    Answerer(const Answerer&) = default;
    Answerer& operator=(const Answerer&) = default;
    ~Answerer() = default;
};

/// Answers a request on standard output, and returns whether the command line was one. Words are read from
/// standard input. Prints nothing when there is no answer or no memory for it. When no script can be made,
/// says so on standard error. Never throws.
bool answerRequest(int argc, const char* const* argv, Answerer& answerer);

} // namespace tarv_3_3
