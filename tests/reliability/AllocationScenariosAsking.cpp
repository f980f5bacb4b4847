#include <string_view>

#include "reliability/AllocationScenario.h"

using namespace tarv_3_3;

namespace {

void parsed(Session& session) {
    open(session);
    session.parser->option("output-file", "", vtString);
    session.parser->option("colour-scheme", "", vtString).defaultValue("a default of some length");
    session.parser->option("level", "", vtInt32);
    parse(session, {"--output-file=the first of three names", "--output-file=the second name",
                    "--output-file=the third of three names", "--", "the first plain argument",
                    "the second plain argument"});
}

int keep(Session& session, const Value& value) {
    session.value = value;
    return value.status;
}

std::string valueText(Session& session) {
    return session.value.text;
}

std::string plainText(Session& session) {
    return session.text;
}

void withoutActions(Session& session) {
    open(session);
    session.parser->option("output-file,o", "Where the output goes.", vtString,
                           "io:Input and output of files");
    session.parser->option("level", "How much.", vtInt32).allowValue(1).allowValue(2).defaultValue(2);
    session.parser->option("debug-of-the-parser", "For us.", vtBool, "tarv_hidden").defaultValue(true);
}

void withActions(Session& session) {
    open(session);
    session.parser->action("build-the-whole-project,build", "Builds.", vtNull);
    session.parser->action("test", "Tests.", vtNull);
    session.parser->modifier("jobs", "build", "How many at a time.", vtInt32);
    session.parser->option("verbose", "Says more.", vtBool);
}

std::string helpText(Session& session) {
    return session.text;
}

int show(Session& session, const char* text) {
    session.text = text;
    // The renderer's failure is a text as well.
    return std::string_view(text).find("Unknown error handled.") == std::string_view::npos ? 0 : 1;
}

} // namespace

std::vector<Scenario> queryScenarios() {
    return {
        {"Get", Failure::query, parsed, [](Session& s) { return keep(s, s.result->get("output-file")); }, 0,
         valueText, "the first of three names"},
        {"GetByLongUnknownName", Failure::query, parsed,
         [](Session& s) { return keep(s, s.result->get("a name that nobody has declared")); }, valueMissing,
         [](Session& s) { return std::string(s.value.text == nullptr ? "none" : "some"); }, "none"},
        {"Next", Failure::query,
         [](Session& s) {
             parsed(s);
             s.result->get("output-file");
         },
         [](Session& s) { return keep(s, s.result->next("output-file")); }, 0, valueText, "the second name"},
        {"Present", Failure::presence, parsed,
         [](Session& s) { return s.result->present("an-option-with-a-name-that-is-long") ? 1 : 0; }, 0,
         [](Session& s) { return std::string(s.result->present("output-file") ? "there" : "missing"); },
         "there"},
        {"PresentByLongName", Failure::presence,
         [](Session& s) {
             open(s);
             s.parser->option("an-option-with-a-name-that-is-long", "", vtNull);
             parse(s, {"--an-option"});
             parse(s, {"--an-option-with-a-name-that-is-long"});
         },
         [](Session& s) { return s.result->present("an-option-with-a-name-that-is-long") ? 1 : 0; }, 1,
         [](Session& s) {
             return std::string(s.result->present("an-option-with-a-name-that-is-long") ? "there"
                                                                                        : "missing");
         },
         "there"},
        {"LastValue", Failure::lastValue, parsed,
         [](Session& s) { return keep(s, getLastValue(s.result, "output-file")); }, 0, valueText,
         "the third of three names"},
        {"FirstPlainArgument", Failure::throws, parsed,
         [](Session& s) { return s.result->getFirstArgument(&s.text); }, 0, plainText,
         "the first plain argument"},
        {"NextPlainArgument", Failure::throws,
         [](Session& s) {
             parsed(s);
             s.result->getFirstArgument(&s.text);
         },
         [](Session& s) { return s.result->getNextArgument(&s.text); }, 0, plainText,
         "the second plain argument"},
        {"ErrorText", Failure::throws,
         [](Session& s) {
             parsed(s);
             parse(s, {"--level=high"});
         },
         [](Session& s) {
             s.text = s.parser->getErrorDesc();
             return 0;
         },
         0, plainText,
         "Value validation problem in argument '--level=high': Option 'level' can not parse 'high' value, "
         "requires a type 'integer' here."},
    };
}

std::vector<Scenario> helpScenarios() {
    return {
        {"Help", Failure::help, withoutActions,
         [](Session& s) { return show(s, s.parser->getDescription(false)); }, 0, helpText,
         "io\n Input and output of files\n\n"
         "-o, -output-file=<string>     Where the output goes.\n\n"
         "-level=1 | 2 (2)              How much.\n\n"},
        {"HelpOfHiddenOptions", Failure::help, withoutActions,
         [](Session& s) { return show(s, s.parser->getDescription(true)); }, 0, helpText,
         "tarv_hidden\n"
         "-debug-of-the-parser (default) | -no-debug-of-the-parser\n"
         "                              For us.\n\n"},
        {"HelpOfActions", Failure::throws, withActions,
         [](Session& s) { return show(s, s.parser->getDescription(false)); }, 0, helpText,
         "    build-the-whole-project\n    test\n"},
        {"HelpOfOneOption", Failure::help, withoutActions,
         [](Session& s) { return show(s, s.parser->getDescription("level")); }, 0, helpText,
         "io\n Input and output of files\n\n\n-level=1 | 2 (2)              How much.\n\n"},
        {"HelpOfUnknownTopic", Failure::help, withoutActions,
         [](Session& s) { return show(s, s.parser->getDescription("a topic of nobody")); }, 0, helpText,
         "Help for a topic of nobody not available.Please use one of the following topics:\n"
         "io\n Input and output of files\n\n"
         "-o, -output-file=<string>     Where the output goes.\n\n"
         "-level=1 | 2 (2)              How much.\n\n"},
        {"HelpOfActionModifiers", Failure::help, withActions,
         [](Session& s) { return show(s, s.parser->getActionModifiersDescription("build")); }, 0, helpText,
         "-jobs=<integer>               How many at a time.\n\n"},
        {"HelpOfGlobalModifiers", Failure::help, withActions,
         [](Session& s) { return show(s, s.parser->getGlobalModifiersDescription()); }, 0, helpText,
         "-verbose | -no-verbose        Says more.\n\n"},
    };
}
