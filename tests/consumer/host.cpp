// A whole host program: declares, parses, asks, prints.
#include <stdint.h>
#include <stdio.h>

#include "tarv_3_3/tarv.h"

namespace tarv = tarv_3_3;

namespace {

class CountingHandler : public tarv::EventHandler {
public:
    bool onValueParse(const char*, const tarv::Value&) override {
        ++values;
        return true;
    }

    int values = 0;
};

int greet(tarv::IParser& parser, tarv::IParseResult& result, int argc, char** argv) {
    CountingHandler handler;
    parser.addHandler(&handler);
    parser.option("name,n", "Whom to greet.", tarv::vtString);
    parser.option("times,t", "How often.", tarv::vtInt32).defaultValue(1);

    if (parser.parseArgsVector(argc, argv, &result) != tarv::parseOk) {
        fprintf(stderr, "host: %s\n", parser.getErrorDesc());
        return 2;
    }
    const int times = tarv::getLastValue(&result, "times").value.get<int32_t>();
    for (int i = 0; i < times; ++i) {
        for (tarv::Value name = result.get("name"); name.status == tarv::valueFound;
             name = result.next("name")) {
            printf("Hello, %s!\n", name.value.get<const char*>());
        }
    }
    printf("%d values\n", handler.values);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser) != tarv::parseOk) {
        return 3;
    }
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);
    const int exitCode = greet(*parser, *result, argc, argv);
    result->destroy();
    parser->destroy();
    return exitCode;
}
