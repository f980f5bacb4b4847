#include <string>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "support/TemporaryDirectory.h"
#include "support/TypedLine.h"

namespace {

namespace tarv = tarv_3_3::typed;

enum class Paper { a4, letter };

/// What a program answers a shell that asks for the last of these words.
std::string ask(tarv::Program& program, const char* request, const std::vector<std::string>& question) {
    std::string input;
    for (const std::string& word : question) {
        input.append(word).append(1, '\0');
    }
    const TemporaryDirectory directory;
    const int file = open(directory.write("question", input).c_str(), O_RDONLY);
    const int kept = dup(STDIN_FILENO);
    dup2(file, STDIN_FILENO);
    std::clearerr(stdin);
    const std::string answer = parseLine(program, {request});
    dup2(kept, STDIN_FILENO);
    close(kept);
    close(file);
    return answer;
}

TEST(TypedRequests, AShellIsAnsweredWithVerbsAndTheirDescriptions) {
    tarv::Program program("vcs");
    program.verb("log", "Show the history.");
    program.verb("list", "List it.");
    EXPECT_EQ(ask(program, "tarvoption=complete=zsh", {"vcs", "l"}),
              "0 tarv-complete 1 none\n\n\n\nlog\tShow the history.\nlist\tList it.\n");
}

TEST(TypedRequests, BehindHelpVerbsAloneAreOffered) {
    tarv::Program program("vcs");
    tarv::Command& log = program.verb("log", "Show the history.");
    log.positional<std::string>("file", "").oneOf("a", "b");
    log.flag("graph", "Draw.");
    program.verb("remote", "Others.").verb("add", "One more.");
    const struct {
        std::vector<std::string> words;
        const char* answer;
    } rows[] = {{{"vcs", "help", "l"}, "0 tarv-complete 1 none\n\n\nlog\nlog\tShow the history.\n"},
                {{"vcs", "help", "remote", "a"}, "0 tarv-complete 1 none\n\n\nadd\nadd\tOne more.\n"},
                {{"vcs", "help", "log", "a"}, "0 tarv-complete 1 none\n\n\n\n"},
                {{"vcs", "help", "log", "--g"}, "0 tarv-complete 1 none\n\n\n--graph\n--graph\tDraw.\n"},
                {{"vcs", "log", ""}, "0 tarv-complete 1 none\n\n\n\na\t\nb\t\n"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.words.back() + " behind " + row.words[1]);
        EXPECT_EQ(ask(program, "tarvoption=complete=zsh", row.words), row.answer);
    }
}

TEST(TypedRequests, TheLastCompleterCounts) {
    tarv::Program program("p");
    const auto word = program.option<std::string>("word", "");
    word.completeWith([](const char*, tarv::Candidates& candidates) { candidates.add("first"); });
    word.completeWith([](const char*, tarv::Candidates& candidates) { candidates.add("second"); });
    EXPECT_EQ(ask(program, "tarvoption=complete=zsh", {"p", "--word="}),
              "0 tarv-complete 1 none\n\n\n--word=second\n--word=second\t\n");
}

TEST(TypedRequests, TheHostCompletesItsOwnValues) {
    tarv::Program program("vcs");
    std::string asked;
    program.option<std::vector<std::string>>("branch", "")
        .completeWith([&](const char* word, tarv::Candidates& candidates) {
            asked = word;
            candidates.add("main", "The main one.");
            candidates.add("maintenance");
            candidates.add("other");
        });
    EXPECT_EQ(ask(program, "tarvoption=complete=fish", {"vcs", "--branch=x,m"}),
              "0 tarv-complete 1 none\n\n\n--branch=x,main\n--branch=x,main\tThe main one.\n"
              "--branch=x,maintenance\t\n");
    EXPECT_EQ(asked, "m");
    asked = "nothing";
    EXPECT_EQ(ask(program, "tarvoption=complete=fish", {"vcs", "--bra"}),
              "0 tarv-complete 1 none\n\n\n--branch=\n--branch=\t\n");
    EXPECT_EQ(asked, "nothing");
}

TEST(TypedRequests, TheHostDescribesNumbersThatAnOptionTakes) {
    tarv::Program program("p");
    program.option<int>("bits", "")
        .oneOf(8, 16, 32)
        .completeWith([](const char*, tarv::Candidates& candidates) {
            candidates.add("16", "The usual.");
            candidates.add("64", "Refused.");
        });
    EXPECT_EQ(ask(program, "tarvoption=complete=zsh", {"p", "--bits="}),
              "0 tarv-complete 1 none\n\n\n\n--bits=16\tThe usual.\n--bits=8\t\n"
              "--bits=32\t\n");
    EXPECT_EQ(ask(program, "tarvoption=complete=zsh", {"p", "--bits=1"}),
              "0 tarv-complete 1 none\n\n\n--bits=16\n--bits=16\tThe usual.\n");
}

TEST(TypedRequests, TheDescriptionHoldsTheNumbersThatAnOptionTakes) {
    tarv::Program program("p");
    program.option("bits", "Bits.", 8).oneOf(8, 16);
    program.option<double>("real", "").oneOf(0.5, 1);
    EXPECT_EQ(parseLine(program, {"tarvoption=describe"}),
              R"(0 {"format": "tarv-description", "version": "1.1",
"program": {"name": "p"},
"mends": ["negativeNumbers", "loneDash", "emptyValues", "emptyPositionals", "repeatedLetters"],
"flags": ["rejectUnknown", "plainArePositional", "dashIsNotPositional"],
"topics": [
{"name": ""}],
"declarations": [
{"role": "option", "kind": "int32", "names": ["bits"], "text": "Bits.", "allowed": ["8", "16"], "default": "8"},
{"role": "option", "kind": "double", "names": ["real"], "allowed": ["0.5", "1"]}],
"rules": [],
"checks": []}
)");
    EXPECT_EQ(parseLine(program, {"--help"}), "0 Usage: p [OPTION]...\n\nOptions:\n"
                                              "      --bits=NUMBER  Bits. (one of 8, 16; default: 8)\n"
                                              "      --real=NUMBER  (one of 0.5, 1)\n"
                                              "  -h, --help         Show this help.\n");
}

