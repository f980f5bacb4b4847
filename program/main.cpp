// tarv looks at the command lines of programs: which verb is asked for is found here, what the verbs do is in
// front/verbs.cpp.

#include <cstdio>
#include <cstring>
#include <exception>
#include <new>

#include <tarv_3_3/description.h>

#include "front/Verb.h"
#include "text/shellQuoted.h"
#include "version.h"

using namespace tarv_3_3;
using namespace tarv_program;

namespace {

constexpr int wrongUsage = 2;

// Its positional argument is the verb, so verbs may be abbreviated, and are completed.
Parser createRoot() {
    IParser* parser = nullptr;
    if (createParser(&parser, flagRejectUnknown | flagDashIsNotPositional) != parseOk) {
        throw std::bad_alloc();
    }
    Parser root(parser);
    IOption& verbName = root->option("verb", "", vtString);
    verbName.positional().allowValue("help");
    for (const Verb& verb : allVerbs()) {
        verbName.allowValue(verb.name);
    }
    verbName.tokenize(0);
    root->option("help,h", "Print this help.", vtNull);
    root->option("version", "Print the version.", vtNull);
    return root;
}

std::string helpOf(IParser& root) {
    std::string text = "Usage: tarv VERB [OPTION]... [ARGUMENT]...\n\n";
    for (const Verb& verb : allVerbs()) {
        std::string synopsis = std::string("  ") + verb.name + " " + verb.synopsis;
        synopsis.resize(synopsis.size() < 30 ? 30 : synopsis.size() + 1, ' ');
        text += synopsis + verb.text + "\n";
    }
    return text + "  help VERB                   Say more about one of them.\n" + root.getDescription();
}

std::string helpOf(const Verb& verb, IParser& parser) {
    return std::string("Usage: tarv ") + verb.name + " [OPTION]... " + verb.synopsis + "\n\n" + verb.text +
           "\n" + parser.getDescription();
}

int refuse(const std::string& message, IParser& parser, const char* argument) {
    std::fprintf(stderr, "tarv: %s\n", visible(message).c_str());
    const char* const suggestion = argument != nullptr ? suggest(&parser, argument) : nullptr;
    if (suggestion != nullptr) {
        std::fprintf(stderr, "tarv: %s\n", suggestion);
    }
    std::fprintf(stderr, "Try 'tarv --help'.\n");
    return wrongUsage;
}

const Verb* verbCalled(const char* name) {
    for (const Verb& verb : allVerbs()) {
        if (std::strcmp(verb.name, name) == 0) {
            return &verb;
        }
    }
    return nullptr;
}

std::size_t positionalCount(const Arguments& arguments) {
    const Description* const description = describe(&arguments.parser());
    if (description == nullptr) {
        throw std::bad_alloc();
    }
    std::size_t count = 0;
    for (unsigned i = 0; i < description->declarationCount; ++i) {
        const Declaration& option = declarationAt(*description, i);
        count += option.isPositional == positionalFilled ? arguments.values(option.names[0]).size() : 0;
    }
    release(description);
    return count;
}

// `argv[0]` is the verb.
int runVerb(const Verb& verb, int argc, const char* const* argv) {
    const Parser parser = parserOf(verb);
    const Result result = createResult(*parser);
    if (parser->parseArgsVector(argc, argv, result.get()) != parseOk) {
        return refuse(parser->getErrorDesc(), *parser, nullptr);
    }
    if (result->present("help")) {
        print(helpOf(verb, *parser));
        return 0;
    }
    if (checkRules(parser.get(), result.get()) != parseOk) {
        return refuse(parser->getErrorDesc(), *parser, nullptr);
    }
    const Arguments arguments(*parser, *result);
    const std::size_t count = positionalCount(arguments);
    if (count < verb.least || count > verb.most) {
        return refuse(std::string(verb.name) + " takes " + verb.synopsis, *parser, nullptr);
    }
    return verb.run(arguments);
}

int run(int argc, const char* const* argv) {
    const Parser root = createRoot();
    if (answerRequest(allVerbs(), *root, argc, argv)) {
        return 0;
    }
    if (argc < 2) {
        return refuse("needs a verb", *root, nullptr);
    }
    const Result result = createResult(*root);
    if (root->parseArgsVector(2, argv, result.get()) != parseOk) {
        const bool isVerb = argv[1][0] != '-';
        return refuse(isVerb ? std::string("'") + argv[1] + "' is no verb, or short for several"
                             : root->getErrorDesc(),
                      *root, argv[1]);
    }
    if (result->present("version")) {
        print(std::string("tarv ") + version + "\n");
        return 0;
    }
    const Value name = result->get("verb");
    const Verb* const verb = name.text != nullptr ? verbCalled(name.text) : nullptr;
    if (verb != nullptr) {
        return runVerb(*verb, argc - 1, argv + 1);
    }
    if (argc > 2) {
        const Verb* const asked = verbCalled(argv[2]);
        if (asked == nullptr) {
            return refuse(std::string("there is no verb '") + argv[2] + "'", *root, nullptr);
        }
        print(helpOf(*asked, *parserOf(*asked)));
        return 0;
    }
    print(helpOf(*root));
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "tarv: %s\n", visible(failure.what()).c_str());
        return wrongUsage;
    }
}
