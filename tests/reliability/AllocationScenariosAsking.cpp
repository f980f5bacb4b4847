#include <string_view>

#include "reliability/AllocationScenario.h"

using namespace tarv_3_3;

namespace {

/// More than fits where a parser or a result has memory left.
std::string large(char character) {
    return std::string(100000, character);
}

std::string show(const std::string& text) {
    const std::size_t differs = text.find_first_not_of(text.front());
    return std::to_string(text.size()) + " times " + text.front() +
           (differs == text.npos ? "" : " and others");
}

void parsed(Subject& session) {
    open(session);
    session.parser->option("output-file", "", vtString);
    parse(session, std::vector<std::string>{"--output-file=" + large('a'), "--output-file=" + large('b'),
                                            "--output-file=" + large('c'), "--", large('d'), large('e')});
}

int keep(Subject& session, const Value& value) {
    session.value = value;
    return value.status;
}

std::string valueText(Subject& session) {
    return show(session.value.text);
}

std::string shownText(Subject& session) {
    return show(session.text);
}

void withoutActions(Subject& session) {
    open(session);
    session.parser->option("output-file,o", "Where the output goes.", vtString,
                           "io:Input and output of files");
    session.parser->option("level", "How much.", vtInt32).allowValue(1).allowValue(2).defaultValue(2);
    session.parser->option("debug-of-the-parser", "For us.", vtBool, "tarv_hidden").defaultValue(true);
}

void withActions(Subject& session) {
    open(session);
    session.parser->action("build-the-whole-project,build", "Builds.", vtNull);
    session.parser->action("test", "Tests.", vtNull);
    session.parser->modifier("jobs", "build", "How many at a time.", vtInt32);
    session.parser->option("verbose", "Says more.", vtBool);
}

std::string helpText(Subject& session) {
    return session.text;
}

int keepHelp(Subject& session, const char* text) {
    session.text = text;
    // The renderer's failure is a text as well.
    return std::string_view(text).find("Unknown error handled.") == std::string_view::npos ? 0 : 1;
}

} // namespace

std::vector<Scenario> queryScenarios() {
    return {
        {"Get", Failure::query, parsed, [](Subject& s) { return keep(s, s.result->get("output-file")); }, 0,
         valueText, "100000 times a"},
        {"Next", Failure::query,
         [](Subject& s) {
             parsed(s);
             s.result->get("output-file");
         },
         [](Subject& s) { return keep(s, s.result->next("output-file")); }, 0, valueText, "100000 times b"},
        {"LastValue", Failure::lastValue, parsed,
         [](Subject& s) { return keep(s, getLastValue(s.result, "output-file")); }, 0, valueText,
         "100000 times c"},
        {"FirstPlainArgument", Failure::throws, parsed,
         [](Subject& s) { return s.result->getFirstArgument(&s.text); }, 0, shownText, "100000 times d"},
        {"NextPlainArgument", Failure::throws,
         [](Subject& s) {
             parsed(s);
             s.result->getFirstArgument(&s.text);
         },
         [](Subject& s) { return s.result->getNextArgument(&s.text); }, 0, shownText, "100000 times e"},
        {"ErrorText", Failure::throws,
         [](Subject& s) {
             open(s, flagRejectUnknown);
             parse(s, std::vector<std::string>{large('u')});
         },
         [](Subject& s) {
             s.text = s.parser->getErrorDesc();
             return 0;
         },
         0, [](Subject& s) { return show(s.text + std::string_view("Unknown option: ").size()); },
         "100000 times u"},
    };
}

std::vector<Scenario> helpScenarios() {
    return {
        {"Help", Failure::help, withoutActions,
         [](Subject& s) { return keepHelp(s, s.parser->getDescription(false)); }, 0, helpText,
         "io\n Input and output of files\n\n"
         "-o, -output-file=<string>     Where the output goes.\n\n"
         "-level=1 | 2 (2)              How much.\n\n"},
        {"HelpOfHiddenOptions", Failure::help, withoutActions,
         [](Subject& s) { return keepHelp(s, s.parser->getDescription(true)); }, 0, helpText,
         "tarv_hidden\n"
         "-debug-of-the-parser (default) | -no-debug-of-the-parser\n"
         "                              For us.\n\n"},
        {"HelpOfActions", Failure::throws, withActions,
         [](Subject& s) { return keepHelp(s, s.parser->getDescription(false)); }, 0, helpText,
         "    build-the-whole-project\n    test\n"},
        {"HelpOfOneOption", Failure::help, withoutActions,
         [](Subject& s) { return keepHelp(s, s.parser->getDescription("level")); }, 0, helpText,
         "io\n Input and output of files\n\n\n-level=1 | 2 (2)              How much.\n\n"},
        {"HelpOfUnknownTopic", Failure::help, withoutActions,
         [](Subject& s) { return keepHelp(s, s.parser->getDescription("a topic of nobody")); }, 0, helpText,
         "Help for a topic of nobody not available.Please use one of the following topics:\n"
         "io\n Input and output of files\n\n"
         "-o, -output-file=<string>     Where the output goes.\n\n"
         "-level=1 | 2 (2)              How much.\n\n"},
        {"HelpOfActionModifiers", Failure::help, withActions,
         [](Subject& s) { return keepHelp(s, s.parser->getActionModifiersDescription("build")); }, 0,
         helpText, "-jobs=<integer>               How many at a time.\n\n"},
        {"HelpOfGlobalModifiers", Failure::help, withActions,
         [](Subject& s) { return keepHelp(s, s.parser->getGlobalModifiersDescription()); }, 0, helpText,
         "-verbose | -no-verbose        Says more.\n\n"},
    };
}
