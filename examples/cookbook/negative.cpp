#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

int main(int argc, char** argv) {
    const int flags = tarv::flagRejectUnknown | tarv::flagPlainArePositional;
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, flags) != tarv::parseOk) {
        return 1;
    }
    parser->option("offset,o", "Added to every number.", tarv::vtInt32).defaultValue(0);
    parser->option("number", "", tarv::vtInt32).positional();
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    int exitCode = 0;
    if (parser->parseArgsVector(argc, argv, result) == tarv::parseOk) {
        const int offset = tarv::getLastValue(result, "offset").value.get<int>();
        for (tarv::Value number = result->get("number"); number.text != nullptr;
             number = result->next("number")) {
            std::printf("%d\n", number.value.get<int>() + offset);
        }
    } else {
        std::fprintf(stderr, "negative: %s\n", parser->getErrorDesc());
        exitCode = 2;
    }
    result->destroy();
    parser->destroy();
    return exitCode;
}
