#include <tarv_3_3/tarv.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace tarv = tarv_3_3;

namespace {

/// The text of a variable, or null; an empty one counts as not set.
const char* fromEnvironment(const char* variable) {
    const char* text = std::getenv(variable);
    return text != nullptr && *text != '\0' ? text : nullptr;
}

/// Parses `--jobs=$BUILD_JOBS` as a command line of its own: checked like any other, and older
/// than what the user types, so that the last value is the user's.
int parseEnvironment(tarv::IParser& parser, tarv::IParseResult& result) {
    const char* jobs = fromEnvironment("BUILD_JOBS");
    if (jobs == nullptr) {
        return tarv::parseOk;
    }
    const std::string argument = std::string("--jobs=") + jobs;
    const char* arguments[] = {"environment", argument.c_str()};
    return parser.parseArgsVector(2, arguments, &result);
}

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    const char* home = fromEnvironment("BUILD_HOME");
    parser->option("home", "Where results go; else BUILD_HOME.", tarv::vtString)
        .tokenize(0)
        .defaultValue(home != nullptr ? home : "build");
    parser->option("jobs,j", "How many at a time; else BUILD_JOBS.", tarv::vtUInt32).defaultValue(1U);
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    int exitCode = 0;
    if (parseEnvironment(*parser, *result) != tarv::parseOk) {
        std::fprintf(stderr, "environment: BUILD_JOBS: %s\n", parser->getErrorDesc());
        exitCode = 2;
    } else if (parser->parseArgsVector(argc, argv, result) != tarv::parseOk) {
        std::fprintf(stderr, "environment: %s\n", parser->getErrorDesc());
        exitCode = 2;
    } else {
        std::printf("build in %s", tarv::getLastValue(result, "home").text);
        std::printf(" with %u jobs\n", tarv::getLastValue(result, "jobs").value.get<unsigned>());
    }
    result->destroy();
    parser->destroy();
    return exitCode;
}
