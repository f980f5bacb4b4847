#include <tarv_3_3/tarv.h>

#include <cstdio>
#include <initializer_list>

namespace tarv = tarv_3_3;

namespace {

/// The first of the required options that was not given, or null.
const char* firstMissing(tarv::IParseResult& result) {
    for (const char* name : {"user", "host"}) {
        if (!result.present(name)) {
            return name;
        }
    }
    return nullptr;
}

int run(tarv::IParseResult& result) {
    if (const char* name = firstMissing(result)) {
        std::fprintf(stderr, "required: '--%s' is required\n", name);
        return 2;
    }
    std::printf("log in as %s", tarv::getLastValue(&result, "user").text);
    std::printf(" at %s\n", tarv::getLastValue(&result, "host").text);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    parser->option("user,u", "Whom to log in.", tarv::vtString);
    parser->option("host", "Where to log in.", tarv::vtString);
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    int exitCode = 2;
    if (parser->parseArgsVector(argc, argv, result) == tarv::parseOk) {
        exitCode = run(*result);
    } else {
        std::fprintf(stderr, "required: %s\n", parser->getErrorDesc());
    }
    result->destroy();
    parser->destroy();
    return exitCode;
}
