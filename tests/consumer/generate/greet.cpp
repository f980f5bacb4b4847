// A program that answers what tarv_generate asks.
#include <stdio.h>

#include "tarv_3_3/completion.h"
#include "tarv_3_3/tarv.h"

namespace tarv = tarv_3_3;

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser) != tarv::parseOk) {
        return 1;
    }
    parser->option("name,n", "Whom to greet.", tarv::vtString).defaultValue("World");
    if (!tarv::answerCompletion(parser, argc, argv)) {
        printf("Hello!\n");
    }
    parser->destroy();
    return 0;
}
