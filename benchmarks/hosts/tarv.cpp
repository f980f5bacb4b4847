#include "tarv_3_3/tarv.h"

#include <cstdio>

namespace tarv = tarv_3_3;

static void printAll(tarv::IParseResult* result, const char* name) {
    for (tarv::Value value = result->get(name); value.text != nullptr; value = result->next(name))
        std::printf("%s\n", value.text);
}

int main(int argc, char** argv) {
    tarv::IParser* parser;
    tarv::createParser(&parser, tarv::flagRejectUnknown | tarv::flagDashIsNotPositional);
    parser->option("verbose,v", "Tell what is being done.", tarv::vtBool).defaultValue(false);
    parser->option("jobs,j", "How many files to work on at the same time.", tarv::vtInt32).defaultValue(0);
    parser->option("scale", "The factor for every length.", tarv::vtDouble).defaultValue(0.0);
    parser->option("output-file,o", "Where the result is written.", tarv::vtString).tokenize(0);
    parser->option("include-path", "Directories to search.", tarv::vtString);
    parser->option("input", "The files to work on.", tarv::vtString).tokenize(0).positional();

    tarv::IParseResult* result;
    parser->createResult(&result);
    int status = parser->parseArgsVector(argc, argv, result);
    if (status == tarv::parseOk) {
        std::printf("%d %d %g %s\n", result->get("verbose").value.get<bool>(),
                    result->get("jobs").value.get<int>(), result->get("scale").value.get<double>(),
                    result->get("output-file").text);
        printAll(result, "include-path");
        printAll(result, "input");
    } else {
        std::fprintf(stderr, "%s\n", parser->getErrorDesc());
    }
    result->destroy();
    parser->destroy();
    return status;
}
