#include <tarv_3_3/description.h>
#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

namespace {

/// Remembers the first argument that nothing took.
class FirstUnknown final : private tarv::EventHandler {
public:
    void addTo(tarv::IParser& parser) { parser.addHandler(this); }

    const char* text = nullptr;

private:
    bool onUknownArgument(const char* argument) override {
        text = text != nullptr ? text : argument;
        return true;
    }
};

void printError(tarv::IParser& parser, const FirstUnknown& unknown) {
    std::fprintf(stderr, "suggestions: %s\n", parser.getErrorDesc());
    if (const char* sentence = tarv::suggest(&parser, unknown.text)) {
        std::fprintf(stderr, "%s\n", sentence);
    }
}

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    parser->option("max-count,m", "Stop after this many lines.", tarv::vtInt32);
    parser->option("verbose,v", "Say more.", tarv::vtBool);
    parser->option("level,l", "How hard to try.", tarv::vtInt32);
    FirstUnknown unknown;
    unknown.addTo(*parser);

    const int status = parser->parseArgsVector(argc, argv, nullptr);
    if (status != tarv::parseOk) {
        printError(*parser, unknown);
    }
    parser->destroy();
    return status;
}