TEST(TypedRequests, ACompleterMayAddNull) {
    tarv::Program program("p");
    program.option<std::string>("word", "").completeWith([](const char*, tarv::Candidates& candidates) {
        candidates.add(nullptr, "No value.");
        candidates.add("one", nullptr);
        candidates.add("other", "The other one.");
    });
    EXPECT_EQ(ask(program, "tarvoption=complete=zsh", {"p", "--word="}),
              "0 tarv-complete 1 none\n\n\n--word=o\n--word=one\t\n--word=other\tThe other one.\n");
}

TEST(TypedRequests, NamesOfTheHostAreOfferedOnce) {
    tarv::Program program("p", "1.0");
    program.flag("help", "Helps.");
    program.flag("version", "Tells.");
    program.verb("help", "Helps more.");
    EXPECT_EQ(ask(program, "tarvoption=complete=zsh", {"p", "--"}),
              "0 tarv-complete 1 none\n\n\n\n--help\tHelps.\n--version\tTells.\n");
    EXPECT_EQ(ask(program, "tarvoption=complete=zsh", {"p", "h"}),
              "0 tarv-complete 1 none\n\n\nhelp\nhelp\tHelps more.\n");
}

TEST(TypedRequests, ACutQuestionHasNoAnswer) {
    tarv::Program program("vcs");
    EXPECT_EQ(ask(program, "tarvoption=complete=bash", {}), "0 ");
    EXPECT_EQ(ask(program, "tarvoption=complete=ksh", {"vcs", ""}), "0 ");
}

TEST(TypedRequests, ScriptsAreThoseOfTheProgramAsItWasStarted) {
    tarv::Program program("vcs");
    const char* const argv[] = {"/usr/bin/vcs", "tarvoption=completion=bash"};
    const std::string script = said(program.parse(2, argv));
    EXPECT_EQ(script.find("0 # Completion of vcs for bash"), 0U);
    const char* const unnamed[] = {"a b", "tarvoption=completion=bash"};
    EXPECT_EQ(said(program.parse(2, unnamed)),
              "0 There are completion scripts for bash, zsh and fish, and for programs whose names have only "
              "letters, digits, '_', '.', '+' and '-'.\n");
}

TEST(TypedRequests, TheDescriptionHoldsWhatABoundVariableHeld) {
    int level = 3;
    bool color = true;
    std::vector<std::string> files = {"-", "a"};
    tarv::Program program("p");
    program.bind("level", level, "");
    program.bind("color", color, "");
    program.bind("required", level, "").required();
    program.bindPositional("file", files, "");
    EXPECT_EQ(parseLine(program, {"tarvoption=describe"}),
              R"(0 {"format": "tarv-description", "version": "1.1",
"program": {"name": "p"},
"mends": ["negativeNumbers", "loneDash", "emptyValues", "emptyPositionals", "repeatedLetters"],
"flags": ["rejectUnknown", "plainArePositional", "dashIsNotPositional"],
"topics": [
{"name": ""}],
"declarations": [
{"role": "option", "kind": "int32", "names": ["level"], "default": "3"},
{"role": "option", "kind": "switch", "names": ["color"], "default": "1", "negatable": true},
{"role": "option", "kind": "int32", "names": ["required"], "notes": {"required": "1"}},
{"role": "option", "kind": "string", "names": ["file"], "default": "- a", "positional": "filled", "count": {"least": 0}}],
"rules": [
{"kind": "required", "names": ["required"]}],
"checks": []}
)");
}

