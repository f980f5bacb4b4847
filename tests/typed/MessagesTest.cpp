#include <chrono>
#include <cstdlib>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/EnvironmentVariable.h"
#include "support/TemporaryDirectory.h"
#include "support/TypedLine.h"

/// Every message that a user can read, with the command line that brings it about.
namespace {

namespace tarv = tarv_3_3::typed;

using Texts = std::vector<std::string>;

enum class Paper { a4, letter, legal };

struct Point {
    int x;
};

bool fromText(const char* text, Point& point) {
    point.x = std::atoi(text);
    return *text == '+';
}

struct Span {
    int length;
};

/// Says what is wrong, but for a '?'.
bool fromText(const char* text, Span& span, const char*& must) {
    static std::string said;
    said = std::string("longer than ") + text;
    span.length = std::atoi(text);
    must = *text != '?' ? said.c_str() : nullptr;
    return *text == '+';
}

/// Not asked, since the other one says more.
[[maybe_unused]] bool fromText(const char*, Span&) {
    return true;
}

struct Row {
    std::vector<std::string> line;
    const char* said;
};

void expectSaid(tarv::Program& program, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        std::string shown;
        for (const std::string& argument : row.line) {
            shown += argument + "|";
        }
        SCOPED_TRACE(shown);
        EXPECT_EQ(parseLine(program, row.line), row.said);
    }
}

TEST(TypedMessages, OfNames) {
    tarv::Program program("p", "1.0");
    program.option<int>("max-count,m", "");
    program.option<int>("max-depth", "");
    program.flag("color", "");
    program.counter("v", "");
    program.option<std::string>("text", "");
    expectSaid(
        program,
        {{{"--zzz"}, "2 p: unknown option '--zzz'\nTry 'p --help'.\n"},
         {{"--zzz=3"}, "2 p: unknown option '--zzz'\nTry 'p --help'.\n"},
         {{"---x"}, "2 p: unknown option '---x'\nTry 'p --help'.\n"},
         {{"--x\x1b[m"}, "2 p: unknown option '--x\\x1b[m'\nTry 'p --help'.\n"},
         {{"--m-cuont=3"}, "2 p: unknown option '--m-cuont'\nDid you mean '--max-count'?\nTry 'p --help'.\n"},
         {{"--hlep"}, "2 p: unknown option '--hlep'\nDid you mean '--help'?\nTry 'p --help'.\n"},
         {{"--max-=3"},
          "2 p: ambiguous option '--max-', could be '--max-count' or '--max-depth'\nTry 'p --help'.\n"},
         {{"--max-count"}, "2 p: option '--max-count' needs a value\nTry 'p --help'.\n"},
         {{"-m", "--color"}, "2 p: option '-m' needs a value\nTry 'p --help'.\n"},
         {{"--color=yes"}, "2 p: --color=yes: option '--color' takes no value\nTry 'p --help'.\n"},
         {{"--no-color=1"}, "2 p: --no-color=1: option '--no-color' takes no value\nTry 'p --help'.\n"},
         {{"-v=2"}, "2 p: -v=2: option '-v' takes no value\nTry 'p --help'.\n"},
         {{"--help=3"}, "2 p: --help=3: option '--help' takes no value\nTry 'p --help'.\n"},
         {{"--version=3"}, "2 p: --version=3: option '--version' takes no value\nTry 'p --help'.\n"},
         {{"--text="}, "2 p: --text=: the value is empty\nTry 'p --help'.\n"},
         {{"--text", ""}, "2 p: --text '': the value is empty\nTry 'p --help'.\n"},
         {{"a\nb"}, "2 p: unexpected argument 'a\\x0ab'\nTry 'p --help'.\n"}});
    const EnvironmentVariable warn("TARV_ABBREVIATIONS", "warn");
    expectSaid(program, {{{"--max-c=3"}, "okp: '--max-c' is short for '--max-count'\n"}});
    const EnvironmentVariable error("TARV_ABBREVIATIONS", "error");
    expectSaid(program,
               {{{"--max-c=3"}, "2 p: '--max-c' must be written in full: '--max-count'\nTry 'p --help'.\n"}});
}

