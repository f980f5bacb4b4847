#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

namespace {

void declare(tarv::IParser& parser) {
    parser.option("help,h", "Show all options.", tarv::vtNull);
    parser.option("explain", "Show the option with this name.", tarv::vtString);
    parser.option("port,p", "The port to listen on.", tarv::vtUInt32, "Network:Who may connect, and how.")
        .defaultValue(8080U);
    parser.option("interface", "The address to listen on.", tarv::vtString, "Network");
    parser.option("log", "How much to write to the log.", tarv::vtString, "Logging:What is written down.")
        .allowValue("errors")
        .allowValue("requests")
        .allowValue("everything")
        .defaultValue("errors");
}

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    declare(*parser);
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    int exitCode = 0;
    if (parser->parseArgsVector(argc, argv, result) != tarv::parseOk) {
        std::fprintf(stderr, "help_topics: %s\n", parser->getErrorDesc());
        exitCode = 2;
    } else if (result->present("help")) {
        std::printf("%s", parser->getDescription());
    } else if (result->present("explain")) {
        std::printf("%s", parser->getDescription(tarv::getLastValue(result, "explain").text));
    } else {
        std::printf("listen on port %s\n", tarv::getLastValue(result, "port").text);
    }
    result->destroy();
    parser->destroy();
    return exitCode;
}
