// The program that stands for any host in docs/syntax.md: it says what it was told.
#include <tarv_3_3/tarv.h>

#include <cstdio>
#include <initializer_list>

namespace tarv = tarv_3_3;

namespace {

void declare(tarv::IParser& parser) {
    parser.option("output-name,o", "The file to write.", tarv::vtString).tokenize(0);
    parser.option("level,l", "How hard to try.", tarv::vtInt32);
    parser.option("size,s", "Sizes to make, separated by commas.", tarv::vtUInt32);
    parser.option("format,f", "The format to write.", tarv::vtString)
        .allowValue("jpeg")
        .allowValue("png")
        .allowValue("pnm");
    parser.option("verbose,v", "Say what is done.", tarv::vtBool);
    parser.option("version", "Show the version.", tarv::vtNull);
    parser.option("image", "", tarv::vtString).tokenize(0).positional();
    parser.addOptionFileOption("Read more arguments from this file.");
}

void print(tarv::IParseResult& result, const char* name) {
    if (!result.present(name)) {
        return;
    }
    std::printf("%s:", name);
    tarv::Value value = result.next(name);
    for (; value.status == tarv::valueFound; value = result.next(name)) {
        std::printf(" [%s]", value.text != nullptr ? value.text : "");
    }
    std::printf("\n");
}

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    const int flags = tarv::flagRejectUnknown | tarv::flagDashIsNotPositional | tarv::flagPlainArePositional;
    if (tarv::createParser(&parser, flags) != tarv::parseOk) {
        return 1;
    }
    declare(*parser);
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    const int status = parser->parseArgsVector(argc, argv, result);
    if (status == tarv::parseOk) {
        for (const char* name : {"output-name", "level", "size", "format", "verbose", "version", "image"}) {
            print(*result, name);
        }
    } else {
        std::fprintf(stderr, "photo: %s\n", parser->getErrorDesc());
    }
    result->destroy();
    parser->destroy();
    return status;
}
