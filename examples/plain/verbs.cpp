#include <tarv_3_3/tarv.h>

#include <cstdio>

namespace tarv = tarv_3_3;

namespace {

void declare(tarv::IParser& parser) {
    parser.action("add,a", "Add a task with this title.", tarv::vtString).tokenize(0);
    parser.action("remove,r", "Remove the task with this number.", tarv::vtUInt32);
    parser.action("list", "Show all tasks.", tarv::vtNull);
    parser.modifier("due", "add", "The day it must be done.", tarv::vtString);
    parser.modifier("force,f", "add,remove", "Do not ask.", tarv::vtNull);
    parser.option("quiet,q", "Print errors only.", tarv::vtNull);
}

void run(tarv::IParseResult& result) {
    const char* sure = result.present("force") ? " without asking" : "";
    if (result.present("add")) {
        const tarv::Value due = tarv::getLastValue(&result, "due");
        std::printf("add '%s', due %s%s\n", tarv::getLastValue(&result, "add").text,
                    due.status == tarv::valueFound ? due.text : "some day", sure);
    } else if (result.present("remove")) {
        std::printf("remove task %u%s\n", tarv::getLastValue(&result, "remove").value.get<unsigned>(), sure);
    } else if (result.present("list")) {
        std::printf("list all tasks\n");
    } else {
        std::printf("nothing to do\n");
    }
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
    if (parser->parseArgsVector(argc, argv, result) == tarv::parseOk) {
        run(*result);
    } else {
        std::fprintf(stderr, "verbs: %s\n", parser->getErrorDesc());
        exitCode = 2;
    }
    result->destroy();
    parser->destroy();
    return exitCode;
}
