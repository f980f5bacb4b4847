#pragma once

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

/// What vcs does, whichever library reads its command line: it says what it would do.
namespace versions {

using Path = std::filesystem::path;

/// Whether the log names branches, and how.
enum class Decorate { no, brief, full };

inline void init(const Path& repository, bool bare) {
    std::printf("init %s%s\n", repository.c_str(), bare ? ", without files" : "");
}

inline void add(const Path& repository, const std::vector<Path>& files, bool force) {
    for (const Path& file : files) {
        std::printf("add %s to %s%s\n", file.c_str(), repository.c_str(), force ? ", ignored or not" : "");
    }
}

inline void commit(const Path& repository, const std::string& message, bool amend) {
    std::printf("%s '%s' in %s\n", amend ? "amend" : "commit", message.c_str(), repository.c_str());
}

/// A count of 0 stands for all.
inline void log(const Path& repository, int count, Decorate decorate, bool oneline, bool graph,
                int verbosity) {
    static const char* const names[] = {"no", "brief", "full"};
    std::printf("log of %s, %d at most, %s names%s%s, verbosity %d\n", repository.c_str(), count,
                names[static_cast<int>(decorate)], oneline ? ", one line each" : "",
                graph ? ", as a graph" : "", verbosity);
}

inline void push(const Path& repository, const std::string& remote, const std::vector<std::string>& branches,
                 int jobs) {
    std::printf("push %s to %s in %d jobs:", repository.c_str(), remote.c_str(), jobs);
    for (const std::string& branch : branches) {
        std::printf(" %s", branch.c_str());
    }
    std::printf("\n");
}

} // namespace versions
