// A host may parse in the destructor of a static object. This one is made before main begins, so that it is
// destroyed after every static object that the library has made meanwhile.
//   late_parse untraced|traced|asking

#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <ostream>
#include <sstream>

#include "tarv_3_3/internal/log.h"
#include "tarv_3_3/tarv.h"

namespace tarv = tarv_3_3;

namespace {

int failures = 0;

void expect(const char* what, int actual, int expected) {
    if (actual != expected) {
        std::printf("%s: %d instead of %d\n", what, actual, expected);
        ++failures;
    }
}

void parse(bool traced) {
    tarv::IParser* parser = nullptr;
    tarv::IParseResult* result = nullptr;
    expect("createParser", tarv::createParser(&parser), 0);
    expect("createResult", parser->createResult(&result), 0);
    parser->option("level", "", tarv::vtInt32).defaultValue(7);
    parser->option("level", "a duplicate, which is traced", tarv::vtInt32);
    const char* const argv[] = {"program", "tarvoption=tarvlogenable=1", "\u2014level=3", "other", "--",
                                "plain"};
    expect("status", parser->parseArgsVector(traced ? 6 : 5, traced ? argv : argv + 1, result), 0);
    expect("level", result->get("level").value.get<int>(), 3);
    result->destroy();
    parser->destroy();
}

void ask() {
    std::ostream& log = tarv::internal::tarvLog();
    std::ostringstream text;
    std::streambuf* const own = log.rdbuf(text.rdbuf());
    parse(false);
    expect("traced into a buffer of the host", text.str().empty() ? 0 : 1, 1);
    log.rdbuf(own);
    parse(false);
    expect("bad without it", log.bad() ? 1 : 0, 1);
}

struct Late {
    ~Late() {
        parse(traced);
        parse(false);
        if (asks) {
            ask();
        }
        std::fflush(stdout);
        _exit(failures);
    }

    bool traced = false;
    bool asks = false;
};

Late late;

} // namespace

int main(int, char** argv) {
    late.traced = std::strcmp(argv[1], "traced") == 0;
    late.asks = std::strcmp(argv[1], "asking") == 0;
    parse(late.traced);
    if (late.asks) {
        ask();
    }
    return 1; // which the destructor replaces
}
