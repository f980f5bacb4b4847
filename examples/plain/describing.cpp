#include <tarv_3_3/description.h>
#include <tarv_3_3/tarv.h>

#include <cstdio>
#include <cstring>

namespace tarv = tarv_3_3;

namespace {

void declare(tarv::IParser& parser) {
    parser.option("input", "What to convert.", tarv::vtString).positional().tokenize(0);
    parser.option("output,o", "The file to write.", tarv::vtString).defaultValue("out.png").tokenize(0);
    parser.option("level,l", "How hard to try.", tarv::vtInt32).allowValue(1).allowValue(2).tokenize(0);
    parser.option("color", "Print in colour.", tarv::vtBool).tokenize(0);
    parser.option("trace", "For us.", tarv::vtNull, "tarv_hidden");
    tarv::annotate(&parser, "output", "value", "FILE");
    tarv::annotate(&parser, "output", "complete", "file");
}

/// What was said of the declaration under a key; null when nothing was.
const char* findNote(const tarv::Declaration& declaration, const char* key) {
    for (unsigned i = 0; i < declaration.noteCount; ++i) {
        if (std::strcmp(declaration.notes[i].key, key) == 0) {
            return declaration.notes[i].value;
        }
    }
    return nullptr;
}

void printRow(const tarv::Declaration& declaration) {
    std::printf("| `--%s`", declaration.names[0]);
    if (const char* value = findNote(declaration, "value")) {
        std::printf(" %s", value);
    }
    std::printf(" | %s", declaration.text);
    for (unsigned i = 0; i < declaration.allowedCount; ++i) {
        std::printf("%s%s", i == 0 ? " One of " : ", ", declaration.allowed[i]);
    }
    if (declaration.defaultText != nullptr) {
        std::printf(" Default: %s", declaration.defaultText);
    }
    std::printf(" |\n");
}

int printTable(tarv::IParser& parser) {
    const tarv::Description* description = tarv::describe(&parser);
    if (description == nullptr) {
        return 1;
    }
    std::printf("| Option | Meaning |\n| --- | --- |\n");
    for (unsigned i = 0; i < description->declarationCount; ++i) {
        const tarv::Declaration& declaration = tarv::declarationAt(*description, i);
        if (declaration.isHidden == 0 && declaration.isPositional == 0) {
            printRow(declaration);
        }
    }
    tarv::release(description);
    return 0;
}

int printJson(tarv::IParser& parser) {
    const char* json = tarv::describeAsJson(&parser);
    return json != nullptr && std::fputs(json, stdout) >= 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, tarv::flagRejectUnknown) != tarv::parseOk) {
        return 1;
    }
    declare(*parser);
    const bool asJson = argc == 2 && std::strcmp(argv[1], "json") == 0;
    const int exitCode = asJson ? printJson(*parser) : printTable(*parser);
    parser->destroy();
    return exitCode;
}
