#include <cstdio>
#include <tarv_3_3/tarv.h>

using namespace tarv_3_3;

int main(int argc, char** argv) {
    IParser* parser = nullptr;
    createParser(&parser, flagRejectUnknown);
    parser->option("paper-size", "Paper.", vtString).allowValue("a4").allowValue("letter").defaultValue("a4");
    IParseResult* result = nullptr;
    parser->createResult(&result);
    const int status = parser->parseArgsVector(argc, argv, result);
    std::puts(status == parseOk ? getLastValue(result, "paper-size").text : parser->getErrorDesc());
    result->destroy();
    parser->destroy();
    return status;
}
