#include "reliability/AllocationScenario.h"
#include "tarv_3_3/internal/log.h"

using namespace tarv_3_3;

namespace {

void nothing(Subject&) {}

int make(Subject& session, int flags) {
    return createParser(&session.parser, flags);
}

std::string declares(Subject& session) {
    session.parser->option("level,l", "", vtInt32).defaultValue(3);
    session.parser->createResult(&session.result);
    return parseAndShow(session, {}, {"level", "l"});
}

void openOnly(Subject& session) {
    open(session);
}

void declareLevel(Subject& session) {
    open(session);
    session.declaration = &session.parser->option("level", "How much to print, in as many words.", vtString);
}

void declareBuild(Subject& session) {
    open(session);
    session.parser->action("build", "", vtNull);
    session.declaration = &session.parser->option("jobs", "", vtInt32);
}

std::string help(Subject& session) {
    return session.parser->getDescription(false);
}

std::string levelLow(Subject& session) {
    return parseAndShow(session, {"--level=lo"}, {"level", "volume-of-the-output"});
}

std::string growthKeepsTheFirst(Subject& session) {
    return levelLow(session) + (session.parser->isOptionDeclared("a-name-behind-the-last", false, nullptr)
                                    ? " and the last"
                                    : "");
}

// As many as the first table takes.
void fillTheTable(Subject& session) {
    declareLevel(session);
    for (int i = 1; i < 32; ++i) {
        session.parser->option(("option" + std::to_string(i)).c_str(), "", vtString);
    }
}

// The registry needs memory to learn it.
void declareLongSynonym(Subject& session) {
    declareLevel(session);
    session.declaration->synonym(std::string(5000, 'x').c_str());
}

CountingHandler sharedHandler;

std::string discards(Subject&) {
    // A parse before this one may have switched the trace on, for the whole process.
    internal::tarvLogEnabled = false;
    std::ostream& log = internal::tarvLog();
    log << "a line" << std::endl;
    return log ? "takes" : "discards";
}

} // namespace

std::vector<Scenario> declarationScenarios() {
    return {
        {"CreateParser", Failure::creation, nothing, [](Subject& s) { return make(s, 0); }, 0, declares,
         "0 level=3 l=3"},
        {"CreateParserWithEveryFlag", Failure::creation, nothing, [](Subject& s) { return make(s, 0x3e); }, 0,
         declares, "0 level=3 l=3"},
        {"CreateResult", Failure::throws, [](Subject& s) { createParser(&s.parser); },
         [](Subject& s) { return s.parser->createResult(&s.result); }, 0,
         [](Subject& s) { return std::to_string(parse(s, {"--"})); }, "0"},
        {"AddHandler", Failure::throws, openOnly,
         [](Subject& s) {
             s.parser->removeHandler(&sharedHandler);
             return s.parser->addHandler(&sharedHandler) ? 0 : 1;
         },
         0, [](Subject& s) { return std::string(s.parser->addHandler(&sharedHandler) ? "new" : "known"); },
         "known"},
        {"Option", Failure::throws, openOnly,
         [](Subject& s) {
             return s.parser
                 ->option("a-long-option-name,another-long-name,x", "A description that is long enough.",
                          vtInt32, "a-long-topic-name:A title of some length")
                 .m_status;
         },
         0, help,
         "a-long-topic-name\n A title of some length\n\n"
         "-x, -another-long-name, -a-long-option-name=<integer>\n"
         "                              A description that is long enough.\n\n"},
        {"Action", Failure::throws, openOnly,
         [](Subject& s) { return s.parser->action("make-everything-anew,make", "", vtNull).m_status; }, 0,
         help, "    make-everything-anew\n"},
        {"Modifier", Failure::throws, declareBuild,
         [](Subject& s) {
             return s.parser->modifier("the-number-of-jobs", "build,another-action-name", "", vtInt32)
                 .m_status;
         },
         0,
         [](Subject& s) {
             return parseAndShow(s, {"--build", "--the-number-of-jobs=4"}, {"build", "the-number-of-jobs"});
         },
         "0 build the-number-of-jobs=4"},
        {"Synonym", Failure::throws, declareLevel,
         [](Subject& s) { return s.declaration->synonym("volume-of-the-output").m_status; }, 0, levelLow,
         "0 level=lo volume-of-the-output=lo"},
        {"AllowedText", Failure::throws, declareLevel,
         [](Subject& s) { return s.declaration->allowValue("low-as-it-can-be").m_status; }, 0, levelLow,
         "0 level=low-as-it-can-be"},
        {"DefaultText", Failure::throws, declareLevel,
         [](Subject& s) { return s.declaration->defaultValue("a default of some length").m_status; }, 0,
         [](Subject& s) { return parseAndShow(s, {}, {"level"}); }, "0 level=a default of some length"},
        {"Tag", Failure::throws, declareBuild,
         [](Subject& s) { return s.declaration->tag("build,a-tag-of-some-length,and-another").m_status; }, 0,
         [](Subject& s) {
             return parseAndShow(s, {"--build", "--jobs=4"}, {"build", "jobs"});
         },
         "0 build jobs=4"},
        {"RefusedDeclaration", Failure::throws, declareLevel,
         [](Subject& s) { return s.parser->option("a-new-long-name,level", "", vtString).m_status; }, 1,
         levelLow, "0 level=lo"},
        {"OptionFileOption", Failure::throws, openOnly,
         [](Subject& s) {
             const bool isNew = !s.parser->isOptionDeclared("option-file", false, nullptr);
             return isNew && s.parser->addOptionFileOption("Reads more arguments.") ? 0 : 1;
         },
         0, help, "-option-file=<string>         Reads more arguments.\n\n"},
        {"DeclarationBehindALongSynonym", Failure::throws, declareLongSynonym,
         [](Subject& s) { return s.parser->option("another-name", "", vtString).m_status; }, 0,
         [](Subject& s) { return parseAndShow(s, {"--level=lo"}, {"level"}); }, "0 level=lo"},
        {"DeclarationThatMovesTheTable", Failure::throws, fillTheTable,
         [](Subject& s) { return s.parser->option("a-name-behind-the-last", "", vtString).m_status; }, 0,
         growthKeepsTheFirst, "0 level=lo and the last"},
        {"TextVariant", Failure::throws, nothing,
         [](Subject& s) {
             s.value.value = variant_t("a text");
             return 0;
         },
         0, [](Subject& s) { return std::string(s.value.value.get<const char*>()); }, "a text"},
        {"DiscardingLog", Failure::throws, nothing,
         [](Subject&) {
             internal::TarvLog log;
             log.discarding() << "a line" << std::endl;
             return log.discarding().fail() ? 0 : 1;
         },
         0, discards, "discards"},
    };
}
