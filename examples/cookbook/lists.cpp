#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

namespace {

void print(tarv::IParseResult& result, const char* name) {
    std::printf("%s:", name);
    for (tarv::Value value = result.get(name); value.status == tarv::valueFound; value = result.next(name)) {
        std::printf(" [%s]", value.text);
    }
    std::printf("\n");
}

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    parser->option("size", "Sizes to make, separated by commas.", tarv::vtInt32);
    parser->option("path", "Folders to look in, separated by colons.", tarv::vtString).tokenize(':');
    parser->option("title", "One title, commas and all.", tarv::vtString).tokenize(0);
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    int exitCode = 0;
    if (parser->parseArgsVector(argc, argv, result) == tarv::parseOk) {
        print(*result, "size");
        print(*result, "path");
        print(*result, "title");
    } else {
        std::fprintf(stderr, "lists: %s\n", parser->getErrorDesc());
        exitCode = 2;
    }
    result->destroy();
    parser->destroy();
    return exitCode;
}
