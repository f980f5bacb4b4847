#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace bench {

enum class Kind { Switch, Integer, Number, Text, List, Positional };

/// One option as every library is asked to declare it. Nothing has a default: what is not given
/// reads as false, zero or the empty text.
struct Option {
    std::string name;
    /// A second name of one character, 0 for none.
    char alias;
    Kind kind;
    std::string description;
    /// Where its value goes in `Answer`: the index among the options that share its storage.
    std::size_t slot;
    /// More than the workload gives it, for libraries that want a bound.
    std::size_t atMost;
    /// The names as the library at hand wants them, for example "verbose,v": what a host writes as
    /// a literal, hence made before anything is measured.
    std::string declared = {};
};

/// One thing on a command line, before a library's dialect turns it into arguments.
struct Given {
    /// Null for a positional argument.
    const Option* option;
    /// Empty for a switch.
    std::string value;
    /// "--name=value" in one argument, rather than "--name" and "value" in two.
    bool joined;
};

/// A set of declarations and a command line for them.
struct Workload {
    std::vector<Option> options;
    std::vector<Given> given;

    Workload() = default;
    Workload(Workload&&) = default;
    Workload& operator=(Workload&&) = default;
    Workload(const Workload&) = delete;
    Workload& operator=(const Workload&) = delete;
};

/// 24 options; 20 arguments that give 12 of them and 4 positional arguments.
Workload everydayWorkload();

/// The same 24 options; `arguments` arguments, a quarter of them positional, the others occurrences
/// of the one list, as "--name=value" and as "--name value" in turn.
Workload longCommandLine(std::size_t arguments);

/// `options` lists and a positional one; 100 arguments: 60 "--name=value", 15 "--name value" and
/// 10 positional ones, which give options evenly spread over the table.
Workload manyOptions(std::size_t options);

} // namespace bench
