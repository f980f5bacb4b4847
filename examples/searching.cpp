#include "searching.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <new>
#include <string_view>
#include <system_error>

#include <fnmatch.h>
#include <unistd.h>

#include "OpenFile.h"
#include "escaping.h"
#include "replacing.h"

namespace fs = std::filesystem;

namespace seek {

namespace {

/// Counts files on a terminal's standard error, once the work takes long.
class Progress {
public:
    explicit Progress(double secondsUntilShown)
        : m_isTerminal(isatty(STDERR_FILENO) != 0),
          m_next(Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(
                                    std::clamp(secondsUntilShown, 0.0, 3600.0)))) {}

    void show(std::uint64_t files) {
        const Clock::time_point now = Clock::now();
        if (m_isTerminal && now >= m_next) {
            std::fprintf(stderr, "\r\033[K%llu files", static_cast<unsigned long long>(files));
            m_next = now + std::chrono::milliseconds(100);
            m_isShown = true;
        }
    }

    void clear() {
        if (m_isShown) {
            std::fputs("\r\033[K", stderr);
            m_isShown = false;
        }
    }

private:
    using Clock = std::chrono::steady_clock;

    bool m_isTerminal;
    bool m_isShown = false;
    Clock::time_point m_next;
};

std::vector<std::string_view> splitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        lines.push_back(text.substr(0, text.find('\n')));
        text.remove_prefix(std::min(text.size(), lines.back().size() + 1));
    }
    return lines;
}

class Search {
public:
    explicit Search(const Job& job) : m_job(job), m_progress(job.progressAfter) {}

    ExitCode run() {
        if (m_job.paths.empty()) {
            searchStandardInput();
        }
        for (const std::string& path : m_job.paths) {
            visit(path, 0);
        }
        m_progress.clear();
        if (m_job.statistics) {
            complain(std::to_string(m_filesRead) + " files read, " + std::to_string(m_bytesRead) + " bytes");
        }
        if (std::fflush(stdout) != 0) {
            report("standard output", std::generic_category().message(errno));
        }
        return m_hasFailed ? failed : m_hasFound ? found : nothingFound;
    }

private:
    void searchStandardInput() {
        const std::string name = "(standard input)";
        try {
            searchText(name, readAll(STDIN_FILENO, 0));
        } catch (const FileError& error) {
            report(name, error.what());
        }
    }

    // Whatever goes wrong with one file, the others are visited.
    void visit(const fs::path& path, std::uint32_t depth) {
        try {
            visitUnguarded(path, depth);
        } catch (const FileError& error) {
            report(path, error.what());
        } catch (const std::bad_alloc&) {
            report(path, "Not enough memory");
        }
    }

    void visitUnguarded(const fs::path& path, std::uint32_t depth) {
        std::error_code error;
        const bool isGiven = depth == 0;
        const fs::file_status status = isGiven ? fs::status(path, error) : fs::symlink_status(path, error);
        if (error) {
            report(path, error.message());
        } else if (isExcluded(path)) {
            skip(path, "excluded");
        } else if (fs::is_directory(status)) {
            visitDirectory(path, depth);
        } else if (!isGiven && !fs::is_regular_file(status)) {
            skip(path, "not a regular file");
        } else {
            visitFile(path, isGiven);
        }
    }

    void visitDirectory(const fs::path& path, std::uint32_t depth) {
        if (depth >= m_job.maxDepth.value_or(UINT32_MAX)) {
            skip(path, "too deep");
            return;
        }
        std::error_code error;
        std::vector<fs::path> entries;
        for (fs::directory_iterator entry(path, error), end; !error && entry != end; entry.increment(error)) {
            entries.push_back(entry->path());
        }
        if (error) {
            report(path, error.message());
        }
        std::sort(entries.begin(), entries.end());
        for (const fs::path& entry : entries) {
            visit(entry, depth + 1);
        }
    }

    // A link that was given stands for its target. Only a given file may be a FIFO or a device, and only
    // to be read.
    void visitFile(const fs::path& path, bool isGiven) {
        m_progress.show(m_filesRead);
        std::error_code error;
        const fs::path target = isGiven && m_job.inPlace ? fs::canonical(path, error) : path;
        if (error) {
            report(path, error.message());
            return;
        }
        const bool mustBeRegular = !isGiven || m_job.inPlace;
        const OpenFile file(target, mustBeRegular ? OpenFile::Kind::regular : OpenFile::Kind::any);
        if (file.isRegular() &&
            static_cast<std::uint64_t>(file.state().st_size) > m_job.maxSize.value_or(UINT64_MAX)) {
            skip(path, "too large");
        } else if (m_job.inPlace) {
            replaceInPlace(path, target, file);
        } else {
            searchText(path, file.read());
        }
    }

