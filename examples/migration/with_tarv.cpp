#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

namespace {

void declare(tarv::IParser& parser) {
    parser.option("level,l", "How hard to try.", tarv::vtInt32).defaultValue(2);
    parser.option("verbose,v", "Say what is done.", tarv::vtBool).defaultValue(false);
    parser.option("output,o", "The file to write.", tarv::vtString).tokenize(0).defaultValue("a.out");
    parser.option("include,i", "A folder to search; may be repeated.", tarv::vtString).tokenize(0);
    parser.option("help,h", "Show this help.", tarv::vtNull);
    parser.option("file", "", tarv::vtString).tokenize(0).positional();
}

void print(tarv::IParseResult& result, const char* name) {
    for (tarv::Value value = result.get(name); value.text != nullptr; value = result.next(name)) {
        std::printf("%s %s\n", name, value.text);
    }
}

void run(tarv::IParseResult& result) {
    const int level = tarv::getLastValue(&result, "level").value.get<int>();
    const bool verbose = tarv::getLastValue(&result, "verbose").value.get<bool>();
    const char* output = tarv::getLastValue(&result, "output").text;
    std::printf("level %d, %s, output %s\n", level, verbose ? "verbose" : "quiet", output);
    print(result, "include");
    print(result, "file");
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

    const int status = parser->parseArgsVector(argc, argv, result);
    if (status != tarv::parseOk) {
        std::fprintf(stderr, "with_tarv: %s\n", parser->getErrorDesc());
    } else if (result->present("help")) {
        std::printf("%s", parser->getDescription());
    } else {
        run(*result);
    }
    result->destroy();
    parser->destroy();
    return status;
}
