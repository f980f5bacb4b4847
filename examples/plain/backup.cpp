#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

namespace {

void declare(tarv::IParser& parser) {
    parser.option("target,t", "The folder to write to.", tarv::vtString).tokenize(0).defaultValue("backup");
    parser.option("exclude,x", "Endings of the files to leave out, separated by commas.", tarv::vtString);
    parser.option("level,l", "How hard to compress, from 0 to 9.", tarv::vtInt32).defaultValue(6);
    parser.option("dry-run,n", "Only say what would be done.", tarv::vtBool).defaultValue(false);
    parser.option("help,h", "Show this help.", tarv::vtNull);
    parser.option("folder", "", tarv::vtString).tokenize(0).positional();
}

void showHelp(tarv::IParser& parser) {
    std::printf("Usage: backup [OPTION]... FOLDER...\n\n%s", parser.getDescription());
}

void run(tarv::IParseResult& result) {
    const char* target = tarv::getLastValue(&result, "target").text;
    const int level = tarv::getLastValue(&result, "level").value.get<int>();
    const bool dryRun = tarv::getLastValue(&result, "dry-run").value.get<bool>();
    std::printf("%s to '%s' at level %d\n", dryRun ? "would write" : "writing", target, level);

    tarv::Value folder = result.get("folder");
    while (folder.text != nullptr) {
        std::printf("  %s\n", folder.text);
        folder = result.next("folder");
    }
    if (result.present("exclude")) {
        std::printf("without:");
        for (tarv::Value ending = result.next("exclude"); ending.status == tarv::valueFound;
             ending = result.next("exclude")) {
            std::printf(" %s", ending.text);
        }
        std::printf("\n");
    }
}

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    const int flags = tarv::flagRejectUnknown | tarv::flagDashIsNotPositional | tarv::flagPlainArePositional;
    if (tarv::createParser(&parser, flags) != tarv::parseOk) {
        return 1;
    }
    declare(*parser);

    tarv::IParseResult* result = nullptr;
    parser->createResult(&result);
    const int status = parser->parseArgsVector(argc, argv, result);
    if (status != tarv::parseOk) {
        std::fprintf(stderr, "backup: %s\n", parser->getErrorDesc());
    } else if (result->present("help")) {
        showHelp(*parser);
    } else {
        run(*result);
    }

    result->destroy();
    parser->destroy();
    return status;
}