    void searchText(const std::string& path, const std::string& contents) {
        if (!acceptText(path, contents)) {
            return;
        }
        if (m_job.action == Action::replace) {
            std::string replaced;
            countReplaced(replaced, contents);
            std::fwrite(replaced.data(), 1, replaced.size(), stdout);
        } else {
            findMatches(path, splitLines(contents));
        }
    }

    bool acceptText(const std::string& path, const std::string& contents) {
        ++m_filesRead;
        m_bytesRead += contents.size();
        const bool isText = contents.find('\0') == std::string::npos;
        if (!isText) {
            skip(path, "not a text");
        }
        return isText;
    }

    void findMatches(const std::string& path, const std::vector<std::string_view>& lines) {
        std::vector<std::size_t> matches;
        for (std::size_t i = 0; i < lines.size() && matches.size() < m_job.maxCount.value_or(UINT32_MAX);
             ++i) {
            if (lines[i].find(m_job.pattern) != std::string_view::npos) {
                matches.push_back(i);
            }
        }
        if (matches.empty()) {
            return;
        }
        m_hasFound = true;
        m_progress.clear();
        if (m_job.action == Action::count) {
            std::printf("%s:%zu\n", shown(path).c_str(), matches.size());
        } else {
            printMatches(shown(path), lines, matches);
        }
    }

    // Contexts that touch or overlap make one group; two dashes stand between groups.
    void printMatches(const std::string& name, const std::vector<std::string_view>& lines,
                      const std::vector<std::size_t>& matches) {
        const std::size_t context = m_job.contextLines;
        std::size_t next = 0;
        for (std::size_t i = 0; i < matches.size(); ++i) {
            const std::size_t match = matches[i];
            const std::size_t first = std::max(next, match - std::min(match, context));
            const std::size_t end = i + 1 < matches.size() ? matches[i + 1] : lines.size();
            if (context != 0 && m_hasPrinted && (next == 0 || first > next)) {
                std::puts("--");
            }
            m_hasPrinted = true;
            for (next = first; next < end && next <= match + context; ++next) {
                printLine(name, next + 1, next == match ? ':' : '-', lines[next]);
            }
        }
    }

    void printLine(const std::string& name, std::size_t number, char mark, std::string_view line) const {
        std::string text = name + mark + std::to_string(number) + mark;
        if (m_job.color && mark == ':') {
            appendReplaced(text, line, "\033[1;31m" + m_job.pattern + "\033[m");
        } else {
            text.append(line);
        }
        std::puts(text.c_str());
    }

    void replaceInPlace(const fs::path& path, const fs::path& target, const OpenFile& file) {
        const std::string contents = file.read();
        if (!acceptText(path, contents)) {
            return;
        }
        std::string replaced;
        const std::size_t count = countReplaced(replaced, contents);
        if (count != 0) {
            replaceFile(target, file, replaced);
        }
        if (m_job.verbose) {
            complain(path.string() + ": " + std::to_string(count) + " replaced");
        }
    }

    std::size_t countReplaced(std::string& replaced, const std::string& contents) {
        const std::size_t count = appendReplaced(replaced, contents, m_job.replacement);
        m_hasFound = m_hasFound || count != 0;
        m_progress.clear();
        return count;
    }

    std::size_t appendReplaced(std::string& output, std::string_view text,
                               const std::string& replacement) const {
        std::size_t count = 0;
        for (std::size_t match; (match = text.find(m_job.pattern)) != std::string_view::npos; ++count) {
            output.append(text.substr(0, match)).append(replacement);
            text.remove_prefix(match + m_job.pattern.size());
        }
        output.append(text);
        return count;
    }

    std::string shown(const std::string& path) const { return m_isTerminal ? escapeControls(path) : path; }

    bool isExcluded(const fs::path& path) const {
        const std::string name = path.filename();
        return std::any_of(m_job.exclude.begin(), m_job.exclude.end(), [&](const std::string& pattern) {
            return fnmatch(pattern.c_str(), name.c_str(), 0) == 0;
        });
    }

    void skip(const std::string& path, const char* reason) {
        if (m_job.verbose) {
            m_progress.clear();
            complain(path + ": skipped, " + reason);
        }
    }

    void report(const std::string& path, const std::string& problem) {
        m_hasFailed = true;
        m_progress.clear();
        complain(path + ": " + problem);
    }

    const Job& m_job;
    const bool m_isTerminal = isatty(STDOUT_FILENO) != 0;
    Progress m_progress;
    std::uint64_t m_filesRead = 0;
    std::uint64_t m_bytesRead = 0;
    bool m_hasFound = false;
    bool m_hasFailed = false;
    bool m_hasPrinted = false;
};

} // namespace

ExitCode run(const Job& job) {
    return Search(job).run();
}

void complain(const std::string& message) {
    std::fflush(stdout);
    const bool isTerminal = isatty(STDERR_FILENO) != 0;
    std::fprintf(stderr, "seek: %s\n", (isTerminal ? escapeControls(message) : message).c_str());
}

} // namespace seek
