#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

namespace {

/// Whether `name` was given, and `other` not or earlier.
bool overrides(tarv::IParseResult& result, const char* name, const char* other) {
    const tarv::Value mine = tarv::getLastValue(&result, name);
    const tarv::Value theirs = tarv::getLastValue(&result, other);
    return mine.status == tarv::valueFound &&
           (theirs.status != tarv::valueFound || mine.position > theirs.position);
}

int run(tarv::IParseResult& result) {
    if (result.present("json") && result.present("table")) {
        std::fprintf(stderr, "exclusive: '--json' and '--table' exclude each other\n");
        return 2;
    }
    std::printf("print %s ", result.present("json") ? "json" : "a table");
    if (overrides(result, "plain", "color")) {
        std::printf("without colour\n");
    } else if (overrides(result, "color", "plain")) {
        std::printf("in colour\n");
    } else {
        std::printf("in colour on a terminal\n");
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    parser->option("json", "Print JSON; not with --table.", tarv::vtNull);
    parser->option("table", "Print a table; not with --json.", tarv::vtNull);
    parser->option("color", "Use colour; the last of --color and --plain counts.", tarv::vtNull);
    parser->option("plain", "Use no colour.", tarv::vtNull);
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    int exitCode = 2;
    if (parser->parseArgsVector(argc, argv, result) == tarv::parseOk) {
        exitCode = run(*result);
    } else {
        std::fprintf(stderr, "exclusive: %s\n", parser->getErrorDesc());
    }
    result->destroy();
    parser->destroy();
    return exitCode;
}