TEST(TypedMessages, OfLetters) {
    tarv::Program program("p");
    program.joinLetters();
    program.flag("n", "");
    program.option<int>("l", "");
    expectSaid(program, {{{"-nx"}, "2 p: unknown option '-x'\nTry 'p --help'.\n"},
                         {{"\u2013"}, "2 p: unknown option '\u2013'\nTry 'p --help'.\n"},
                         {{"-nl"}, "2 p: option '-l' needs a value\nTry 'p --help'.\n"},
                         {{"-nlx"}, "2 p: -nlx: must be a whole number\nTry 'p --help'.\n"}});
}

TEST(TypedMessages, OfVerbs) {
    tarv::Program program("p", "1.0");
    program.option<int>("max-count", "");
    tarv::Command& log = program.verb("log", "").does([] {});
    log.flag("max-depth", "");
    log.flag("max-count-of-all", "");
    program.verb("lock", "").does([] {});
    tarv::Command& remote = program.verb("remote", "");
    remote.verb("add", "").does([] {});
    expectSaid(
        program,
        {{{}, "2 p: a verb is missing\nTry 'p --help'.\n"},
         {{"remote"}, "2 p: a verb is missing\nTry 'p remote --help'.\n"},
         {{"remoet"}, "2 p: unknown verb 'remoet'\nDid you mean 'remote'?\nTry 'p --help'.\n"},
         {{"zzz"}, "2 p: unknown verb 'zzz'\nTry 'p --help'.\n"},
         {{"lo"}, "2 p: ambiguous verb 'lo', could be 'log' or 'lock'\nTry 'p --help'.\n"},
         {{"lo", "log"}, "2 p: ambiguous verb 'lo', could be 'log' or 'lock'\nTry 'p --help'.\n"},
         {{"zzz", "log"}, "2 p: unknown verb 'zzz'\nTry 'p --help'.\n"},
         {{"help", "remoet"}, "2 p: unknown verb 'remoet'\nDid you mean 'remote'?\nTry 'p --help'.\n"},
         {{"help", "z\033"}, "2 p: unknown verb 'z\\x1b'\nTry 'p --help'.\n"},
         {{"help", ""}, "2 p: unknown verb ''\nTry 'p --help'.\n"},
         {{"--max-=3", "log"},
          "2 p: ambiguous option '--max-', could be '--max-count' or '--max-depth'\nTry 'p log --help'.\n"},
         {{"log", "x"}, "2 p: unexpected argument 'x'\nTry 'p log --help'.\n"}});
    const EnvironmentVariable warn("TARV_ABBREVIATIONS", "warn");
    expectSaid(program, {{{"rem", "add"}, "okp: 'rem' is short for 'remote'\n"}});
    const EnvironmentVariable error("TARV_ABBREVIATIONS", "error");
    expectSaid(program, {{{"rem", "add"},
                          "2 p: 'rem' must be written in full: 'remote'\nTry 'p remote add --help'.\n"}});
}

TEST(TypedMessages, OfAnOptionThatBelongsBehindItsVerb) {
    tarv::Program program("p");
    program.flag("depth-first", "");
    program.verb("log", "").does([] {}).flag("depth-f", "");
    expectSaid(program, {{{"--depth-f", "log"},
                          "2 p: option '--depth-f' belongs behind 'log'\nTry 'p log --help'.\n"}});
}

