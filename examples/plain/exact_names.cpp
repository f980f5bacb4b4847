#include <tarv_3_3/tarv.h>

#include <cstdio>
#include <initializer_list>
#include <string>

namespace tarv = tarv_3_3;

namespace {

/// Takes one leading dash, of any kind that the library accepts, off `text`.
bool dropDash(std::string& text) {
    for (const char* dash : {"-", "\u2012", "\u2013", "\u2014", "\u2015", "\u2053"}) {
        if (text.rfind(dash, 0) == 0) {
            text.erase(0, std::string(dash).size());
            return true;
        }
    }
    return false;
}

/// Whether `argument` is no option, or names one in full; switches also with "no-".
bool isExact(tarv::IParser& parser, std::string argument) {
    if (!dropDash(argument)) {
        return true;
    }
    dropDash(argument);
    const std::string name = argument.substr(0, argument.find_first_of("= \t\n\v\f\r"));
    const bool negated = name.rfind("no-", 0) == 0;
    return parser.isOptionDeclared(name.c_str(), false, nullptr) ||
           (negated && parser.isOptionDeclared(name.c_str() + 3, false, nullptr));
}

/// The first option up to "--" that is not written in full, or null.
const char* firstInexact(tarv::IParser& parser, int argc, char** argv) {
    for (int i = 1; i < argc && std::string(argv[i]) != "--"; ++i) {
        if (!isExact(parser, argv[i])) {
            return argv[i];
        }
    }
    return nullptr;
}

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    parser->option("force", "Overwrite without asking.", tarv::vtBool);
    parser->option("output,o", "The file to write.", tarv::vtString);
    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);

    int exitCode = 2;
    if (const char* argument = firstInexact(*parser, argc, argv)) {
        std::fprintf(stderr, "exact_names: no option is called '%s'\n", argument);
    } else if (parser->parseArgsVector(argc, argv, result) != tarv::parseOk) {
        std::fprintf(stderr, "exact_names: %s\n", parser->getErrorDesc());
    } else {
        std::printf("force: %s\n", result->present("force") ? result->get("force").text : "not given");
        exitCode = 0;
    }
    result->destroy();
    parser->destroy();
    return exitCode;
}
