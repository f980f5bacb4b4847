// seek searches text files: the command line of a real tool. What it does with files is in
// searching.cpp, and how it replaces one without losing it in replacing.cpp.

#include <tarv_3_3/typed.h>

#include <cstdlib>
#include <filesystem>
#include <new>
#include <string>
#include <system_error>
#include <vector>

#include <unistd.h>

#include "searching.h"

namespace tarv = tarv_3_3::typed;

namespace {

enum class When { auto_, always, never };

// NO_COLOR stands above --color: whoever sets it wants no colour from any program, an empty one counts
// as not set.
bool wantsColor(When when) {
    const char* const noColor = std::getenv("NO_COLOR");
    const bool isForbidden = noColor != nullptr && *noColor != '\0';
    return !isForbidden && (when == When::always || (when == When::auto_ && isatty(STDOUT_FILENO) != 0));
}

// What stands in the way of reading it is said then.
bool isThere(const std::string& path) {
    std::error_code error;
    return std::filesystem::status(path, error).type() != std::filesystem::file_type::not_found;
}

int seekMain(int argc, char** argv) {
    tarv::Program tool("seek", nullptr,
                       "Searches text files, or standard input. Names may be abbreviated. "
                       "Exit code: 0 found, 1 nothing found, 2 bad command line or unreadable file.");
    seek::Job job;
    const auto search = tool.action("search,s", "Print the lines that hold the pattern.");
    const auto count = tool.action("count,c", "Print how many lines of each file hold the pattern.");
    const auto replace =
        tool.action("replace,r", "Print the files with every match replaced, or write them with --in-place.");

    const auto files = tool.bindPositional("file", job.paths, "Files, or directories with all in them.")
                           .check("an existing file or directory", isThere);
    tool.bind("pattern,p", job.pattern, "The text to search for.").required().completeAs("none");
    tool.bind("with,w", job.replacement, "What takes the place of a match; without it, nothing does.")
        .goesWith(replace)
        .mayBeEmpty()
        .completeAs("none");
    tool.bind("in-place,i", job.inPlace, "Write the files instead of printing them.")
        .goesWith(replace)
        .needs(files);
    tool.bind("context,C", job.contextLines, "Print this many lines around each match.").goesWith(search);
    tool.bind("max-count,m", job.maxCount, "Stop behind this many matching lines of a file.")
        .goesWith(search, count);

    tool.bind("verbose,v", job.verbose, "Say what is skipped or written.");
    const auto color = tool.option(
        "color", "Show matches in colour; auto: on a terminal. When NO_COLOR is set, never.", When::auto_);
    tool.bind("exclude,x", job.exclude, "Pass over files and directories with these names, as in *.o,build.")
        .completeAs("none");
    tool.bind("max-size", job.maxSize, "Pass over files of more than this many bytes.").value("BYTES");
    tool.bind("max-depth", job.maxDepth, "Go this deep into directories.");
    tool.settingsOption("option-file", "Read an action and options from this file, one a line.");
    tool.bind("statistics", job.statistics, "Say how much was read.").hidden();
    tool.bind("progress-after", job.progressAfter, "Show progress after this many seconds.").hidden();

    return tool.run(argc, argv, [&]() -> int {
        job.action = *search ? seek::Action::search : *count ? seek::Action::count : seek::Action::replace;
        job.color = wantsColor(*color);
        return seek::run(job);
    });
}

} // namespace

int main(int argc, char** argv) {
    try {
        return seekMain(argc, argv);
    } catch (const std::bad_alloc&) {
        seek::complain("out of memory");
        return seek::failed;
    }
}