TEST(TypedMessages, OfValues) {
    tarv::Program program("p");
    program.option<int>("int", "");
    program.option<signed char>("small", "");
    program.option<unsigned>("unsigned", "");
    program.option<int>("copies", "").range(1, 99);
    program.option<int>("bits", "").oneOf(8, 16);
    program.option<double>("real", "");
    program.option<float>("float", "");
    program.option<double>("gamma", "").range(0.5, 5);
    program.option<tarv::Size>("size", "");
    program.option<tarv::Size>("memory", "").range(1024, 4096);
    program.option<std::chrono::seconds>("wait", "");
    program.option<std::chrono::seconds>("pause", "").range(std::chrono::seconds(1), std::chrono::hours(1));
    program.option<std::chrono::duration<double>>("delay", "");
    program.option<char>("char", "");
    program.option<Paper>("paper", "");
    program.option<std::string>("word", "").oneOf("red");
    program.option<Point>("point", "");
    program.option<int>("even", "").check("even", [](int value) { return value % 2 == 0; });
    program.option<std::vector<int>>("list", "");
    program.option<std::vector<bool>>("switches", "");
    program.positional<int>("number", "").value("N");
    expectSaid(
        program,
        {{{"--int=x"}, "2 p: --int=x: must be a whole number\nTry 'p --help'.\n"},
         {{"--int", "x"}, "2 p: --int x: must be a whole number\nTry 'p --help'.\n"},
         {{"--int=9999999999"},
          "2 p: --int=9999999999: must be from -2147483648 to 2147483647\nTry 'p --help'.\n"},
         {{"--small=128"}, "2 p: --small=128: must be from -128 to 127\nTry 'p --help'.\n"},
         {{"--unsigned=-1"}, "2 p: --unsigned=-1: must be from 0 to 4294967295\nTry 'p --help'.\n"},
         {{"--copies=x"}, "2 p: --copies=x: must be a whole number from 1 to 99\nTry 'p --help'.\n"},
         {{"--copies=120"}, "2 p: --copies=120: must be from 1 to 99\nTry 'p --help'.\n"},
         {{"--bits=3"}, "2 p: --bits=3: must be one of 8 or 16\nTry 'p --help'.\n"},
         {{"--real=x"}, "2 p: --real=x: must be a number\nTry 'p --help'.\n"},
         {{"--real=1e999"}, "2 p: --real=1e999: is too large\nTry 'p --help'.\n"},
         {{"--float=1e99"}, "2 p: --float=1e99: is too large\nTry 'p --help'.\n"},
         {{"--gamma=x"}, "2 p: --gamma=x: must be a number from 0.5 to 5\nTry 'p --help'.\n"},
         {{"--gamma=6"}, "2 p: --gamma=6: must be from 0.5 to 5\nTry 'p --help'.\n"},
         {{"--size=x"}, "2 p: --size=x: must be a number of bytes, such as 4096 or 4MiB\nTry 'p --help'.\n"},
         {{"--memory=x"},
          "2 p: --memory=x: must be a number of bytes, such as 4096 or 4MiB, from 1KiB to 4KiB\nTry 'p "
          "--help'.\n"},
         {{"--memory=5k"}, "2 p: --memory=5k: must be from 1KiB to 4KiB\nTry 'p --help'.\n"},
         {{"--wait=3"}, "2 p: --wait=3: needs a unit: ns, us, ms, s, min, h or d\nTry 'p --help'.\n"},
         {{"--wait=x"}, "2 p: --wait=x: must be a duration, such as 1.5s or 3min\nTry 'p --help'.\n"},
         {{"--wait=1ms"}, "2 p: --wait=1ms: must be a multiple of 1s\nTry 'p --help'.\n"},
         {{"--pause=x"},
          "2 p: --pause=x: must be a duration, such as 1.5s or 3min, from 1s to 3600s\nTry 'p --help'.\n"},
         {{"--pause=2h"}, "2 p: --pause=2h: must be from 1s to 3600s\nTry 'p --help'.\n"},
         {{"--char=xy"}, "2 p: --char=xy: must be one character\nTry 'p --help'.\n"},
         {{"--paper=b5"}, "2 p: --paper=b5: must be one of a4, letter or legal\nTry 'p --help'.\n"},
         {{"--paper=le"}, "2 p: --paper=le: is ambiguous, could be letter or legal\nTry 'p --help'.\n"},
         {{"--word=blue"}, "2 p: --word=blue: must be red\nTry 'p --help'.\n"},
         {{"--point=3"}, "2 p: --point=3: is not valid\nTry 'p --help'.\n"},
         {{"--even=3"}, "2 p: --even=3: must be even\nTry 'p --help'.\n"},
         {{"--list=1,x"}, "2 p: --list=1,x: 'x' must be a whole number\nTry 'p --help'.\n"},
         {{"--list=,"}, "2 p: --list=,: the value is empty\nTry 'p --help'.\n"},
         {{"--switches=maybe"},
          "2 p: --switches=maybe: must be one of 1, true, yes, on, 0, false, no, off\nTry 'p --help'.\n"},
         {{"x"}, "2 p: N 'x': must be a whole number\nTry 'p --help'.\n"},
         {{"1", "2"}, "2 p: unexpected argument '2'\nTry 'p --help'.\n"}});
}

