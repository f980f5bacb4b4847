#include <tarv_3_3/tarv.h>

#include <cstdio>
#include <vector>

namespace tarv = tarv_3_3;

namespace {

/// All values of an option. Collect the outer values first: a result remembers one iteration.
std::vector<tarv::Value> all(tarv::IParseResult& result, const char* name) {
    std::vector<tarv::Value> values;
    for (tarv::Value value = result.get(name); value.text != nullptr; value = result.next(name)) {
        values.push_back(value);
    }
    return values;
}

void run(tarv::IParseResult& result) {
    int before = 0;
    for (const tarv::Value& image : all(result, "image")) {
        const tarv::Value scale = tarv::getLastValue(&result, "scale", before, image.position);
        const bool rotated = result.present("rotate", before, image.position);
        std::printf("%s: scale %s%s\n", image.text, scale.status == tarv::valueFound ? scale.text : "100",
                    rotated ? ", rotated" : "");
        before = image.position;
    }
}

} // namespace

int main(int argc, char** argv) {
    const int flags = tarv::flagRejectUnknown | tarv::flagDashIsNotPositional;
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, flags) != tarv::parseOk) {
        return 1;
    }
    parser->option("scale,s", "Per cent, for the next image.", tarv::vtUInt32);
    parser->option("rotate,r", "Turn the next image.", tarv::vtNull);
    parser->option("image", "", tarv::vtString).tokenize(0).positional();
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    int exitCode = 0;
    if (parser->parseArgsVector(argc, argv, result) == tarv::parseOk) {
        run(*result);
    } else {
        std::fprintf(stderr, "between: %s\n", parser->getErrorDesc());
        exitCode = 2;
    }
    result->destroy();
    parser->destroy();
    return exitCode;
}
