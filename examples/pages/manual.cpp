#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    parser->option("level,l", "How hard to try.", tarv::vtInt32).defaultValue(2);
    parser->option("file", "", tarv::vtString).tokenize(0).positional();
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    const int status = parser->parseArgsVector(argc, argv, result);
    if (status != tarv::parseOk) {
        std::fprintf(stderr, "%s\n", parser->getErrorDesc());
    } else {
        std::printf("level %s\n", tarv::getLastValue(result, "level").text);
        for (tarv::Value file = result->get("file"); file.text != nullptr; file = result->next("file")) {
            std::printf("file %s\n", file.text);
        }
    }
    result->destroy();
    parser->destroy();
    return status;
}
