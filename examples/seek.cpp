// seek searches text files: the command line of a real tool. What it does with files is in
// searching.cpp, and how it replaces one without losing it in replacing.cpp.

#include <tarv_3_3/completion.h>
#include <tarv_3_3/description.h>
#include <tarv_3_3/tarv.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include <unistd.h>

#include "searching.h"

namespace tarv = tarv_3_3;

namespace {

struct Destroy {
    template <class T>
    void operator()(T* object) const {
        object->destroy();
    }
};

using Parser = std::unique_ptr<tarv::IParser, Destroy>;
using Result = std::unique_ptr<tarv::IParseResult, Destroy>;

Parser createParser() {
    const int flags = tarv::flagRejectUnknown | tarv::flagDashIsNotPositional | tarv::flagPlainArePositional;
    tarv::IParser* parser = nullptr;
    if (tarv::createParser(&parser, flags) != tarv::parseOk) {
        throw std::bad_alloc();
    }
    return Parser(parser);
}

Result createResult(tarv::IParser& parser) {
    tarv::IParseResult* result = nullptr;
    parser.createResult(&result);
    return Result(result);
}

void declareActions(tarv::IParser& parser) {
    parser.action("search,s", "Print the lines that hold the pattern.", tarv::vtNull);
    parser.action("count,c", "Print how many lines of each file hold the pattern.", tarv::vtNull);
    parser.action("replace,r", "Print the files with every match replaced, or write them with --in-place.",
                  tarv::vtNull);
    parser.action("help,h", "Print help, or what is to be said about the actions and options named.",
                  tarv::vtNull);
}

void declareModifiers(tarv::IParser& parser) {
    parser.modifier("pattern,p", "search,count,replace", "The text to search for.", tarv::vtString)
        .tokenize(0);
    parser
        .modifier("with,w", "replace", "What takes the place of a match; without it, nothing does.",
                  tarv::vtString)
        .tokenize(0);
    parser.modifier("in-place,i", "replace", "Write the files instead of printing them.", tarv::vtBool)
        .defaultValue(false);
    parser.modifier("context,C", "search", "Print this many lines around each match.", tarv::vtUInt32)
        .defaultValue(0U)
        .tokenize(0);
    parser
        .modifier("max-count,m", "search,count", "Stop behind this many matching lines of a file.",
                  tarv::vtUInt32)
        .tokenize(0);
    parser.modifier("hidden", "help", "Print help for the options that ordinary help leaves out.",
                    tarv::vtNull);
}

void declareOptions(tarv::IParser& parser) {
    parser.option("verbose,v", "Say what is skipped or written.", tarv::vtBool).defaultValue(false);
    parser
        .option("color", "Show matches in colour; auto: on a terminal. When NO_COLOR is set, never.",
                tarv::vtString)
        .allowValue("auto")
        .allowValue("always")
        .allowValue("never")
        .defaultValue("auto")
        .tokenize(0);
    parser.option("exclude,x", "Pass over files and directories with these names, as in *.o,build.",
                  tarv::vtString);
    parser.option("max-size", "Pass over files of more than this many bytes.", tarv::vtUInt64).tokenize(0);
    parser.option("max-depth", "Go this deep into directories.", tarv::vtUInt32).tokenize(0);
    parser.addOptionFileOption("Read further arguments from this file, one a line.");
    parser.option("statistics", "Say how much was read.", tarv::vtNull,
                  "tarv_hidden:For the makers of seek.");
    parser.option("progress-after", "Show progress after this many seconds.", tarv::vtDouble, "tarv_hidden")
        .defaultValue(0.5);
}

void declare(tarv::IParser& parser) {
    // The first declaration, so that events of positional arguments carry this name.
    parser.option("file", "", tarv::vtString).tokenize(0).positional();
    declareActions(parser);
    declareModifiers(parser);
    declareOptions(parser);
    // Where nothing else is said, texts are completed to files.
    for (const char* const name : {"pattern", "with", "exclude"}) {
        tarv::annotate(&parser, name, "complete", "none");
    }
}

/// Refuses values that have the right kind and still make no sense, and keeps the reason.
class ValueCheck final : private tarv::EventHandler {
public:
    void addTo(tarv::IParser& parser) { parser.addHandler(this); }

    const std::string& reason() const { return m_reason; }

private:
    bool onOptionParse(const char* name) override {
        m_isHelp = m_isHelp || std::strcmp(name, "help") == 0;
        return true;
    }

    bool onValueParse(const char* name, const tarv::Value& value) override {
        const tarv::das_variant_type_t kind = value.value.type();
        if (std::strcmp(name, "file") == 0) {
            return m_isHelp || checkFile(value.text);
        }
        return (kind != tarv::vtUInt32 && kind != tarv::vtUInt64) || checkCount(name, value.text);
    }

    bool checkFile(const char* path) {
        std::error_code error;
        if (!std::filesystem::exists(path, error)) {
            m_reason = std::string(path) + ": " + (error ? error.message() : "No such file or directory");
        }
        return m_reason.empty();
    }

    // Unsigned kinds accept a minus sign, and the widest one also "10k", as 10.
    bool checkCount(const char* name, const char* text) {
        const bool isHexadecimal = text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
        char* end = nullptr;
        std::strtoull(text, &end, isHexadecimal ? 16 : 10);
        if (*text == '-' || *end != '\0') {
            m_reason = "'" + std::string(text) + "' is no whole number for option '" + name + "'";
        }
        return m_reason.empty();
    }

