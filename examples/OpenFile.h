#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace seek {

/// Why something cannot be done with a file, in words for the user.
struct FileError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Throws a FileError that says what `errno` says.
[[noreturn]] void throwLastError();

/// Owns a file descriptor.
class Descriptor {
public:
    /// Takes what open() and its like return, and throws when they failed.
    explicit Descriptor(int number);
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor();

    int number() const { return m_number; }

private:
    int m_number;
};

/// A file that is open for reading, and what it was when it was opened. Every question goes to the open
/// file: by now its path may lead to another one.
class OpenFile {
public:
    enum class Kind { any, regular };

    /// Asked for a regular file, it follows no symbolic link and waits for nobody, as opening a FIFO does.
    /// Throws a FileError when the file cannot be opened or is of another kind.
    OpenFile(const std::filesystem::path& path, Kind kind);

    int descriptor() const { return m_descriptor.number(); }
    const struct stat& state() const { return m_state; }
    bool isRegular() const { return S_ISREG(m_state.st_mode); }

    /// Throws a FileError, or `std::bad_alloc` for more than memory holds.
    std::string read() const;

private:
    Descriptor m_descriptor;
    struct stat m_state = {};
};

/// Reads up to the end; `expectedSize` saves memory if it is right, and does no harm if it is not.
std::string readAll(int descriptor, std::size_t expectedSize);

} // namespace seek
