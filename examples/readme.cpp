#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    tarv::createParser(&parser, tarv::flagRejectUnknown);
    parser->option("output-file,o", "Where to write.", tarv::vtString).defaultValue("out.txt");
    parser->option("level,l", "How hard to try.", tarv::vtInt32).allowValue(1).allowValue(2).defaultValue(1);

    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);
    const int status = parser->parseArgsVector(argc, argv, result);
    if (status == tarv::parseOk) {
        const int level = getLastValue(result, "level").value.get<int>();
        std::printf("Writing %s at level %d.\n", getLastValue(result, "output-file").text, level);
    } else {
        std::printf("%s\n\n%s", parser->getErrorDesc(), parser->getDescription());
    }
    result->destroy();
    parser->destroy();
    return status;
}
