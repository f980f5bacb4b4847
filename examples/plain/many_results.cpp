#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

namespace {

const char siteSettings[] = "# what the administrator wants\n--proxy=proxy.example\n--timeout=30\n";
const char userSettings[] = "# what this user wants\n--timeout=60\n";

/// Says where a setting comes from: the first of the results that holds it.
void explain(const char* name, tarv::IParseResult* const (&results)[3]) {
    const char* const sources[] = {"command line", "user settings", "site settings"};
    for (int i = 0; i < 3; ++i) {
        const tarv::Value value = tarv::getLastValue(results[i], name);
        if (value.status == tarv::valueFound) {
            std::printf("%s = %s (%s)\n", name, value.text, sources[i]);
            return;
        }
    }
    std::printf("%s is not set\n", name);
}

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    parser->option("proxy", "The host to go through.", tarv::vtString);
    parser->option("timeout", "Seconds to wait.", tarv::vtUInt32);
    parser->option("user", "Whom to log in.", tarv::vtString);
    tarv::IParseResult* results[3] = {};
    for (tarv::IParseResult*& result : results) {
        parser->createResult(&result);
    }

    int exitCode = 0;
    if (parser->parseArgsVector(argc, argv, results[0]) != tarv::parseOk ||
        parser->parseStream(userSettings, results[1]) != tarv::parseOk ||
        parser->parseStream(siteSettings, results[2]) != tarv::parseOk) {
        std::fprintf(stderr, "many_results: %s\n", parser->getErrorDesc());
        exitCode = 2;
    }
    parser->destroy(); // results do not need their parser any more
    if (exitCode == 0) {
        explain("proxy", results);
        explain("timeout", results);
        explain("user", results);
    }
    for (tarv::IParseResult* result : results) {
        result->destroy();
    }
    return exitCode;
}
