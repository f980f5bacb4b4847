#include <tarv_3_3/description.h>
#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

namespace {

void declare(tarv::IParser& parser) {
    parser.option("user,u", "Whom to log in.", tarv::vtString);
    parser.option("password", "The password.", tarv::vtString);
    parser.option("key", "The file of the key.", tarv::vtString);
    parser.option("ask", "Ask for the password.", tarv::vtBool);
    parser.option("help,h", "Show this help.", tarv::vtNull);
    tarv::addRule(&parser, tarv::ruleRequired, "user");
    tarv::addRule(&parser, tarv::ruleExactlyOne, "password,key,ask");
}

int run(tarv::IParser& parser, tarv::IParseResult& result) {
    if (result.present("help")) {
        std::fputs(parser.getDescription(), stdout);
        return 0;
    }
    if (tarv::checkRules(&parser, &result) != tarv::parseOk) {
        std::fprintf(stderr, "rules: %s\n", parser.getErrorDesc());
        return 2;
    }
    std::printf("log in as %s\n", tarv::getLastValue(&result, "user").text);
    return 0;
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

    int exitCode = 2;
    if (parser->parseArgsVector(argc, argv, result) == tarv::parseOk) {
        exitCode = run(*parser, *result);
    } else {
        std::fprintf(stderr, "rules: %s\n", parser->getErrorDesc());
    }
    result->destroy();
    parser->destroy();
    return exitCode;
}
