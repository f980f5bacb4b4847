#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

namespace {

int run(tarv::IParseResult& result) {
    if (result.present("json") && result.present("table")) {
        std::fprintf(stderr, "exclusive: '--json' and '--table' exclude each other\n");
        return 2;
    }
    std::printf("print %s\n", result.present("json") ? "json" : "a table");

    const bool plain = tarv::getLastValue(&result, "plain").position >
                       tarv::getLastValue(&result, "color").position;
    const bool given = result.present("plain") || result.present("color");
    std::printf("%s\n", !given ? "in colour on a terminal" : plain ? "plain" : "in colour");
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
