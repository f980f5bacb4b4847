#include <tarv_3_3/tarv.h>

#include <cstdio>
#include <string>

namespace tarv = tarv_3_3;

namespace {

/// The declarations of the program under test.
void declare(tarv::IParser& parser) {
    parser.option("level,l", "How hard to try.", tarv::vtInt32).defaultValue(2);
    parser.option("file", "", tarv::vtString).positional();
}

/// What the program makes of a command line, one argument a line, in one line of text.
std::string outcome(tarv::IParser& parser, const char* arguments) {
    tarv::IParseResult* result = nullptr;
    parser.createResult(&result);
    parser.parseArgsVector(0, nullptr, result); // a stream alone brings no defaults
    std::string text;
    if (parser.parseStream(arguments, result) != tarv::parseOk) {
        text = parser.getErrorDesc();
    } else {
        text = std::string("level=") + tarv::getLastValue(result, "level").text;
        for (tarv::Value file = result->get("file"); file.text != nullptr; file = result->next("file")) {
            text += std::string(" file=") + file.text;
        }
    }
    result->destroy();
    return text;
}

} // namespace

int main() {
    const struct {
        const char* arguments;
        const char* expected;
    } rows[] = {
        {"", "level=2"},
        {"--level=3\na.txt\nb.txt\n", "level=3 file=a.txt file=b.txt"},
        {"  # a comment\n\n-l\n5\n", "level=5"},
        {"name with blanks.txt\n", "level=2 file=name with blanks.txt"},
        {"--level=high\n", "Value validation problem in argument '--level=high': Option 'level' can not "
                           "parse 'high' value, requires a type 'integer' here."},
    };
    const int flags = tarv::flagRejectUnknown | tarv::flagDashIsNotPositional;
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, flags) != tarv::parseOk) {
        return 1;
    }
    declare(*parser);
    int failures = 0;
    for (const auto& row : rows) {
        const std::string actual = outcome(*parser, row.arguments);
        const bool passed = actual == row.expected;
        failures += passed ? 0 : 1;
        std::printf("%s %s\n", passed ? "pass" : "FAIL", actual.c_str());
    }
    parser->destroy();
    return failures == 0 ? 0 : 1;
}
