// The library and this program must work on the same variables, although the linker gives a program
// copies of those that it uses.

#include <cstdio>
#include <cstdlib>

#include "recognition/IArgumentParser.h"
#include "tarv_3_3/internal/log.h"
#include "tarv_3_3/tarv.h"

namespace tarv = tarv_3_3;

namespace {

int failures = 0;
int textsMade = 0;

void expect(const char* what, int actual, int expected) {
    if (actual != expected) {
        std::printf("%s: %d instead of %d\n", what, actual, expected);
        ++failures;
    }
}

void* countAndAllocate(std::size_t bytes) {
    ++textsMade;
    return std::malloc(bytes);
}

} // namespace

int main() {
    tarv::variant_t::m_mem.allocate = countAndAllocate;
    { const tarv::variant_t text("made by the library"); }
    expect("texts from the program's memory", textsMade, 1);

    tarv::IArgumentParser::m_idx = 1000;
    expect("position index", tarv::IArgumentParser::getNewPositionIndex(), 1000);
    expect("position counter", tarv::IArgumentParser::m_idx, 1001);

    const std::ostream* const discarding = &tarv::internal::tarvLog();
    tarv::internal::tarvLogEnabled = true;
    expect("trace that is discarded", &tarv::internal::tarvLog() == discarding ? 1 : 0, 0);
    return failures;
}
