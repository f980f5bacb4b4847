#pragma once

#include "completion/Shell.h"
#include "tarv_3_3/completion.h"

namespace tarv_3_3 {

/// What a command line asks of the program besides its work.
struct Request {
    enum class Kind { none, script, answer, description };

    Kind kind;
    /// Whose script, or who asks.
    Shell shell;
};

/// Only a command line with one argument is a request.
Request recognizeRequest(int argc, const char* const* argv);

/// What is asked for requests. Both may throw standard exceptions.
class Answerer {
public:
    /// What may stand in place of the last of the words; null when there is no telling. What is returned
    /// belongs to the answerer, and is read before it is asked again.
    virtual const Completion* complete(int count, const char* const* words) = 0;

    /// Null when there is none.
    virtual const char* describeAsJson() = 0;

protected:
    Answerer() = default;
    Answerer(const Answerer&) = default;
    Answerer& operator=(const Answerer&) = default;
    ~Answerer() = default;
};

/// Answers a request on standard output, and returns whether it was one. Words are read from standard
/// input. Where there is no answer, or no memory for it, nothing is printed; that no script can be made
/// is said on standard error. Never throws.
bool answerRequest(int argc, const char* const* argv, Answerer& answerer);

} // namespace tarv_3_3
