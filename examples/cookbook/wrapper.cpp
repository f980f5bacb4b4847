#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    parser->option("limit", "Seconds the command may take.", tarv::vtUInt32).defaultValue(10U);
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    const int status = parser->parseArgsVector(argc, argv, result);
    if (status == tarv::parseOk) {
        std::printf("within %s seconds:", tarv::getLastValue(result, "limit").text);
        const char* argument = nullptr;
        for (int found = result->getFirstArgument(&argument); found == tarv::valueFound;
             found = result->getNextArgument(&argument)) {
            std::printf(" %s", argument);
        }
        std::printf("\n");
    } else {
        std::fprintf(stderr, "wrapper: %s\n", parser->getErrorDesc());
    }
    result->destroy();
    parser->destroy();
    return status;
}
