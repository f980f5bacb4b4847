#include <algorithm>
#include <cstdio>

#include <tarv_3_3/completion.h>
#include <tarv_3_3/description.h>

#include "compare/compare.h"
#include "compare/report.h"
#include "explain/explainLine.h"
#include "front/Verb.h"
#include "front/files.h"
#include "lint/lintScript.h"
#include "model/loadDescription.h"
#include "pages/Page.h"
#include "text/shellQuoted.h"

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

std::string programOf(const Arguments& arguments) {
    return arguments.values("PROGRAM").front();
}

void declareCompare(IParser& parser) {
    declarePositional(parser, "DESCRIPTION");
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
    const std::vector<std::string> sources = arguments.values("DESCRIPTION");
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

int runExplain(const Arguments& arguments) {
    const ExplainedLine line = explainLine(loadDescription(programOf(arguments)), arguments.plain());
    print(table(line));
    return line.isAccepted || line.isMended ? 0 : 1;
}

void declareLint(IParser& parser) {
    declarePositional(parser, "SCRIPT");
    declareFile(parser, "with", "The program whose calls are looked at, or its description.");
    annotate(&parser, "with", "value", "PROGRAM");
    addRule(&parser, ruleRequired, "with");
    parser.option("name", "Another name that the scripts call it by.", vtString).tokenize(0);
    annotate(&parser, "name", "complete", "none");
    parser.option("fix", "Write whole names into the scripts, and say what is left.", vtNull);
    parser.option("diff", "Print what --fix would change.", vtNull);
    addRule(&parser, ruleAtMostOne, "fix,diff");
}

// Whether something is left to be mended by hand.
bool lintOne(LintedScript script, const Arguments& arguments) {
    if (arguments.isGiven("diff")) {
        print(differenceOf(script));
        return !script.diagnostics.empty();
    }
    if (arguments.isGiven("fix")) {
        replaceScript(script);
        auto& found = script.diagnostics;
        found.erase(std::remove_if(found.begin(), found.end(),
                                   [](const Diagnostic& diagnostic) { return diagnostic.fix.has_value(); }),
                    found.end());
    }
    print(reportOf(script));
    return !script.diagnostics.empty();
}

int runLint(const Arguments& arguments) {
    const CommandLine program = loadDescription(*arguments.value("with"));
    std::vector<std::string> names = arguments.values("name");
    names.push_back(program.names.front());
    int exitCode = 0;
    for (const std::string& path : arguments.values("SCRIPT")) {
        // One script that cannot be read does not keep the others from being looked at.
        try {
            if (lintOne(lintScript(program, names, path), arguments) && exitCode == 0) {
                exitCode = 1;
            }
        } catch (const Failure& failure) {
            std::fprintf(stderr, "tarv: %s\n", visible(failure.what()).c_str());
            exitCode = 2;
        }
    }
    return exitCode;
}

void declarePages(IParser& parser) {
    declarePositional(parser, "PROGRAM");
    parser
        .option("directory,d", "Write a page for the program and one for each verb into this folder.",
                vtString)
        .tokenize(0);
    annotate(&parser, "directory", "complete", "directory");
    annotate(&parser, "directory", "value", "FOLDER");
    parser.option("purpose", "What the program is for, where its description does not say.", vtString)
        .tokenize(0);
    annotate(&parser, "purpose", "complete", "none");
}

void declareManual(IParser& parser) {
    declarePages(parser);
    parser.option("date", "The date of the page; otherwise SOURCE_DATE_EPOCH counts, or today.", vtString)
        .tokenize(0);
    parser.option("section", "The section of the manual.", vtString).defaultValue("1").tokenize(0);
    annotate(&parser, "date", "complete", "none");
    annotate(&parser, "section", "complete", "none");
}

template <class Write>
int writePages(const Arguments& arguments, const std::string& ending, Write write) {
    CommandLine program = loadDescription(programOf(arguments));
    program.text = program.text.empty() ? arguments.value("purpose").value_or("") : program.text;
    const auto folder = arguments.value("directory");
    if (!folder) {
        print(write(wholePage(program)));
        return 0;
    }
    for (const Page& page : pageForEachVerb(program)) {
        writeFile(*folder + "/" + fileNameOf(page) + ending, write(page));
    }
    return 0;
}

int runManual(const Arguments& arguments) {
    const std::string section = arguments.value("section").value_or("1");
    const std::string date = arguments.value("date").value_or(dateOfToday());
    return writePages(arguments, "." + section,
                      [&](const Page& page) { return asManual(page, section, date); });
}

int runMarkdown(const Arguments& arguments) {
    return writePages(arguments, ".md", asMarkdown);
}

void declareCompletion(IParser& parser) {
    declarePositional(parser, "PROGRAM");
    parser.option("shell,s", "The shell that the script is for.", vtString)
        .allowValue("bash")
        .allowValue("zsh")
        .allowValue("fish")
        .tokenize(0);
    addRule(&parser, ruleRequired, "shell");
}

int runCompletion(const Arguments& arguments) {
    const CommandLine program = loadDescription(programOf(arguments));
    const std::string request = "tarvoption=completion=" + *arguments.value("shell");
    const char* const argv[] = {program.names.front().c_str(), request.c_str()};
    answerCompletion(&arguments.parser(), 2, argv);
    print("");
    return 0;
}

} // namespace

const std::vector<Verb>& allVerbs() {
    static const std::vector<Verb> verbs = {
        {"compare", "OLD NEW", 2, 2,
         "Say which command lines that OLD accepts NEW does not, or takes for others.", filesEverywhere,
         declareCompare, runCompare},
        {"explain", "PROGRAM -- ARGUMENT...", 1, 1,
         "Show how a program understands arguments, without running it.",
         flagRejectUnknown | flagDashIsNotPositional, declareProgram, runExplain},
        {"lint", "--with=PROGRAM SCRIPT...", 1, Verb::anyNumber,
         "Find abbreviated, unknown and deprecated names in the calls of a program.", filesEverywhere,
         declareLint, runLint},
        {"man", "PROGRAM", 1, 1, "Write a manual page.", filesEverywhere, declareManual, runManual},
        {"markdown", "PROGRAM", 1, 1, "Write the same as Markdown.", filesEverywhere, declarePages,
         runMarkdown},
        {"json", "PROGRAM", 1, 1, "Print the description of a program.", filesEverywhere, declareProgram,
         runJson},
        {"completion", "PROGRAM", 1, 1, "Print the script that completes a program in a shell.",
         filesEverywhere, declareCompletion, runCompletion},
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
