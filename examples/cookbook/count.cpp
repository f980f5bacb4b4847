#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

namespace {

int occurrences(tarv::IParseResult& result, const char* name) {
    int count = 0;
    for (tarv::Value value = result.get(name); value.status == tarv::valueFound; value = result.next(name)) {
        ++count;
    }
    return count;
}

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    parser->option("verbose,v", "Say more; give it again for still more.", tarv::vtNull);
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    int exitCode = 0;
    if (parser->parseArgsVector(argc, argv, result) == tarv::parseOk) {
        std::printf("verbosity %d\n", occurrences(*result, "verbose"));
    } else {
        std::fprintf(stderr, "count: %s\n", parser->getErrorDesc());
        exitCode = 2;
    }
    result->destroy();
    parser->destroy();
    return exitCode;
}
