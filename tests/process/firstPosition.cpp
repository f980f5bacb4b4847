// Position indices begin with the process, so this is a process of its own: the first index is 1,
// an occurrence takes its index before its values, and defaults take theirs before all of these.

#include <cstdio>

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

} // namespace

int main() {
    tarv::IParser* parser = nullptr;
    tarv::IParseResult* result = nullptr;
    if (tarv::createParser(&parser) != tarv::parseOk || parser->createResult(&result) != tarv::parseOk) {
        return 1;
    }
    parser->option("files", "", tarv::vtString);
    const char* const argv[] = {"program", "--files=a,b"};
    expect("status", parser->parseArgsVector(2, argv, result), 0);
    const tarv::Value a = result->get("files");
    expect("occurrence of files", result->nextPosition(), 1);
    expect("first value of files", a.position, 2);
    expect("second value of files", result->next("files").position, 3);

    parser->option("level,l", "", tarv::vtInt32).defaultValue(7);
    expect("status", parser->parseArgsVector(2, argv, result), 0);
    expect("default of level", result->get("level").position, 4);
    expect("default of l", result->get("l").position, 5);
    expect("second occurrence of files", result->get("files", 4).position, 7);

    result->destroy();
    parser->destroy();
    return failures;
}
