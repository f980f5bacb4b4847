#include "front/verbs.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include <tarv_3_3/completion.h>

#include "compare/compare.h"
#include "compare/report.h"
#include "explain/explainLine.h"
#include "front/files.h"
#include "lint/lintScript.h"
#include "model/loadDescription.h"
#include "model/rebuild.h"
#include "pages/Page.h"
#include "text/shellQuoted.h"

namespace tarv_program {

namespace typed = tarv_3_3::typed;

namespace {

using Text = typed::Handle<std::string>;

Text declareProgram(typed::Command& verb) {
    return verb.positional<std::string>("program", "The program, or a file with its description.")
        .required()
        .completeAs("file");
}

enum class Format { text, json, baseline };

void declareCompare(typed::Program& tool) {
    auto& verb =
        tool.verb("compare", "Say which command lines that OLD accepts NEW does not, or takes for others.");
    const Text older = verb.positional<std::string>("old", "A program, or a file with its description.")
                           .required()
                           .completeAs("file");
    const Text newer =
        verb.positional<std::string>("new", "What takes its place.").required().completeAs("file");
    const auto format = verb.option(
        "format,f", "How to print what was found; baseline: as a file for --baseline.", Format::text);
    const Text baseline = verb.option<std::string>("baseline", "Breaks that are accepted, one a line, as "
                                                               "--format=baseline prints them.")
                              .value("FILE")
                              .completeAs("file");
    verb.does([=] {
        Comparison comparison = compare(loadDescription(*older), loadDescription(*newer));
        if (baseline.given()) {
            acceptBreaks(comparison, contentsOf(*baseline));
        }
        print(*format == Format::json       ? reportAsJson(comparison)
              : *format == Format::baseline ? reportAsBaseline(comparison)
                                            : reportAsText(comparison));
        return comparison.breaks.empty() || *format == Format::baseline ? 0 : 1;
    });
}

void declareExplain(typed::Program& tool) {
    auto& verb = tool.verb("explain", "Show how a program understands arguments, without running it.");
    const Text program = declareProgram(verb);
    const auto arguments = verb.positional<std::vector<std::string>>(
        "argument", "An argument of the program; all of them stand behind --.");
    verb.does([=] {
        const ExplainedLine line = explainLine(loadDescription(*program), *arguments);
        print(table(line));
        return line.isAccepted || !line.doubt.empty() ? 0 : 1;
    });
}

enum class Lint { report, fix, diff };

constexpr char standardInput[] = "-";

// Whether something is left to be mended by hand.
bool lintOne(LintedScript script, Lint wanted) {
    if (wanted == Lint::diff) {
        print(differenceOf(script));
        return !script.diagnostics.empty();
    }
    if (wanted == Lint::fix) {
        replaceScript(script);
        auto& found = script.diagnostics;
        found.erase(std::remove_if(found.begin(), found.end(),
                                   [](const Diagnostic& diagnostic) { return diagnostic.fix.has_value(); }),
                    found.end());
    }
    print(reportOf(script));
    return !script.diagnostics.empty();
}

int lintAll(const CommandLine& program, std::vector<std::string> names,
            const std::vector<std::string>& scripts, Lint wanted) {
    const bool readsInput = std::count(scripts.begin(), scripts.end(), standardInput) != 0;
    if (wanted == Lint::fix && readsInput) {
        throw Failure("--fix cannot change standard input; --diff shows what it would change");
    }
    names.push_back(program.names.front());
    int exitCode = 0;
    for (const std::string& path : scripts) {
        // One script that cannot be read does not keep the others from being looked at.
        try {
            const LintedScript script =
                path == standardInput ? lintStandardInput(program, names) : lintScript(program, names, path);
            if (lintOne(script, wanted) && exitCode == 0) {
                exitCode = 1;
            }
        } catch (const Failure& failure) {
            std::fprintf(stderr, "tarv: %s\n", visible(failure.what()).c_str());
            exitCode = 2;
        }
    }
    return exitCode;
}

void declareLint(typed::Program& tool) {
    auto& verb =
        tool.verb("lint", "Find abbreviated, unknown and deprecated names in the calls of a program.");
    const auto scripts =
        verb.positional<std::vector<std::string>>("script", "A shell script; - is standard input.")
            .required()
            .completeAs("file");
    const Text with =
        verb.option<std::string>("with", "The program whose calls are looked at, or its description.")
            .required()
            .value("PROGRAM")
            .completeAs("file");
    const auto names =
        verb.option<std::vector<std::string>>("name", "Another name that the scripts call it by.")
            .separator('\0')
            .completeAs("none");
    const auto fix = verb.flag("fix", "Write whole names into the scripts, and say what is left.");
    const auto diff = verb.flag("diff", "Print what --fix would change.");
    verb.atMostOne(fix, diff);
    verb.does([=] {
        return lintAll(loadDescription(*with), *names, *scripts,
                       *fix    ? Lint::fix
                       : *diff ? Lint::diff
                               : Lint::report);
    });
}

/// What pages are written of, and where.
struct PageOptions {
    Text program;
    Text folder;
    Text purpose;
};

PageOptions declarePages(typed::Command& verb) {
    return {
        declareProgram(verb),
        verb.option<std::string>("directory,d",
                                 "Write a page for the program and one for each verb into this folder.")
            .value("FOLDER")
            .completeAs("directory"),
        verb.option<std::string>("purpose", "What the program is for, where its description does not say.")
            .completeAs("none"),
    };
}

template <class Write>
void writePages(const PageOptions& options, const std::string& ending, Write write) {
    CommandLine program = loadDescription(*options.program);
    program.text = program.text.empty() ? *options.purpose : program.text;
    if (!options.folder.given()) {
        print(write(wholePage(program)));
        return;
    }
    for (const Page& page : pageForEachVerb(program)) {
        writeFile(*options.folder + "/" + fileNameOf(page) + ending, write(page));
    }
}

void declareManual(typed::Program& tool) {
    auto& verb = tool.verb("man", "Write a manual page.");
    const PageOptions options = declarePages(verb);
    const Text date = verb.option<std::string>(
                              "date", "The date of the page; otherwise SOURCE_DATE_EPOCH counts, or today.")
                          .completeAs("none");
    const Text section =
        verb.option("section", "The section of the manual.", std::string("1")).completeAs("none");
    verb.does([=] {
        writePages(options, "." + *section, [&](const Page& page) {
            return asManual(page, *section, date.given() ? *date : dateOfToday());
        });
    });
}

void declareMarkdown(typed::Program& tool) {
    auto& verb = tool.verb("markdown", "Write the same as Markdown.");
    const PageOptions options = declarePages(verb);
    verb.does([=] { writePages(options, ".md", asMarkdown); });
}

void declareJson(typed::Program& tool) {
    auto& verb = tool.verb("json", "Print the description of a program.");
    const Text program = declareProgram(verb);
    verb.does([=] { print(loadJson(*program)); });
}

void declareCompletion(typed::Program& tool) {
    auto& verb = tool.verb("completion", "Print the script that completes a program in a shell.");
    const Text program = declareProgram(verb);
    const Text shell = verb.option<std::string>("shell,s", "The shell that the script is for.")
                           .required()
                           .oneOf("bash", "zsh", "fish");
    verb.does([=] {
        const std::string name = loadDescription(*program).names.front();
        const std::string request = "tarvoption=completion=" + *shell;
        const char* const argv[] = {name.c_str(), request.c_str()};
        // A script depends on nothing but the name.
        tarv_3_3::answerCompletion(rebuild(CommandLine()).get(), 2, argv);
        print("");
    });
}

} // namespace

void declareVerbs(typed::Program& tool) {
    declareCompare(tool);
    declareExplain(tool);
    declareLint(tool);
    declareManual(tool);
    declareMarkdown(tool);
    declareJson(tool);
    declareCompletion(tool);
}

} // namespace tarv_program
