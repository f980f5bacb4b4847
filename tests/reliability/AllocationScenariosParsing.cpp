#include <iostream>

#include "reliability/AllocationScenario.h"

using namespace tarv_3_3;

namespace {

/// Options of every kind, long enough in their names for a text of its own.
void declareTool(Subject& session, int flags = 0) {
    open(session, flags);
    IParser& parser = *session.parser;
    parser.option("verbose-output,v", "", vtBool);
    parser.option("signed-number", "", vtInt32);
    parser.option("unsigned-number", "", vtUInt32);
    parser.option("large-number", "", vtInt64);
    parser.option("hexadecimal-number", "", vtUInt64);
    parser.option("ratio-of-sizes", "", vtDouble);
    parser.option("output-file,o", "", vtString);
    parser.option("colour-scheme", "", vtString).allowValue("monochrome-and-plain").allowValue("full");
    parser.option("quiet", "", vtNull);
    parser.option("input-files", "", vtString).positional();
}

void tool(Subject& session) {
    declareTool(session);
}

void strictTool(Subject& session) {
    declareTool(session, flagRejectUnknown | flagDashIsNotPositional);
}

void greedyTool(Subject& session) {
    declareTool(session, flagPositionalTakesRest);
}

void toolWithPlainPositionals(Subject& session) {
    declareTool(session, flagPlainArePositional);
}

void defaults(Subject& session) {
    open(session);
    session.parser->option("level-of-detail,level,l", "", vtInt32).defaultValue(3);
    session.parser->option("output-file", "", vtString).defaultValue("a default of some length");
}

void twins(Subject& session) {
    open(session);
    session.parser->option("version", "", vtString);
    session.parser->option("verbose", "", vtString);
}

void shades(Subject& session) {
    open(session);
    session.parser->option("shade", "", vtString).allowValue("light-blue-as-the-sky").allowValue("lime");
}

void verbs(Subject& session) {
    open(session);
    session.parser->action("build-the-project,build", "", vtNull);
    session.parser->action("test-the-project,test", "", vtNull);
    session.parser->modifier("number-of-jobs", "build", "", vtInt32);
    session.parser->modifier("name-of-the-test", "test", "", vtString);
}

void files(Subject& session) {
    declareTool(session);
    session.parser->addOptionFileOption("");
}

std::string error(Subject& session) {
    return session.parser->getErrorDesc();
}

std::string everything(Subject& session) {
    return stored(session, {"verbose-output", "v", "signed-number", "unsigned-number", "large-number",
                            "hexadecimal-number", "ratio-of-sizes", "output-file", "colour-scheme", "quiet",
                            "input-files", "level-of-detail", "l", "number-of-jobs", "build"});
}

/// Standard output that swallows what it is given, without memory.
struct Sink : std::streambuf {
    int overflow(int character) override {
        lines += character == '\n' ? 1 : 0;
        return character;
    }

