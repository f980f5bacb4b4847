// The discarding stream is made when a host asks for it and not before, and shows no difference: it is good
// until the first line was traced, by whatever parse. Each order needs a process of its own.
//   untraced_parse parse_first|ask_first

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <ostream>

#include "tarv_3_3/internal/log.h"
#include "tarv_3_3/tarv.h"

namespace tarv = tarv_3_3;

namespace {

int failures = 0;
int streamsMade = 0;

void expect(const char* what, int actual, int expected) {
    if (actual != expected) {
        std::printf("%s: %d instead of %d\n", what, actual, expected);
        ++failures;
    }
}

void parse() {
    tarv::IParser* parser = nullptr;
    tarv::IParseResult* result = nullptr;
    if (tarv::createParser(&parser) != tarv::parseOk || parser->createResult(&result) != tarv::parseOk) {
        std::exit(1);
    }
    parser->option("level", "", tarv::vtInt32);
    const char* const argv[] = {"program", "--level=3", "other"};
    expect("status", parser->parseArgsVector(3, argv, result), 0);
    result->destroy();
    parser->destroy();
}

} // namespace

void* operator new(std::size_t size) {
    streamsMade += size == sizeof(std::ostream) ? 1 : 0;
    if (void* const block = std::malloc(size)) {
        return block;
    }
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

int main(int, char** argv) {
    const bool parsesFirst = std::strcmp(argv[1], "parse_first") == 0;
    if (parsesFirst) {
        parse();
        expect("streams made by a parse", streamsMade, 0);
    }
    const std::ostream& log = tarv::internal::tarvLog();
    expect("streams made", streamsMade, 1);
    expect("good at first", log.good() ? 1 : 0, parsesFirst ? 0 : 1);
    parse();
    expect("good behind a parse", log.good() ? 1 : 0, 0);
    expect("bad behind a parse", log.bad() ? 1 : 0, 1);
    expect("the same stream again", &tarv::internal::tarvLog() == &log ? 1 : 0, 1);
    expect("streams made at the end", streamsMade, 1);
    return failures;
}
