// A program with completion, for typing at in real shells. Run as itself, it prints its arguments in a form
// that no shell prints: "RAN:", each argument in hexadecimal digits behind a comma, and ";".

#include <tarv_3_3/completion.h>
#include <tarv_3_3/description.h>
#include <tarv_3_3/tarv.h>

#include <cstdio>
#include <initializer_list>
#include <string>

namespace {

using namespace tarv_3_3;

void declareText(IParser& parser, const char* name, const char* description,
                 std::initializer_list<const char*> values, bool isList, const char* files) {
    IOption& option = parser.option(name, description, vtString);
    if (!isList) {
        option.tokenize('\0');
    }
    for (const char* const value : values) {
        option.allowValue(value);
    }
    annotate(&parser, name, "complete", files);
}

void declare(IParser& parser) {
    parser.option("max-count", "Stop behind so many.", vtInt32);
    parser.option("max-depth", "Go down so far.", vtInt32);
    parser.option("min-size", "Leave smaller ones out.", vtInt32);
    declareText(parser, "mode", "How to go about it.", {"careful", "carefree", "fast"}, false, "none");
    declareText(parser, "title", "What stands above.", {"my day", "my dog", "it's $HOME", "plain"}, false,
                "none");
    declareText(parser, "link", "Where it lies.", {"ftp://mirror", "http://first", "http://second"}, false,
                "none");
    declareText(parser, "sizes", "Which sizes.", {"8", "16", "1600", "32"}, true, "none");
    declareText(parser, "input", "What to read.", {}, false, "file");
    declareText(parser, "layers", "What to put together.", {}, true, "file");
    declareText(parser, "target", "Where to write.", {}, false, "directory");
    declareText(parser, "targets", "Where to write copies.", {}, true, "directory");
    parser.option("verbose", "Say more.", vtNull);
    parser.option("", "", vtString).tokenize('\0').positional();
}

} // namespace

int main(int argc, char** argv) {
    IParser* parser = nullptr;
    if (createParser(&parser, flagPlainArePositional) != parseOk) {
        return 1;
    }
    declare(*parser);
    const bool isAnswered = answerCompletion(parser, argc, argv);
    parser->destroy();
    if (isAnswered) {
        return 0;
    }
    std::printf("RAN:");
    for (int i = 1; i < argc; ++i) {
        std::printf(",");
        for (const char byte : std::string(argv[i])) {
            std::printf("%02x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
        }
    }
    std::printf(";\n");
}