TEST(TypedMessages, OfValuesThatTheHostExplains) {
    tarv::Program program("p");
    const auto span = program.option<Span>("span", "");
    const auto perhaps = program.option<std::optional<Span>>("perhaps", "");
    const auto spans = program.option<std::vector<Span>>("spans", "").check("short", [](const Span& one) {
        return one.length < 9;
    });
    program.positional<Span>("from", "");
    expectSaid(program,
               {{{"--span=3"}, "2 p: --span=3: must be longer than 3\nTry 'p --help'.\n"},
                {{"--span=?"}, "2 p: --span=?: is not valid\nTry 'p --help'.\n"},
                {{"--perhaps=4"}, "2 p: --perhaps=4: must be longer than 4\nTry 'p --help'.\n"},
                {{"--spans=+1,5,6"}, "2 p: --spans=+1,5,6: '5' must be longer than 5\nTry 'p --help'.\n"},
                {{"--spans=+9"}, "2 p: --spans=+9: must be short\nTry 'p --help'.\n"},
                {{"7"}, "2 p: FROM '7': must be longer than 7\nTry 'p --help'.\n"},
                {{"--span=+3", "--perhaps=+4", "--spans=+5,+6"}, "ok"}});
    EXPECT_EQ(span->length, 3);
    EXPECT_EQ(perhaps->value_or(Span{0}).length, 4);
    EXPECT_EQ(spans->back().length, 6);
}

TEST(TypedMessages, OfArguments) {
    tarv::Program program("p");
    program.positional<Texts>("point", "").times(2);
    program.positional<std::string>("to", "").required();
    expectSaid(program, {{{}, "2 p: argument POINT is missing\nTry 'p --help'.\n"},
                         {{"a"}, "2 p: argument POINT is needed at least 2 times\nTry 'p --help'.\n"},
                         {{"a", "b"}, "2 p: argument TO is missing\nTry 'p --help'.\n"}});
}

TEST(TypedMessages, OfRules) {
    tarv::Program program("p");
    const auto user = program.option<std::string>("user", "");
    const auto key = program.option<std::string>("key,k", "").needs(user);
    const auto files = program.positional<Texts>("file", "");
    program.flag("all", "").needs(files);
    const auto dry = program.flag("dry", "");
    const auto brief = program.flag("brief", "");
    const auto whole = program.flag("whole", "");
    const auto to = program.positional<std::string>("to", "");
    program.option<int>("level", "").required();
    program.flag("old", "").deprecated("--new");
    program.flag("older", "").deprecated("");
    program.exactlyOne(brief, whole).atMostOne(dry, files).allOrNone(key, dry).allOrNone(dry, to);
    expectSaid(
        program,
        {{{"--brief"}, "2 p: option '--level' is required\nTry 'p --help'.\n"},
         {{"--level=1", "--key=x"}, "2 p: option '--key' needs option '--user'\nTry 'p --help'.\n"},
         {{"--level=1", "--all"}, "2 p: option '--all' needs argument FILE\nTry 'p --help'.\n"},
         {{"--level=1"}, "2 p: one of the options '--brief' or '--whole' is required\nTry 'p --help'.\n"},
         {{"--level=1", "--brief", "--whole"},
          "2 p: options '--brief' and '--whole' exclude each other\nTry 'p --help'.\n"},
         {{"--level=1", "--brief", "--dry", "a"},
          "2 p: '--dry' and FILE exclude each other\nTry 'p --help'.\n"},
         {{"--level=1", "--brief", "--dry"},
          "2 p: options '--key' and '--dry' go together, but '--key' is missing\nTry 'p --help'.\n"},
         {{"--level=1", "--brief", "--dry", "--key=x", "--user=y"},
          "2 p: '--dry' and TO go together, but TO is missing\nTry 'p --help'.\n"},
         {{"--level=1", "--brief", "--old"}, "okp: option '--old' is deprecated; use --new\n"},
         {{"--level=1", "--brief", "--older"}, "okp: option '--older' is deprecated\n"}});
}

TEST(TypedMessages, OfActions) {
    tarv::Program program("p");
    const auto list = program.action("list,t", "");
    const auto extract = program.action("extract,x", "");
    program.option<std::string>("folder", "").goesWith(extract);
    program.positional<std::string>("member", "").goesWith(extract);
    program.atLeastOne(list, extract);
    expectSaid(
        program,
        {{{}, "2 p: an action is missing\nTry 'p --help'.\n"},
         {{"-t", "-x"}, "2 p: actions '--list' and '--extract' exclude each other\nTry 'p --help'.\n"},
         {{"-t", "--folder=x"}, "2 p: option '--folder' does not go with action '--list'\nTry 'p --help'.\n"},
         {{"-t", "a"}, "2 p: argument MEMBER does not go with action '--list'\nTry 'p --help'.\n"},
         {{"-t=3"}, "2 p: -t=3: option '-t' takes no value\nTry 'p --help'.\n"}});
}

