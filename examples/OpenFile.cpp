#include "OpenFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace seek {

namespace {

int flagsFor(OpenFile::Kind kind) {
    const int flags = O_RDONLY | O_CLOEXEC | O_NOCTTY;
    return kind == OpenFile::Kind::regular ? flags | O_NOFOLLOW | O_NONBLOCK : flags;
}

} // namespace

void throwLastError() {
    throw FileError(std::generic_category().message(errno));
}

Descriptor::Descriptor(int number) : m_number(number) {
    if (number < 0) {
        throwLastError();
    }
}

Descriptor::~Descriptor() {
    close(m_number);
}

OpenFile::OpenFile(const std::filesystem::path& path, Kind kind)
    : m_descriptor(open(path.c_str(), flagsFor(kind))) {
    if (fstat(descriptor(), &m_state) != 0) {
        throwLastError();
    }
    if (kind == Kind::regular && !isRegular()) {
        throw FileError("Not a regular file");
    }
}

std::string OpenFile::read() const {
    return readAll(descriptor(), isRegular() ? static_cast<std::size_t>(m_state.st_size) : 0);
}

std::string readAll(int descriptor, std::size_t expectedSize) {
    std::string contents;
    // What no text can hold is too much for the memory as well.
    contents.reserve(std::min(expectedSize, contents.max_size()));
    char block[65536];
    for (;;) {
        const ssize_t size = ::read(descriptor, block, sizeof block);
        if (size == 0) {
            return contents;
        }
        if (size < 0) {
            throwLastError();
        }
        contents.append(block, static_cast<std::size_t>(size));
    }
}

} // namespace seek