    bool m_isHelp = false;
    std::string m_reason;
};

std::vector<std::string> textsOf(tarv::IParseResult& result, const char* name) {
    std::vector<std::string> texts;
    for (tarv::Value value = result.get(name); value.status == tarv::valueFound; value = result.next(name)) {
        // Given as an empty text.
        texts.emplace_back(value.text != nullptr ? value.text : "");
    }
    return texts;
}

template <class T>
T valueOf(tarv::IParseResult& result, const char* name, T otherwise) {
    const tarv::Value value = tarv::getLastValue(&result, name);
    return value.status == tarv::valueFound ? value.value.get<T>() : otherwise;
}

// NO_COLOR stands above --color: whoever sets it wants no colour from any program, an empty one counts
// as not set.
bool wantsColor(const std::string& when) {
    const char* const noColor = std::getenv("NO_COLOR");
    const bool isForbidden = noColor != nullptr && *noColor != '\0';
    return !isForbidden && (when == "always" || (when == "auto" && isatty(STDOUT_FILENO) != 0));
}

seek::Job makeJob(tarv::IParseResult& result, seek::Action action) {
    seek::Job job;
    job.action = action;
    job.pattern = valueOf(result, "pattern", "");
    job.replacement = valueOf(result, "with", "");
    job.inPlace = valueOf(result, "in-place", false);
    job.contextLines = valueOf(result, "context", job.contextLines);
    job.maxCount = valueOf(result, "max-count", job.maxCount);
    job.paths = textsOf(result, "file");
    job.exclude = textsOf(result, "exclude");
    job.maxSize = valueOf(result, "max-size", job.maxSize);
    job.maxDepth = valueOf(result, "max-depth", job.maxDepth);
    job.color = wantsColor(valueOf(result, "color", "auto"));
    job.verbose = valueOf(result, "verbose", false);
    job.statistics = result.present("statistics");
    job.progressAfter = valueOf(result, "progress-after", 0.0);
    return job;
}

int refuse(const std::string& message) {
    seek::complain(message);
    std::fputs("Try 'seek --help'.\n", stderr);
    return seek::failed;
}

int printOverview(tarv::IParser& parser, bool hidden) {
    if (hidden) {
        std::fputs(parser.getGlobalModifiersDescription(true), stdout);
        return seek::found;
    }
    std::printf("Usage: seek --ACTION [OPTION]... [--] [FILE | DIRECTORY]...\n"
                "Searches text files, or standard input. Names may be abbreviated.\n\n"
                "Actions:\n%s\nOptions that go with every action:\n%s"
                "'seek --help NAME' says more about an action or an option.\n"
                "Exit code: 0 found, 1 nothing found, 2 bad command line or unreadable file.\n",
                parser.getDescription(), parser.getGlobalModifiersDescription());
    return seek::found;
}

int printHelp(tarv::IParser& parser, tarv::IParseResult& result) {
    const bool hidden = result.present("hidden");
    const std::vector<std::string> names = textsOf(result, "file");
    for (const std::string& name : names) {
        const bool isAction = parser.isOptionDeclared(name.c_str(), true, nullptr);
        if (!isAction && !parser.isOptionDeclared(name.c_str(), false, nullptr)) {
            return refuse("There is no action or option '" + name + "'");
        }
        std::fputs(parser.getDescription(name.c_str(), hidden), stdout);
        if (isAction) {
            std::fputs(parser.getActionModifiersDescription(name.c_str(), hidden), stdout);
        }
    }
    return names.empty() ? printOverview(parser, hidden) : seek::found;
}

int runAction(tarv::IParseResult& result) {
    const struct {
        const char* name;
        seek::Action action;
    } actions[] = {
        {"search", seek::Action::search},
        {"count", seek::Action::count},
        {"replace", seek::Action::replace},
    };
    for (const auto& [name, action] : actions) {
        if (result.present(name)) {
            const seek::Job job = makeJob(result, action);
            if (job.pattern.empty()) {
                return refuse("Action '-" + std::string(name) + "' needs option '-pattern'");
            }
            if (job.inPlace && job.paths.empty()) {
                return refuse("Option '-in-place' needs files");
            }
            return seek::run(job);
        }
    }
    return refuse("No action defined.");
}

int seekMain(int argc, char** argv) {
    // Outlives the parser, which calls it.
    ValueCheck check;
    const Parser parser = createParser();
    declare(*parser);
    if (tarv::answerCompletion(parser.get(), argc, argv)) {
        return seek::found;
    }
    check.addTo(*parser);
    const Result result = createResult(*parser);
    switch (parser->parseArgsVector(argc, argv, result.get())) {
    case tarv::parseOk:
        return result->present("help") ? printHelp(*parser, *result) : runAction(*result);
    case tarv::parseVetoed:
        return refuse(check.reason());
    case tarv::parseException:
        throw std::bad_alloc();
    default:
        return refuse(parser->getErrorDesc());
    }
}

} // namespace

int main(int argc, char** argv) {
    try {
        return seekMain(argc, argv);
    } catch (const std::bad_alloc&) {
        seek::complain("out of memory");
        return seek::failed;
    }
}
