#include <tarv_3_3/description.h>

#include "compare/compare.h"
#include "compare/report.h"
#include "front/Verb.h"
#include "model/loadDescription.h"

namespace tarv_program {

using namespace tarv_3_3;

namespace {

constexpr int filesEverywhere = flagRejectUnknown | flagDashIsNotPositional | flagPlainArePositional;

void declareHelp(IParser& parser) {
    parser.option("help,h", "Print this help.", vtNull);
}

void declareFile(IParser& parser, const char* names, const char* text) {
    parser.option(names, text, vtString).tokenize(0);
    annotate(&parser, names, "complete", "file");
    annotate(&parser, names, "value", "FILE");
}

void declarePositional(IParser& parser, const char* name) {
    parser.option(name, "", vtString).tokenize(0).positional();
    annotate(&parser, name, "complete", "file");
}

std::vector<std::string> positionals(const Arguments& arguments, const char* name, std::size_t least,
                                     std::size_t most) {
    std::vector<std::string> values = arguments.values(name);
    if (values.size() < least) {
        throw Failure(std::string("needs ") + name);
    }
    if (values.size() > most) {
        throw Failure("'" + values[most] + "' is one argument too many");
    }
    return values;
}

std::string programOf(const Arguments& arguments) {
    return positionals(arguments, "PROGRAM", 1, 1).front();
}

void declareCompare(IParser& parser) {
    declarePositional(parser, "OLD and NEW");
    parser.option("format,f", "How to print what was found; baseline: as a file for --baseline.", vtString)
        .allowValue("text")
        .allowValue("json")
        .allowValue("baseline")
        .defaultValue("text")
        .tokenize(0);
    declareFile(parser, "baseline",
                "Breaks that are accepted, one a line, as --format=baseline prints them.");
}

int runCompare(const Arguments& arguments) {
    const std::vector<std::string> sources = positionals(arguments, "OLD and NEW", 2, 2);
    Comparison comparison = compare(loadDescription(sources[0]), loadDescription(sources[1]));
    if (const auto baseline = arguments.value("baseline")) {
        acceptBreaks(comparison, contentsOf(*baseline));
    }
    const std::string format = arguments.value("format").value_or("text");
    print(format == "json"       ? reportAsJson(comparison)
          : format == "baseline" ? reportAsBaseline(comparison)
                                 : reportAsText(comparison));
    return comparison.breaks.empty() || format == "baseline" ? 0 : 1;
}

void declareProgram(IParser& parser) {
    declarePositional(parser, "PROGRAM");
}

int runJson(const Arguments& arguments) {
    print(loadJson(programOf(arguments)));
    return 0;
}

} // namespace

const std::vector<Verb>& allVerbs() {
    static const std::vector<Verb> verbs = {
        {"compare", "OLD NEW", "Say which command lines that OLD accepts NEW does not, or takes for others.",
         filesEverywhere, declareCompare, runCompare},
        {"json", "PROGRAM", "Print the description of a program.", filesEverywhere, declareProgram, runJson},
    };
    return verbs;
}

Parser parserOf(const Verb& verb) {
    IParser* parser = nullptr;
    if (createParser(&parser, verb.flags) != parseOk) {
        throw std::bad_alloc();
    }
    Parser owned(parser);
    verb.declare(*owned);
    declareHelp(*owned);
    return owned;
}

} // namespace tarv_program
