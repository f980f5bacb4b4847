#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

namespace {

void declare(tarv::IParser& parser) {
    parser.option("output,o", "The file to write.", tarv::vtString).defaultValue("out.pack").tokenize(0);
    parser.option("level,l", "How hard to try, from 1 to 3.", tarv::vtInt32)
        .allowValue(1)
        .allowValue(2)
        .allowValue(3)
        .defaultValue(2);
    parser.option("verbose,v", "Say what is done.", tarv::vtBool).defaultValue(false);
    parser.option("help,h", "Show this help.", tarv::vtNull);
    parser.option("file", "", tarv::vtString).tokenize(0).positional();
}

int run(tarv::IParser& parser, tarv::IParseResult& result) {
    if (result.present("help")) {
        std::printf("Usage: typical_tool [OPTION]... FILE...\n%s", parser.getDescription());
        return 0;
    }
    const bool verbose = tarv::getLastValue(&result, "verbose").value.get<bool>();
    const int level = tarv::getLastValue(&result, "level").value.get<int>();
    for (tarv::Value file = result.get("file"); file.text != nullptr; file = result.next("file")) {
        std::printf("pack %s at level %d%s\n", file.text, level, verbose ? ", and say so" : "");
    }
    std::printf("write %s\n", tarv::getLastValue(&result, "output").text);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const int flags = tarv::flagRejectUnknown | tarv::flagDashIsNotPositional | tarv::flagPlainArePositional;
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, flags) != tarv::parseOk) {
        return 1;
    }
    declare(*parser);
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    int exitCode = 2;
    if (parser->parseArgsVector(argc, argv, result) == tarv::parseOk) {
        exitCode = run(*parser, *result);
    } else {
        std::fprintf(stderr, "typical_tool: %s\n", parser->getErrorDesc());
    }
    result->destroy();
    parser->destroy();
    return exitCode;
}
