#include "searching.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

#include <fnmatch.h>
#include <unistd.h>

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

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

bool readAll(std::FILE* file, std::string& contents) {
    char block[65536];
    while (const std::size_t size = std::fread(block, 1, sizeof block, file)) {
        contents.append(block, size);
    }
    return std::ferror(file) == 0;
}

bool writeAll(const std::string& path, const std::string& contents) {
    File file(std::fopen(path.c_str(), "wb"), std::fclose);
    return file != nullptr &&
           std::fwrite(contents.data(), 1, contents.size(), file.get()) == contents.size() &&
           std::fclose(file.release()) == 0;
}

std::error_code lastError() {
    return {errno, std::generic_category()};
}

// The file is replaced in one step: whoever reads it meanwhile sees the old or the new text.
std::error_code writeInPlace(const std::string& path, const std::string& contents) {
    std::error_code error;
    const fs::path target = fs::canonical(path, error);
    if (error) {
        return error;
    }
    std::string temporary = target.string() + ".XXXXXX";
    const int descriptor = mkstemp(temporary.data());
    if (descriptor < 0) {
        return lastError();
    }
    close(descriptor);
    if (!writeAll(temporary, contents)) {
        error = lastError();
    }
    if (!error) {
        fs::permissions(temporary, fs::status(target).permissions(), error);
    }
    if (!error) {
        fs::rename(temporary, target, error);
    }
    if (error) {
        std::remove(temporary.c_str());
    }
    return error;
}

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
            searchFile("(standard input)", stdin);
        }
        for (const std::string& path : m_job.paths) {
            visit(path, 0);
        }
        m_progress.clear();
        if (m_job.statistics) {
            complain(std::to_string(m_filesRead) + " files read, " + std::to_string(m_bytesRead) + " bytes");
        }
        if (std::fflush(stdout) != 0) {
            report("standard output", lastError().message());
        }
        return m_hasFailed ? failed : m_hasFound ? found : nothingFound;
    }

private:
    void visit(const fs::path& path, std::uint32_t depth) {
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
        } else if (fs::is_regular_file(status) && fs::file_size(path, error) > m_job.maxSize) {
            skip(path, "too large");
        } else {
            visitFile(path);
        }
    }

    void visitDirectory(const fs::path& path, std::uint32_t depth) {
        if (depth >= m_job.maxDepth) {
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

    void visitFile(const std::string& path) {
        m_progress.show(m_filesRead);
        const File file(std::fopen(path.c_str(), "rb"), std::fclose);
        if (file == nullptr) {
            report(path, lastError().message());
        } else {
            searchFile(path, file.get());
        }
    }

    void searchFile(const std::string& path, std::FILE* file) {
        std::string contents;
        if (!readAll(file, contents)) {
            report(path, lastError().message());
            return;
        }
        ++m_filesRead;
        m_bytesRead += contents.size();
        if (contents.find('\0') != std::string::npos) {
            skip(path, "not a text");
        } else if (m_job.action == Action::replace) {
            replaceMatches(path, contents);
        } else {
            findMatches(path, splitLines(contents));
        }
    }

    void findMatches(const std::string& path, const std::vector<std::string_view>& lines) {
        std::vector<std::size_t> matches;
        for (std::size_t i = 0; i < lines.size() && matches.size() < m_job.maxCount; ++i) {
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
            std::printf("%s:%zu\n", path.c_str(), matches.size());
        } else {
            printMatches(path, lines, matches);
        }
    }

    // Contexts that touch or overlap make one group; two dashes stand between groups.
    void printMatches(const std::string& path, const std::vector<std::string_view>& lines,
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
                printLine(path, next + 1, next == match ? ':' : '-', lines[next]);
            }
        }
    }

    void printLine(const std::string& path, std::size_t number, char mark, std::string_view line) const {
        std::string text = path + mark + std::to_string(number) + mark;
        if (m_job.color && mark == ':') {
            appendReplaced(text, line, "\033[1;31m" + m_job.pattern + "\033[m");
        } else {
            text.append(line);
        }
        std::puts(text.c_str());
    }

    void replaceMatches(const std::string& path, const std::string& contents) {
        std::string replaced;
        const std::size_t count = appendReplaced(replaced, contents, m_job.replacement);
        m_hasFound = m_hasFound || count != 0;
        m_progress.clear();
        if (!m_job.inPlace) {
            std::fwrite(replaced.data(), 1, replaced.size(), stdout);
            return;
        }
        const std::error_code error = count != 0 ? writeInPlace(path, replaced) : std::error_code();
        if (error) {
            report(path, error.message());
        } else if (m_job.verbose) {
            complain(path + ": " + std::to_string(count) + " replaced");
        }
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
    std::fprintf(stderr, "seek: %s\n", message.c_str());
}

} // namespace seek