TEST(TypedMessages, OfVariables) {
    tarv::Program program("p");
    program.option<int>("jobs", "").env("TARV_TEST_MESSAGE");
    program.flag("color", "").env("TARV_TEST_COLOR");
    program.option<Texts>("list", "").env("TARV_TEST_LIST").check("short", [](const std::string& text) {
        return text.size() < 3;
    });
    const std::vector<std::pair<std::pair<const char*, const char*>, const char*>> rows = {
        {{"TARV_TEST_MESSAGE", "many"},
         "2 p: TARV_TEST_MESSAGE=many: must be a whole number\nTry 'p --help'.\n"},
        {{"TARV_TEST_COLOR", "maybe"},
         "2 p: TARV_TEST_COLOR=maybe: must be one of 1, true, yes, on, 0, false, no, off\nTry 'p --help'.\n"},
        {{"TARV_TEST_LIST", "a,much"},
         "2 p: TARV_TEST_LIST=a,much: 'much' must be short\nTry 'p --help'.\n"}};
    for (const auto& [variable, message] : rows) {
        SCOPED_TRACE(message);
        const EnvironmentVariable set(variable.first, variable.second);
        EXPECT_EQ(parseLine(program, {}), message);
    }
}

TEST(TypedMessages, OfSettings) {
    const TemporaryDirectory directory;
    tarv::Program program("p");
    program.option<int>("jobs", "");
    program.flag("color", "");
    program.settingsOption("config", "");
    program.verb("log", "").does([] {}).option<Texts>("size", "").oneOf("big", "small");
    const struct {
        const char* contents;
        const char* message;
    } rows[] = {{"bogus=3\n", ":1: unknown setting 'bogus'"},
                {"\njobs\n", ":2: setting 'jobs' needs a value"},
                {"jobs=\n", ":1: the value is empty"},
                {"no-color=1\n", ":1: no-color=1: option 'no-color' takes no value"},
                {"--jobs many\n", ":1: --jobs many: must be a whole number"},
                {"log.size=big,huge\n", ":1: log.size=big,huge: 'huge' must be one of big or small"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.contents);
        const std::string path = directory.write("conf", row.contents);
        EXPECT_EQ(parseLine(program, {"log", "--config=" + path}),
                  "2 p: " + path + row.message + "\nTry 'p log --help'.\n");
    }
    const std::string none = directory.pathOf("none");
    EXPECT_EQ(parseLine(program, {"log", "--config=" + none}),
              "2 p: cannot read the settings file '" + none + "'\nTry 'p log --help'.\n");
}

TEST(TypedMessages, OfTheTrace) {
    const TemporaryDirectory directory;
    tarv::Program program("p");
    program.settingsOption("config", "");
    program.option<int>("level,l", "");
    program.flag("color", "");
    tarv::Command& log = program.verb("log", "").does([] {});
    log.positional<std::string>("file", "");
    const std::string path = directory.write("conf", "level=2\n");
    const std::string config = "--config=" + path;
    EXPECT_EQ(parseLine(program, {"tarvoption=tarvlogenable=1", "lo", config, "-l", "3", "--no-c", "a"}),
              "okp: the command is 'p log'\n"
              "p: " +
                  config + " is option '--config', value '" + path +
                  "'\n"
                  "p: -l 3 is option '--level', value '3'\n"
                  "p: --no-c is option '--color', value 'off'\n"
                  "p: 'a' is argument FILE\n"
                  "p: " +
                  path + ":1: level=2 is option '--level', value '2', which is not used\n");
}

TEST(TypedMessages, OfRequests) {
    tarv::Program program("p");
    const char* const argv[] = {"a b", "tarvoption=completion=bash"};
    EXPECT_EQ(said(program.parse(2, argv)),
              "0 There are completion scripts for bash, zsh and fish, and for programs whose names have only "
              "letters, digits, '_', '.', '+' and '-'.\n");
}

TEST(TypedMessages, OfAProgramThatCouldNotBeMade) {
    tarv::Program program("p");
    tarv::Program taken(static_cast<tarv::Program&&>(program));
    EXPECT_EQ(parseLine(program, {}), "2 out of memory\n");
}

} // namespace
