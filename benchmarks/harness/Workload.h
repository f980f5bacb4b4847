#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace bench {

enum class Kind { Switch, Integer, Number, Text, List, Positional };

/// The default of every option that has one.
inline constexpr int defaultInteger = 3;
inline constexpr double defaultNumber = 1.5;
inline constexpr const char* defaultText = "text";

/// One option as every library is asked to declare it. What is not given, and has no default, reads
/// as false, zero or the empty text.
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
    /// The library is told a default: false, or what stands above. Never true of lists.
    bool hasDefault = false;
    /// A switch that reads as true unless the command line negates it.
    bool isOnAtFirst = false;
};

/// One thing on a command line, before a library's dialect turns it into arguments.
struct Given {
    /// Null for a positional argument.
    const Option* option;
    /// Empty for a switch.
    std::string value;
    /// "--name=value" in one argument, rather than "--name" and "value" in two.
    bool joined;
    /// How many bytes of the name are left out at its end.
    std::size_t cut = 0;
};

/// A set of declarations and a command line for them.
struct Workload {
    std::vector<Option> options;
    std::vector<Given> given;
    /// The host has a function of its own called for every value, which accepts it.
    bool isWatched = false;

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

/// The everyday workload with a default for all but the lists.
Workload everydayWithDefaults();

/// The everyday workload, watched.
Workload everydayWatched();

/// The name of the option at `index` of a table of up to 8,000.
using Naming = std::string (*)(std::size_t index);

/// Names of one to three words. Every first word begins a twentieth of the table, as the groups of
/// options of a large program do.
std::string groupedName(std::size_t index);

/// The same behind "feature-": all names begin alike, and have a word more.
std::string featureName(std::size_t index);

/// "feature-0000" and so on, which differ in the last bytes alone.
std::string numberedName(std::size_t index);

/// `options` lists and a positional one; 100 arguments: 60 "--name=value", 15 "--name value" and
/// 10 positional ones, which give options evenly spread over the table. `cut` bytes are left out at
/// the end of every name given.
Workload manyOptions(std::size_t options, Naming naming = groupedName, std::size_t cut = 0);

/// `options` switches that are on at first, and a positional option; 100 arguments: 90 switches,
/// evenly spread over the table, each negated, and 10 positional ones.
Workload manySwitches(std::size_t options, Naming naming);

} // namespace bench
