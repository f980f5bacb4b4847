#include "front/files.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fstream>

#include "model/CommandLine.h"

namespace tarv_program {

void print(const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
    // What the library printed before may have been lost, too.
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        throw Failure(std::string("cannot write: ") + std::strerror(errno));
    }
}

void writeFile(const std::string& path, const std::string& contents) {
    std::ofstream file(path, std::ios::binary);
    file << contents << std::flush;
    if (!file) {
        throw Failure(path + ": " + std::strerror(errno));
    }
}

std::string dateOfToday() {
    const char* const epoch = std::getenv("SOURCE_DATE_EPOCH");
    const std::time_t now = epoch != nullptr ? std::strtoll(epoch, nullptr, 10) : std::time(nullptr);
    std::tm day = {};
    gmtime_r(&now, &day);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%d", &day);
    return text;
}

} // namespace tarv_program
