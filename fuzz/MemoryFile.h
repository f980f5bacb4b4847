#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <string>

#include "oracles.h"

/// A file in memory with a name to open it by.
class MemoryFile {
public:
    explicit MemoryFile(const std::string& contents) : m_file(memfd_create("options", MFD_CLOEXEC)) {
        require(write(m_file, contents.data(), contents.size()) == static_cast<ssize_t>(contents.size()),
                "memfd");
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() { close(m_file); }

    std::string path() const { return "/proc/self/fd/" + std::to_string(m_file); }

private:
    int m_file;
};
