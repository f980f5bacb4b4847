#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    parser->option("help,h", "Show the options.", tarv::vtNull);
    parser->option("input", "The file to read.", tarv::vtString);
    parser->option("help-hidden", "Show the options for developers.", tarv::vtNull, "tarv_hidden");
    parser->option("dump-tree", "Print the syntax tree.", tarv::vtNull, "tarv_hidden");
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    int exitCode = 0;
    if (parser->parseArgsVector(argc, argv, result) != tarv::parseOk) {
        std::fprintf(stderr, "hidden: %s\n", parser->getErrorDesc());
        exitCode = 2;
    } else if (result->present("help")) {
        std::printf("%s", parser->getDescription());
    } else if (result->present("help-hidden")) {
        std::printf("%s", parser->getDescription(true));
    } else {
        std::printf("tree: %s\n", result->present("dump-tree") ? "yes" : "no");
    }
    result->destroy();
    parser->destroy();
    return exitCode;
}