    int lines = 0;
};

int parseTraced(Subject& session) {
    static Sink sink;
    std::streambuf* const output = std::cout.rdbuf(&sink);
    const int status =
        parse(session, {"tarvoption=tarvlogenable=1", "--output-file=a longer file name", "x"});
    std::cout.rdbuf(output);
    return status;
}

Scenario good(const char* name, void (*prepare)(Subject&), int (*act)(Subject&), const char* expected) {
    return {name, Failure::parse, prepare, act, parseOk, everything, expected};
}

Scenario bad(const char* name, void (*prepare)(Subject&), int (*act)(Subject&), int status,
             const char* expected) {
    return {name, Failure::parse, prepare, act, status, error, expected};
}

std::vector<Scenario> goodCommandLines() {
    return {
        good(
            "TextValue", tool,
            [](Subject& s) {
                return parse(s, {"--output-file", "a longer file name"});
            },
            "output-file=a longer file name"),
        good(
            "NumbersAsUsual", tool,
            [](Subject& s) {
                return parse(s, {"--signed-number=-5", "--unsigned-number=5", "--large-number=5000000000",
                                 "--ratio-of-sizes=1.5"});
            },
            "signed-number=-5 unsigned-number=5 large-number=5000000000 ratio-of-sizes=1.5"),
        good(
            "NumbersInUnusualForms", tool,
            [](Subject& s) {
                return parse(s, {"--signed-number=+5", "--unsigned-number=+5", "--large-number=+5",
                                 "--ratio-of-sizes=+1.5"});
            },
            "signed-number=+5 unsigned-number=+5 large-number=+5 ratio-of-sizes=+1.5"),
        good(
            "HexadecimalNumber", tool, [](Subject& s) { return parse(s, {"--hexadecimal-number=0x1F"}); },
            "hexadecimal-number=0x1F"),
        good(
            "Switches", tool,
            [](Subject& s) {
                return parse(s, {"--verbose-output", "--no-verbose-o"});
            },
            "verbose-output=1,0 v=1,0"),
        good(
            "OptionWithoutValue", tool,
            [](Subject& s) {
                return parse(s, {"--quiet", "--quiet"});
            },
            "quiet"),
        good(
            "List", tool,
            [](Subject& s) { return parse(s, {"--output-file=the first of two names,the second of two"}); },
            "output-file=the first of two names,the second of two"),
        good(
            "AbbreviatedName", tool, [](Subject& s) { return parse(s, {"--o-f=x"}); }, "output-file=x"),
        good(
            "AbbreviatedValue", tool, [](Subject& s) { return parse(s, {"--colour-scheme=mono"}); },
            "colour-scheme=monochrome-and-plain"),
        good(
            "Positional", tool,
            [](Subject& s) {
                return parse(s, {"a first longer name", "second"});
            },
            "input-files=a first longer name,second"),
        good(
            "PositionalTakesRest", greedyTool,
            [](Subject& s) {
                return parse(s, {"first", "--verbose-output", "--"});
            },
            "input-files=first,--verbose-output,--"),
        good(
            "PlainArguments", tool,
            [](Subject& s) {
                return parse(s, {"--", "a plain argument of some length", "-v"});
            },
            " -- a plain argument of some length -v"),
        good(
            "PlainArgumentsArePositional", toolWithPlainPositionals,
            [](Subject& s) {
                return parse(s, {"--", "a plain argument of some length"});
            },
            "input-files=a plain argument of some length -- a plain argument of some length"),
        good(
            "UnknownIsDropped", verbs, [](Subject& s) { return parse(s, {"not an option of this tool"}); },
            ""),
        good(
            "Defaults", defaults, [](Subject& s) { return parse(s, {"--level-of-detail=5"}); },
            "output-file=a default of some length level-of-detail=5 l=5"),
        good(
            "ActionWithModifier", verbs,
            [](Subject& s) {
                return parse(s, {"--build-the-p", "--number-of-jobs=8"});
            },
            "number-of-jobs=8 build"),
        good(
            "RepeatedOptionWithSynonyms", tool,
            [](Subject& s) {
                return parse(s, {"-v", "--no-v", "-v", "-v", "-v", "-o=x", "-o=y", "-o=z"});
            },
            "verbose-output=1,0,1,1,1 v=1,0,1,1,1 output-file=x,y,z"),
        good(
            "Stream", tool,
            [](Subject& s) {
                return s.parser->parseStream("# comment\n  --output-file=a longer name\r\n--quiet\n",
                                             s.result);
            },
            "output-file=a longer name quiet"),
        good(
            "OptionFile", files,
            [](Subject& s) { return parse(s, {"--option-file=reliability/data/options.txt"}); },
            "output-file=from the option file -- a plain argument here"),
        good(
            "OptionFileNamedInAnother", files,
            [](Subject& s) { return parse(s, {"--option-file=reliability/data/outer.txt"}); },
            "signed-number=7 output-file=from the option file -- a plain argument here"),
        good("Trace", tool, parseTraced, "output-file=a longer file name input-files=x"),
    };
}

std::vector<Scenario> badCommandLines() {
    return {
        bad(
            "ValueDoesNotConvert", tool, [](Subject& s) { return parse(s, {"--signed-number=5x"}); },
            parseFailed,
            "Value validation problem in argument '--signed-number=5x': Option 'signed-number' can not parse "
            "'5x' value, requires a type 'integer' here."),
        bad(
            "ValueNotAllowed", tool, [](Subject& s) { return parse(s, {"--colour-scheme=blue"}); },
            parseFailed,
            "Value validation problem in argument '--colour-scheme=blue': Option 'colour-scheme' does not "
            "allow value 'blue'. Possible values follows: 'monochrome-and-plain', 'full'"),
        bad(
            "ValueIsAmbiguous", shades, [](Subject& s) { return parse(s, {"--shade=li"}); }, parseFailed,
            "Value validation problem in argument '--shade=li': Ambiguous value for option 'shade'. Possible "
            "values follows: 'light-blue-as-the-sky', 'lime'"),
        bad(
            "TakesNoValue", tool, [](Subject& s) { return parse(s, {"--quiet=as a mouse in the house"}); },
            parseFailed,
            "Option 'quiet'does not requires a value in argument: '--quiet=as a mouse in the house'"),
        bad(
            "SwitchTakesNoValue", tool, [](Subject& s) { return parse(s, {"--verbose-output=as a brook"}); },
            parseFailed,
            "Option 'verbose-output' is boolean and should be declared in form '--option' or '--no-option' "
            "in argument: '--verbose-output=as a brook'"),
        bad(
            "Ambiguity", twins, [](Subject& s) { return parse(s, {"--ver"}); }, parseFailed,
            "Ambiguous option 'ver' in argument: '--ver', could be: 'version', 'verbose'"),
        bad(
            "UnknownIsRejected", strictTool, [](Subject& s) { return parse(s, {"--not-an-option"}); },
            parseFailed, "Unknown option: --not-an-option"),
        bad(
            "TwoActions", verbs,
            [](Subject& s) {
                return parse(s, {"--build", "--test"});
            },
            parseFailed,
            "Action '-test-the-project' and action '-build-the-project' were defined, but only one action "
            "possible."),
        bad(
            "ModifierOfAnotherAction", verbs,
            [](Subject& s) {
                return parse(s, {"--build", "--name-of-the-test=x"});
            },
            parseFailed, "Action '-build-the-project' doesn't accept option '-name-of-the-test'"),
        bad(
            "NoAction", verbs, [](Subject& s) { return parse(s, {"--number-of-jobs=8"}); }, parseFailed,
            "No action defined."),
        bad(
            "MissingOptionFile", files,
            [](Subject& s) { return parse(s, {"--option-file=a file that is not there"}); },
            parseFileUnreadable, "Error reading option file 'a file that is not there'"),
    };
}

} // namespace

