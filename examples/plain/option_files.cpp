#include <tarv_3_3/tarv.h>

#include <cstdio>
#include <initializer_list>

namespace tarv = tarv_3_3;

int main(int argc, char** argv) {
    const int flags = tarv::flagRejectUnknown | tarv::flagDashIsNotPositional;
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, flags) != tarv::parseOk) {
        return 1;
    }
    parser->option("title", "The title of the page.", tarv::vtString).tokenize(0);
    parser->option("page", "", tarv::vtString).tokenize(0).positional();
    parser->addOptionFileOption("Read more arguments from this file.");
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    const int status = parser->parseArgsVector(argc, argv, result);
    if (status == tarv::parseOk) {
        for (const char* name : {"title", "page"}) {
            for (tarv::Value value = result->get(name); value.text != nullptr; value = result->next(name)) {
                std::printf("%s: %s\n", name, value.text);
            }
        }
    } else {
        std::fprintf(stderr, "option_files: %s\n", parser->getErrorDesc());
    }
    result->destroy();
    parser->destroy();
    return status;
}
