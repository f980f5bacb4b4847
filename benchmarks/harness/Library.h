#pragma once

#include "harness/Answer.h"
#include "harness/CommandLine.h"
#include "harness/Workload.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace bench {

[[noreturn]] inline void fail(const std::string& message) {
    throw std::runtime_error(message);
}

/// A command-line library in use, as a host uses it. Every operation fails with an exception.
class Library {
public:
    virtual ~Library() = default;

    /// Declares all of `options`, which outlive this object.
    virtual void declare(const std::vector<Option>& options) = 0;

    /// Has a function called for every value of the next parses, which accepts it.
    virtual void watch() { fail("no function to call"); }

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

/// What not every library can do.
enum Ability : unsigned {
    /// Its declarations can be taken back. If not, they belong to the process, and are made once: such a
    /// library has no warm-up, and is not measured in times.
    takesBack = 1,
    /// An option given twice keeps both values. If not, there is no answer for `longCommandLine`.
    collects = 2,
    /// It has a help text.
    helps = 4,
    /// It turns a switch off by a prefix of its name, undeclared.
    negates = 8,
    /// It understands names whose words are cut short, also where others begin like the whole of it.
    abbreviates = 16,
    /// It calls a function of the host for every value.
    watches = 32
};

/// A library, and what the measurement has to know about it.
struct Candidate {
    const char* name;
    Dialect dialect;
    /// `Option::declared` for one option.
    std::string (*declared)(const Option& option);
    std::unique_ptr<Library> (*make)();
    /// Bits of `Ability`.
    unsigned abilities = takesBack | collects | helps;
};

/// Does what a host does before it parses.
inline void declare(Library& library, const Workload& workload) {
    library.declare(workload.options);
    if (workload.isWatched)
        library.watch();
}

/// The workload with every `Option::declared` in the candidate's notation.
inline Workload prepared(const Candidate& candidate, Workload workload) {
    for (Option& option : workload.options)
        option.declared = candidate.declared(option);
    return workload;
}

} // namespace bench