std::vector<Scenario> parseScenarios() {
    std::vector<Scenario> all = goodCommandLines();
    const std::vector<Scenario> rest = badCommandLines();
    all.insert(all.end(), rest.begin(), rest.end());
    return all;
}

std::vector<Scenario> handlerScenarios() {
    return {
        {"Handler", Failure::parse,
         [](Subject& s) {
             declareTool(s);
             s.parser->addHandler(&s.counting);
         },
         [](Subject& s) {
             s.counting.options = s.counting.values = s.counting.unknown = 0;
             return parse(s, {"--output-file=one,two", "--quiet"});
         },
         parseOk,
         [](Subject& s) {
             return std::to_string(s.counting.options) + " options, " + std::to_string(s.counting.values) +
                    " values";
         },
         "2 options, 2 values"},
        {"HandlerThatNeedsMemory", Failure::parse,
         [](Subject& s) {
             declareTool(s);
             s.parser->addHandler(&s.remembering);
         },
         [](Subject& s) {
             s.remembering.names.clear();
             return parse(s, {"--output-file=one,two", "--quiet"});
         },
         parseOk,
         [](Subject& s) {
             std::string names;
             for (const std::string& name : s.remembering.names) {
                 names += name + ";";
             }
             return names;
         },
         "output-file;quiet;"},
        {"Veto", Failure::parse,
         [](Subject& s) {
             declareTool(s);
             s.counting.refused = "two";
             s.parser->addHandler(&s.counting);
         },
         [](Subject& s) { return parse(s, {"--output-file=one,two"}); }, parseVetoed, error,
         "Value 'one,two' is not valid for option 'output-file' in argument '--output-file=one,two'"},
        {"HandlerThatDeclaresIntoAFullTable", Failure::parse,
         [](Subject& s) {
             open(s);
             // As many as the first table takes.
             for (int i = 1; i <= 32; ++i) {
                 s.parser->option(("option" + std::to_string(i)).c_str(), "", vtString);
             }
             s.declaring.parser = s.parser;
             s.parser->addHandler(&s.declaring);
         },
         [](Subject& s) { return parse(s, {"--option32=x"}); }, parseOk,
         [](Subject& s) {
             return parseAndShow(s, {"--option1=y", "--a-name-behind-the-last=z"},
                                 {"option1", "a-name-behind-the-last"});
         },
         "0 option1=y a-name-behind-the-last=z"},
        {"HandlerOfUnknownArguments", Failure::parse,
         [](Subject& s) {
             verbs(s);
             s.parser->addHandler(&s.counting);
         },
         [](Subject& s) {
             s.counting.unknown = 0;
             return parse(s, {"not an option of this tool", "nor this one"});
         },
         parseOk, [](Subject& s) { return std::to_string(s.counting.unknown); }, "2"},
    };
}