TEST(TypedRequests, TheDescriptionHoldsAllThatDecides) {
    tarv::Program program("vcs", "1.0", "Tracks versions.");
    const auto user = program.option<std::string>("user,u", "Who.").env("VCS_USER").mayBeEmpty();
    program.settingsFile("/etc/vcs.conf");
    program.settingsOption("config", "Settings.");
    tarv::Command& print = program.verb("print,p", "Prints.");
    const auto copies = print.option<signed char>("copies", "How many.", 1).topic("Paper");
    print.option<Paper>("paper", "Which.").required();
    print.option<std::vector<int>>("page", "").range(1, 99).check("even", [](int) { return true; });
    print.option<tarv::Size>("limit", "").range(1, 1024).needs(user).deprecated("less");
    const auto color = print.option("color", "", true).hidden();
    print.atMostOne(copies, color);
    print.positional<std::vector<std::string>>("file", "Files.").times(1, 3);
    program.verb("run", "").rest<std::vector<std::string>>("command", "");
    EXPECT_EQ(parseLine(program, {"tarvoption=describe"}),
              R"(0 {"format": "tarv-description", "version": "1.1",
"program": {"name": "vcs", "version": "1.0", "text": "Tracks versions."},
"mends": ["negativeNumbers", "loneDash", "emptyValues", "emptyPositionals", "repeatedLetters"],
"settings": [{"file": "/etc/vcs.conf"}, {"option": "config"}],
"flags": ["rejectUnknown", "plainArePositional", "dashIsNotPositional"],
"topics": [
{"name": ""}],
"declarations": [
{"role": "option", "kind": "string", "names": ["user", "u"], "text": "Who.", "notes": {"environment": "VCS_USER", "typed.mayBeEmpty": "1"}},
{"role": "option", "kind": "string", "names": ["config"], "text": "Settings.", "notes": {"complete": "file", "value": "FILE"}}],
"rules": [],
"checks": [],
"verbRequired": true,
"verbs": [
{"names": ["print", "p"], "text": "Prints.",
"flags": ["rejectUnknown", "plainArePositional", "dashIsNotPositional"],
"topics": [
{"name": "Paper", "title": "Paper"},
{"name": ""}],
"declarations": [
{"role": "option", "kind": "int32", "names": ["copies"], "text": "How many.", "topic": "Paper", "default": "1", "notes": {"range": "-128..127"}},
{"role": "option", "kind": "string", "names": ["paper"], "text": "Which.", "allowed": ["a4", "letter"], "notes": {"required": "1"}},
{"role": "option", "kind": "int32", "names": ["page"], "separator": ",", "notes": {"range": "1..99"}, "checks": [{"opaque": true, "by": "host", "text": "must be even"}]},
{"role": "option", "kind": "string", "names": ["limit"], "notes": {"deprecated": "less"}, "checks": [{"opaque": true, "by": "type", "text": "must be a number of bytes, such as 4096 or 4MiB, from 1 to 1KiB"}]},
{"role": "option", "kind": "switch", "names": ["color"], "default": "1", "negatable": true, "hidden": true},
{"role": "option", "kind": "string", "names": ["file"], "text": "Files.", "positional": "filled", "count": {"least": 1, "most": 3}}],
"rules": [
{"kind": "required", "names": ["paper"]},
{"kind": "needs", "names": ["limit", "user"]},
{"kind": "atMostOne", "names": ["copies", "color"]}],
"checks": []},
{"names": ["run"],
"flags": ["rejectUnknown", "plainArePositional", "dashIsNotPositional", "positionalTakesRest"],
"topics": [
{"name": ""}],
"declarations": [
{"role": "option", "kind": "string", "names": ["command"], "positional": "filled", "count": {"least": 0}}],
"rules": [],
"checks": []}]}
)");
}

TEST(TypedRequests, TheDescriptionSaysWhichCommandsDoWithoutAVerb) {
    tarv::Program program("vcs", "", "");
    program.does([] {});
    program.verb("remote", "").verb("add", "").does([] {});
    EXPECT_EQ(parseLine(program, {"tarvoption=describe"}),
              R"(0 {"format": "tarv-description", "version": "1.1",
"program": {"name": "vcs"},
"mends": ["negativeNumbers", "loneDash", "emptyValues", "emptyPositionals", "repeatedLetters"],
"flags": ["rejectUnknown", "plainArePositional", "dashIsNotPositional"],
"topics": [],
"declarations": [],
"rules": [],
"checks": [],
"verbRequired": false,
"verbs": [
{"names": ["remote"],
"flags": ["rejectUnknown", "plainArePositional", "dashIsNotPositional"],
"topics": [],
"declarations": [],
"rules": [],
"checks": [],
"verbRequired": true,
"verbs": [
{"names": ["add"],
"flags": ["rejectUnknown", "plainArePositional", "dashIsNotPositional"],
"topics": [],
"declarations": [],
"rules": [],
"checks": []}]}]}
)");
}

} // namespace
