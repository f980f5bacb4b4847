#include "platform/load_file.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <new>

namespace MERO_2_16::system {

namespace {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

} // namespace

bool load_file(const strings::ustring8& path, strings::ustring8& contents) {
    const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.c_str(), "rbe"));
    if (file == nullptr) {
        if (errno == ENOMEM) {
            throw std::bad_alloc();
        }
        return false;
    }
    contents.clear();
    char block[16384];
    while (const std::size_t count = std::fread(block, 1, sizeof block, file.get())) {
        contents.append(block, count);
    }
    return std::ferror(file.get()) == 0;
}

} // namespace MERO_2_16::system
