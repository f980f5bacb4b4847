#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What seek does with files. Nothing here knows how a command line looks.
namespace seek {

/// As tools that search end: an error outweighs whatever was found.
enum ExitCode : int { found = 0, nothingFound = 1, failed = 2 };

enum class Action { search, count, replace };

struct Job {
    Action action = Action::search;
    std::string pattern;
    std::string replacement;
    /// Write files instead of printing what they would become.
    bool inPlace = false;
    std::uint32_t contextLines = 0;
    /// Matching lines to look for in each file.
    std::optional<std::uint32_t> maxCount;

    /// Files and directories; none means standard input.
    std::vector<std::string> paths;
    /// Shell patterns of names that are passed over.
    std::vector<std::string> exclude;
    std::optional<std::uint64_t> maxSize;
    std::optional<std::uint32_t> maxDepth;

    bool color = false;
    bool verbose = false;
    bool statistics = false;
    /// Seconds of work before progress is shown.
    double progressAfter = 0.5;
};

/// Does the job: results on standard output, complaints and progress on standard error.
ExitCode run(const Job& job);

/// Prints a message on standard error behind the name of the program. On a terminal its control characters
/// are escaped: the names in it are not of seek's choosing.
void complain(const std::string& message);

} // namespace seek
