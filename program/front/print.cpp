#include <cerrno>
#include <cstdio>
#include <cstring>

#include "front/Verb.h"

namespace tarv_program {

void print(const std::string& text) {
    const bool isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (!isWritten || std::fflush(stdout) != 0) {
        throw Failure(std::string("cannot write: ") + std::strerror(errno));
    }
}

} // namespace tarv_program
