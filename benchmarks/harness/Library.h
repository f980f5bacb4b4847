#pragma once

#include "harness/Answer.h"
#include "harness/CommandLine.h"
#include "harness/Workload.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace bench {

/// A command-line library in use, as a host uses it. Every operation fails with an exception.
class Library {
public:
    virtual ~Library() = default;

    /// Declares all of `options`, which outlive this object.
    virtual void declare(const std::vector<Option>& options) = 0;

    /// Parses a command line. The arguments are the library's to reorder; they outlive `read`.
    virtual void parse(int argc, char** argv) = 0;

    /// Reads every declared option into a cleared `answer`.
    virtual void read(const std::vector<Option>& options, Answer& answer) = 0;

    /// Readies the declared parser for another command line: drops what the last parse found.
    virtual void forget() = 0;

    /// The help for everything that is declared.
    virtual std::string help() = 0;
};

template <class T>
std::unique_ptr<Library> make() {
    return std::make_unique<T>();
}

/// A library, and what the measurement has to know about it.
struct Candidate {
    const char* name;
    Dialect dialect;
    /// `Option::declared` for one option.
    std::string (*declared)(const Option& option);
    std::unique_ptr<Library> (*make)();
    /// Its declarations belong to the process: they are made once and never taken back. Such a
    /// library is measured without a warm-up, and not in times.
    bool onePerProcess = false;
    /// An option given twice keeps both values. If not, there is no answer for `longCommandLine`.
    bool collects = true;
    bool hasHelp = true;
};

/// The workload with every `Option::declared` in the candidate's notation.
inline Workload prepared(const Candidate& candidate, Workload workload) {
    for (Option& option : workload.options)
        option.declared = candidate.declared(option);
    return workload;
}

[[noreturn]] inline void fail(const std::string& message) {
    throw std::runtime_error(message);
}

} // namespace bench
