// A host of the headers that came later, as it was compiled once: `typed.h`, most of which is compiled into
// hosts, `description.h`, `completion.h` and `explain.h`. What the templates of that time and the library ask
// of each other, where the fields of records lie, which number an enumerator has and which text a user reads:
// all of that is in this program, and no later library changes it. Prints what does not hold.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <unistd.h>

#include "tarv_3_3/completion.h"
#include "tarv_3_3/description.h"
#include "tarv_3_3/explain.h"
#include "tarv_3_3/tarv.h"
#include "tarv_3_3/typed.h"

namespace host {

/// Named by the host.
enum class Level { low = -7, high = 700 };

/// Read by the host.
struct Point {
    int x = 0;
    int y = 0;
};

bool fromText(const char* text, Point& point) {
    return std::sscanf(text, "%dx%d", &point.x, &point.y) == 2;
}

/// Read by the host, which says what is wrong.
struct Even {
    int number = 0;
};

bool fromText(const char* text, Even& even, const char*& must) {
    even.number = std::atoi(text);
    must = "an even number";
    return even.number % 2 == 0;
}

} // namespace host

template <>
struct tarv_3_3::typed::Names<host::Level> {
    static constexpr Choice<host::Level> list[] = {{"low", host::Level::low}, {"high", host::Level::high}};
};

namespace {

namespace tarv = tarv_3_3::typed;
namespace plain = tarv_3_3;

using Texts = std::vector<std::string>;
using Words = std::initializer_list<const char*>;

enum class Paper { a4, letter };

int failures = 0;
int checks = 0;

void expect(const char* what, bool holds) {
    ++checks;
    if (!holds) {
        std::printf("%s: does not hold\n", what);
        ++failures;
    }
}

void expect(const char* what, long actual, long expected) {
    ++checks;
    if (actual != expected) {
        std::printf("%s: %ld instead of %ld\n", what, actual, expected);
        ++failures;
    }
}

void expect(const char* what, const char* actual, const char* expected) {
    ++checks;
    if (actual == nullptr || std::strcmp(actual, expected) != 0) {
        std::printf("%s: '%s' instead of '%s'\n", what, actual != nullptr ? actual : "(null)", expected);
        ++failures;
    }
}

void expectBegin(const char* what, const char* actual, const char* begin) {
    ++checks;
    if (actual == nullptr || std::strncmp(actual, begin, std::strlen(begin)) != 0) {
        std::printf("%s: '%s' does not begin with '%s'\n", what, actual != nullptr ? actual : "(null)",
                    begin);
        ++failures;
    }
}

tarv::Outcome parse(tarv::Program& program, Words words) {
    std::vector<const char*> argv = {"p"};
    argv.insert(argv.end(), words);
    return program.parse(static_cast<int>(argv.size()), argv.data());
}

void expectAccepted(const char* what, tarv::Program& program, Words words) {
    const tarv::Outcome outcome = parse(program, words);
    expect(what, outcome.goesOn());
    expect(what, outcome.exitCode(), 0);
    expect(what, outcome.errors(), "");
}

void expectRefused(tarv::Program& program, Words words, const char* errors) {
    const tarv::Outcome outcome = parse(program, words);
    expect(errors, !outcome.goesOn());
    expect(errors, outcome.exitCode(), 2);
    expect(errors, outcome.output(), "");
    expect(errors, outcome.errors(), errors);
}

// Values that the library makes.
void useNumbers() {
    tarv::Program program("p");
    const auto on = program.flag("on,o", "");
    const auto off = program.option("off", "", true);
    const auto count = program.counter("count,c", "");
    const auto narrow = program.option<signed char>("narrow", "");
    const auto natural = program.option<unsigned short>("natural", "");
    const auto number = program.option("number,n", "", 3);
    const auto positive = program.option("positive", "", 7U);
    const auto least = program.option<long>("least", "");
    const auto most = program.option<unsigned long long>("most", "");
    const auto small = program.option("small", "", 0.25F);
    const auto real = program.option("real", "", 0.5);
    const auto size = program.option("size", "", tarv::Size(2048));
    const auto wait = program.option<std::chrono::seconds>("wait", "");
    const auto pause = program.option<std::chrono::duration<double>>("pause", "");
    const auto paper = program.option("paper", "", Paper::letter);

    expect("a handle before a parse", *number == 3 && !number.given());
    expectAccepted("every number", program,
                   {"--on", "--no-off", "-c", "-c", "--narrow=-128", "--natural=65535", "-n", "-5",
                    "--positive=4294967295", "--least=-9223372036854775808", "--most=18446744073709551615",
                    "--small=0.75", "--real=-2.5", "--size=4Ki", "--wait=2min", "--pause=1500ms",
                    "--paper=a4"});
    expect("switches", *on && !*off);
    expect("a counter", *count, 2);
    expect("a signed char", *narrow, -128);
    expect("an unsigned short", *natural, 65535);
    expect("an int", *number, -5);
    expect("an unsigned", *positive == 4294967295U);
    expect("the least long", *least == -9223372036854775807L - 1);
    expect("the greatest number", *most == 18446744073709551615ULL);
    expect("real numbers", *small == 0.75F && *real == -2.5);
    expect("a size", size->bytes == 4096);
    expect("a duration", static_cast<long>(wait->count()), 120);
    expect("a real duration", pause->count() == 1.5);
    expect("an enumeration", *paper == Paper::a4);
    expect("a name of an enumerator", paper.nameOf(Paper::letter), "letter");
    expect("a value without a name", paper.nameOf(static_cast<Paper>(2)), "");

    expectAccepted("no number", program, {});
    expect("initial switches", !*on && *off);
    expect("initial whole numbers",
           *count == 0 && *narrow == 0 && *natural == 0 && *number == 3 && *positive == 7);
    expect("initial large numbers", *least == 0 && *most == 0 && size->bytes == 2048);
    expect("initial real numbers", *small == 0.25F && *real == 0.5);
    expect("initial durations", wait->count() == 0 && pause->count() == 0);
    expect("an initial enumerator", *paper == Paper::letter);
}

// Values that the host makes of the text.
void useTexts() {
    tarv::Program program("p");
    const auto text = program.option<std::string>("text", "").mayBeEmpty();
    const auto view = program.option<std::string_view>("view", "");
    const auto path = program.option<std::filesystem::path>("path", "");
    const auto word = program.option("word", "", "red");
    const auto byte = program.option<char>("byte", "");
    const auto level = program.option("level", "", host::Level::low);
    const auto point = program.option<host::Point>("point", "");
    const auto even = program.option<host::Even>("even", "");
    const auto perhaps = program.option<std::optional<int>>("perhaps", "");
    const auto named = program.option<std::optional<std::string>>("named", "");

    expectAccepted("every text", program,
                   {"--text=a long text that no small buffer holds", "--view=seen", "--path=/a/b",
                    "--word=blue", "--byte=x", "--level=high", "--point=3x4", "--even=8", "--perhaps=-7",
                    "--named=one"});
    expect("a string", text->c_str(), "a long text that no small buffer holds");
    expect("a view", *view == "seen");
    expect("a path", path->c_str(), "/a/b");
    expect("a text", word->c_str(), "blue");
    expect("a byte", *byte == 'x');
    expect("a named value", *level == host::Level::high);
    expect("the name of a value", level.nameOf(host::Level::low), "low");
    expect("a type of the host", point->x == 3 && point->y == 4);
    expect("one that is explained", even->number, 8);
    expect("an optional number", perhaps->value_or(0), -7);
    expect("an optional text", named->value_or("").c_str(), "one");

    expectAccepted("an empty text", program, {"--text="});
    expect("it is given", text.given() && text->empty());
    expect("initial texts", view->empty() && path->empty() && *word == "red" && *byte == '\0');
    expect("an initial named value", *level == host::Level::low);
    expect("initial values of the host", point->x == 0 && even->number == 0);
    expect("an optional that is not given", !perhaps->has_value() && !named->has_value());
    expectRefused(program, {"--even=3"}, "p: --even=3: must be an even number\nTry 'p --help'.\n");
    expectRefused(program, {"--point=3"}, "p: --point=3: is not valid\nTry 'p --help'.\n");
    expectRefused(program, {"--level=middle"},
                  "p: --level=middle: must be one of low or high\nTry 'p --help'.\n");
}

void useLists() {
    tarv::Program program("p");
    const auto numbers = program.option("numbers", "", std::vector<int>{1, 2});
    const auto lines = program.option<Texts>("lines", "").separator('\0');
    const auto unique = program.option<std::set<int>>("unique", "");
    const auto switches = program.option<std::vector<bool>>("switches", "");
    const auto papers = program.option<std::vector<Paper>>("papers", "").separator(':');

    expectAccepted("every list", program,
                   {"--numbers=3,4", "--numbers=5", "--lines=a,b", "--lines=c", "--unique=9,8,9",
                    "--switches=1,off,yes", "--papers=letter:a4"});
    expect("an array", *numbers == std::vector<int>{3, 4, 5});
    expect("texts", *lines == Texts{"a,b", "c"});
    expect("a set", *unique == std::set<int>{8, 9});
    expect("switches", *switches == std::vector<bool>{true, false, true});
    expect("enumerators", *papers == std::vector<Paper>{Paper::letter, Paper::a4});
    expect("occurrences", numbers.count(), 2);

    expectRefused(program, {"--numbers=6,x"},
                  "p: --numbers=6,x: 'x' must be a whole number\nTry 'p --help'.\n");
    expectAccepted("no list", program, {});
    expect("initial elements", *numbers == std::vector<int>{1, 2} && lines->empty() && unique->empty());
}

void useBoundVariables() {
    tarv::Program program("p");
    int number = 4;
    std::string text = "initial";
    std::vector<int> list = {1, 2, 3};
    Texts files;
    program.bind("number", number, "");
    program.bind("text", text, "");
    program.bind("list", list, "");
    program.bindPositional("file", files, "");
    expectAccepted("bound variables", program, {"--number=5", "a", "--text=given", "--list=6", "b"});
    expect("a bound number", number, 5);
    expect("a bound text", text.c_str(), "given");
    expect("a bound list", list == std::vector<int>{6});
    expect("a bound argument", files == Texts{"a", "b"});
    expectAccepted("bound variables again", program, {});
    expect("what they held", number == 4 && text == "initial" && files.empty());
    expect("elements that it held", list == std::vector<int>{1, 2, 3});
}

void usePositionalArguments() {
    tarv::Program program("p");
    const auto from = program.positional<Texts>("from", "").required();
    const auto to = program.positional<std::string>("to", "").required();
    const auto level = program.option<int>("level,l", "");
    expectAccepted("arguments", program, {"-l=1", "a", "--level", "2", "b", "c"});
    expect("a list in front", *from == Texts{"a", "b"});
    expect("the last one", to->c_str(), "c");
    expect("how often", level.count(), 2);
    expect("the position of the last", level.position(), 3);
    expect("the position of the first", level.position(0), 1);
    expect("no further position", level.position(2), -1);
    expect("positions of arguments", from.position(0) == 2 && from.position(1) == 5 && to.position() == 6);
    expectRefused(program, {}, "p: argument FROM is missing\nTry 'p --help'.\n");

    tarv::Program runner("p");
    const auto verbose = runner.flag("verbose", "");
    const auto command = runner.rest<Texts>("command", "");
    expectAccepted("the rest", runner, {"--verbose", "ls", "--all", "-5"});
    expect("an option in front of it", *verbose);
    expect("what it holds", *command == Texts{"ls", "--all", "-5"});
}

// A file that is gone when the program is.
class File {
public:
    explicit File(const char* contents) {
        const int file = mkstemp(m_path);
        const ssize_t length = static_cast<ssize_t>(std::strlen(contents));
        if (file < 0 || write(file, contents, static_cast<std::size_t>(length)) != length ||
            close(file) != 0) {
            std::printf("%s: cannot be written\n", m_path);
            std::exit(1);
        }
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() { unlink(m_path); }

    const char* path() const { return m_path; }

private:
    char m_path[32] = "/tmp/tarv-old-host-XXXXXX";
};

void useSources() {
    const File weak("level=2\nlist=f,g\n");
    const File strong("level=3\n");
    const std::string config = std::string("--config=") + strong.path();
    tarv::Program program("p");
    const auto level = program.option("level", "", 1).env("TARV_OLD_HOST_LEVEL");
    const auto list = program.option<Texts>("list", "");
    const auto named = program.settingsFile(weak.path()).settingsOption("config", "");
    expect("no source yet", static_cast<long>(level.source()), 0);
    expectAccepted("a settings file", program, {});
    expect("from a file", *level == 2 && level.given() && *list == Texts{"f", "g"});
    expect("the file", static_cast<long>(level.source()), 1);
    expect("no position", level.position(), -1);
    expectAccepted("a named settings file", program, {config.c_str()});
    expect("from that file", *level == 3 && std::strcmp(named->c_str(), strong.path()) == 0);
    setenv("TARV_OLD_HOST_LEVEL", "4", 1);
    expectAccepted("a variable", program, {config.c_str()});
    expect("from the environment", *level, 4);
    expect("the environment", static_cast<long>(level.source()), 2);
    expectAccepted("all of them", program, {config.c_str(), "--level=5"});
    expect("from the command line", *level, 5);
    expect("the command line", static_cast<long>(level.source()), 3);
    unsetenv("TARV_OLD_HOST_LEVEL");
}

void declareRefined(tarv::Program& program) {
    program.option("level,l", "How much.", 3).range(-1, 9).topic("Numbers");
    program.option<unsigned>("jobs", "How many.").range(1U, 64U).value("N").required();
    program.option("gamma", "How bright.", 0.5).range(0.25, 4.0);
    program.option("size", "How large.", tarv::Size(2048)).range(1, tarv::Size(4096));
    program.option<std::chrono::seconds>("wait", "How long.")
        .range(std::chrono::seconds(1), std::chrono::minutes(1))
        .env("TARV_OLD_HOST_WAIT");
    program.option("bits", "", 8).oneOf(8, 16);
    program.option<double>("ratio", "").oneOf(0.5, 2);
    program.option("colour", "", "red").oneOf("red", std::string("blue")).deprecated("--paper");
    program.option("paper", "", Paper::a4).deprecated("");
    program.option("names", "", Texts{"a", "b"});
    program.option("byte", "", 'x');
    program.option("maybe", "", std::optional<int>(7));
    program.option("secret", "Not shown.", 0).hidden();
    program.option<std::string>("folder", "").completeAs("directory");
    program.option<int>("odd", "").check("odd", [](int value) { return value % 2 != 0; });
    program.positional<Texts>("file", "The files.").times(1, 3);
}

void showHelp() {
    tarv::Program program("p", "1.2", "Does it.");
    declareRefined(program);
    const tarv::Outcome help = parse(program, {"--help"});
    expect("help ends", !help.goesOn() && help.exitCode() == 0);
    expect("no error", help.errors(), "");
    expect("help", help.output(), R"(Usage: p [OPTION]... FILE...
Does it.

Arguments:
  FILE...               The files. (1 to 3 times)

Numbers:
  -l, --level=NUMBER    How much. (from -1 to 9; default: 3)

Options:
      --jobs=N          How many. (from 1 to 64; required)
      --gamma=NUMBER    How bright. (from 0.25 to 4; default: 0.5)
      --size=SIZE       How large. (from 1 to 4KiB; default: 2KiB)
      --wait=TIME       How long. (from 1s to 60s; environment:
                        TARV_OLD_HOST_WAIT)
      --bits=NUMBER     (one of 8, 16; default: 8)
      --ratio=NUMBER    (one of 0.5, 2)
      --colour=WORD     (one of red, blue; default: red; deprecated, use
                        --paper)
      --paper=WORD      (one of a4, letter; default: a4; deprecated)
      --names=TEXT,...  (default: a,b)
      --byte=CHAR       (default: x)
      --maybe=NUMBER    (default: 7)
      --folder=TEXT
      --odd=NUMBER      (odd)
  -h, --help            Show this help.
      --version         Show the version.
)");
    expect("the version", parse(program, {"--version"}).output(), "p 1.2\n");
    expectBegin("the description", parse(program, {"tarvoption=describe"}).output(),
                "{\"format\": \"tarv-description\", \"version\": \"1.");
}

void refuseValues() {
    tarv::Program program("p");
    declareRefined(program);
    expectRefused(program, {"a"}, "p: option '--jobs' is required\nTry 'p --help'.\n");
    expectRefused(program, {"--level=12"}, "p: --level=12: must be from -1 to 9\nTry 'p --help'.\n");
    expectRefused(program, {"--jobs=0"}, "p: --jobs=0: must be from 1 to 64\nTry 'p --help'.\n");
    expectRefused(program, {"--gamma=6"}, "p: --gamma=6: must be from 0.25 to 4\nTry 'p --help'.\n");
    expectRefused(program, {"--size=5k"}, "p: --size=5k: must be from 1 to 4KiB\nTry 'p --help'.\n");
    expectRefused(program, {"--wait=2h"}, "p: --wait=2h: must be from 1s to 60s\nTry 'p --help'.\n");
    expectRefused(program, {"--bits=9"}, "p: --bits=9: must be one of 8 or 16\nTry 'p --help'.\n");
    expectRefused(program, {"--ratio=1"}, "p: --ratio=1: must be one of 0.5 or 2\nTry 'p --help'.\n");
    expectRefused(program, {"--colour=grey"},
                  "p: option '--colour' is deprecated; use --paper\np: --colour=grey: must be one of red or "
                  "blue\nTry 'p --help'.\n");
    expectRefused(
        program, {"--paper=b5"},
        "p: option '--paper' is deprecated\np: --paper=b5: must be one of a4 or letter\nTry 'p --help'.\n");
    expectRefused(program, {"--byte=xy"}, "p: --byte=xy: must be one character\nTry 'p --help'.\n");
    expectRefused(program, {"--odd=4"}, "p: --odd=4: must be odd\nTry 'p --help'.\n");
    expectRefused(program, {"--folder="}, "p: --folder=: the value is empty\nTry 'p --help'.\n");
    expectRefused(program, {"--jobs=1", "a", "b", "c", "d"}, "p: unexpected argument 'd'\nTry 'p --help'.\n");
    expectRefused(program, {"--jbos=1"},
                  "p: unknown option '--jbos'\nDid you mean '--jobs'?\nTry 'p --help'.\n");
    expect("what is deprecated", parse(program, {"--jobs=1", "--colour=bl", "a"}).errors(),
           "p: option '--colour' is deprecated; use --paper\n");
}

void useRules() {
    tarv::Program program("p");
    const auto brief = program.flag("brief", "");
    const auto whole = program.flag("whole", "");
    const auto user = program.option<std::string>("user", "");
    const auto key = program.option<std::string>("key", "");
    const auto port = program.option<int>("port", "").needs(user);
    program.atMostOne(brief, whole).allOrNone(user, key);
    expectAccepted("every rule", program, {"--brief", "--user=a", "--key=b", "--port=1"});
    expect("what they are over", *brief && !whole.given() && *port == 1 && *key == "b");
    expectRefused(program, {"--brief", "--whole"},
                  "p: options '--brief' and '--whole' exclude each other\nTry 'p --help'.\n");
    expectRefused(program, {"--port=1"}, "p: option '--port' needs option '--user'\nTry 'p --help'.\n");
    expectRefused(program, {"--key=b"},
                  "p: options '--user' and '--key' go together, but '--user' is missing\nTry 'p --help'.\n");

    tarv::Program other("p");
    other.atLeastOne(other.flag("a", ""), other.flag("b", ""));
    other.exactlyOne(other.flag("c", ""), other.flag("d", ""));
    expectAccepted("one of each", other, {"-a", "-b", "-c"});
    expectRefused(other, {"-c"}, "p: one of the options '-a' or '-b' is required\nTry 'p --help'.\n");
    expectRefused(other, {"-a"}, "p: one of the options '-c' or '-d' is required\nTry 'p --help'.\n");
    expectRefused(other, {"-a", "-c", "-d"},
                  "p: options '-c' and '-d' exclude each other\nTry 'p --help'.\n");
}

void useActionsAndLetters() {
    tarv::Program program("p");
    const auto list = program.action("list,t", "");
    const auto extract = program.action("extract,x", "");
    const auto folder = program.option<std::string>("folder,f", "").goesWith(extract);
    program.joinLetters().exactlyOne(list, extract);
    expectAccepted("joined letters", program, {"-xfout"});
    expect("an action", *extract && !*list);
    expect("what goes with it", folder->c_str(), "out");
    expectRefused(program, {"-t", "--folder=x"},
                  "p: option '--folder' does not go with action '--list'\nTry 'p --help'.\n");
    expectRefused(program, {"-tx"},
                  "p: actions '--list' and '--extract' exclude each other\nTry 'p --help'.\n");
}

// How many of these there are says whether the library ends what the host handed over, once.
class Counted {
public:
    Counted() { ++alive; }
    Counted(const Counted&) { ++alive; }
    ~Counted() { --alive; }
    Counted& operator=(const Counted&) = default;

    static int alive;
};

int Counted::alive = 0;

int run(tarv::Program& program, Words words) {
    std::vector<const char*> argv = {"p"};
    argv.insert(argv.end(), words);
    return program.run(static_cast<int>(argv.size()), argv.data());
}

void runVerbs() {
    const Counted counted;
    int shown = 0;
    {
        tarv::Program program("p");
        const auto verbose = program.flag("verbose", "");
        tarv::Command& log = program.verb("log,l", "Shows.");
        const auto most = log.option("most", "", 10);
        log.does([counted, most, &shown] {
            shown = *most;
            return 7;
        });
        tarv::Command& remote = program.verb("remote", "Others.");
        remote.verb("add", "Adds.").does([counted, verbose, &shown] { shown = *verbose ? 1 : 2; });
        expect("a body", run(program, {"log", "--most=5"}), 7);
        expect("what it saw", shown, 5);
        expect("a body without a result", run(program, {"remote", "add", "--verbose"}), 0);
        expect("what that saw", shown, 1);
        expect("a verb by its other name", run(program, {"l"}), 7);
        expect("the initial value", shown, 10);
        expect("a parse alone", parse(program, {"remote", "add"}).goesOn() && shown == 10);
        expectRefused(program, {"remote"}, "p: a verb is missing\nTry 'p remote --help'.\n");
        expectRefused(program, {"lgo"}, "p: unknown verb 'lgo'\nDid you mean 'log'?\nTry 'p --help'.\n");
        expect("help of a verb", parse(program, {"help", "log"}).output(), R"(Usage: p log [OPTION]...
Shows.

Options:
      --most=NUMBER  (default: 10)
  -h, --help         Show this help.

Options of p:
      --verbose
)");
    }
    expect("bodies are ended", Counted::alive, 1);
}

void runCodeOfTheHost() {
    {
        const Counted counted;
        tarv::Program program("p");
        const auto list = program.option<Texts>("list", "")
                              .check("short", [counted](const std::string& text) { return text.size() < 4; })
                              .check("lower", [counted](const std::string& text) { return text[0] >= 'a'; });
        const auto thrown =
            program.option<int>("thrown", "").check("thrown", [](int value) -> bool { throw value; });
        expect("two checks", parse(program, {"--list=ab,Ab"}).errors(),
               "p: --list=ab,Ab: 'Ab' must be lower\nTry 'p --help'.\n");
        expectAccepted("both pass", program, {"--list=ab,abc"});
        expect("their elements", list->size() == 2 && list->back() == "abc");
        int caught = 0;
        try {
            parse(program, {"--thrown=3"});
        } catch (int value) {
            caught = value;
        }
        expect("what a check throws", caught, 3);
        expectAccepted("the program is used again", program, {"--list=x"});
        expect("nothing was taken", !thrown.given() && list->front() == "x");
        const char* const argv[] = {"p", "--list=run"};
        expect("a body of the program",
               program.run(2, argv, [counted, list] { return static_cast<int>(list->front().size()); }), 3);
    }
    expect("checks are ended", Counted::alive, 0);
}

// What a program prints that is asked by a shell, with these words on standard input.
std::string ask(tarv::Program& program, const std::string& question) {
    int ends[2];
    if (pipe(ends) != 0 || write(ends[1], question.data(), question.size()) < 0) {
        return "no pipe";
    }
    close(ends[1]);
    dup2(ends[0], STDIN_FILENO);
    close(ends[0]);
    std::clearerr(stdin);
    return parse(program, {"tarvoption=complete=zsh"}).output();
}

void completeValues() {
    const Counted counted;
    {
        tarv::Program program("p");
        program.option<Texts>("branch", "")
            .completeWith([](const char*, tarv::Candidates& candidates) { candidates.add("replaced"); })
            .completeWith([counted](const char* word, tarv::Candidates& candidates) {
                candidates.add("main", "The main one.");
                candidates.add("maintenance");
                candidates.add(word[0] == 'm' && word[1] == '\0' ? "mine" : "wrong");
            });
        expect("values of the host", ask(program, std::string("p\0--branch=x,m\0", 15)).c_str(),
               "tarv-complete 1 none\n\n\n\n--branch=x,main\tThe main one.\n"
               "--branch=x,maintenance\t\n--branch=x,mine\t\n");
    }
    expect("completers are ended", Counted::alive, 1);
}

// Reaches what the program points to.
class OpenProgram : public tarv::Program {
public:
    using tarv::Program::Program;
    tarv::engine::Command* record() { return m_record; }
};

// A later library knows more fields of a step, which this host has no room for.
void driveBySteps() {
    OpenProgram program("p");
    const auto texts = program.option<Texts>("text", "").check("short", [](const std::string& text) {
        return text.size() < 9;
    });
    struct {
        tarv::engine::Step step;
        unsigned char behind[64];
    } room;
    std::memset(&room, 0x5a, sizeof room);
    room.step.size = sizeof room.step;
    expect("the size of a step", static_cast<long>(sizeof room.step), 48);
    const char* const argv[] = {"p", "--text=a,b"};
    tarv::engine::begin(program.record(), 2, argv, tarv::engine::purposeParse);
    for (bool accepted = true; tarv::engine::next(program.record(), accepted, &room.step);) {
        accepted = tarv::values::perform(room.step);
    }
    expect("a parse by steps", tarv::engine::result(program.record())->isDone, 0);
    expect("its value", *texts == Texts{"a", "b"});
    bool isWhole = true;
    for (const unsigned char byte : room.behind) {
        isWhole = isWhole && byte == 0x5a;
    }
    expect("nothing is written behind a step", isWhole);
}

void movePrograms() {
    tarv::Program program("p");
    const auto level = program.option<int>("level", "");
    tarv::Program moved(std::move(program));
    tarv::Program assigned("other");
    assigned = std::move(moved);
    expectAccepted("a moved program", assigned, {"--level=6"});
    expect("its handle", *level, 6);
    const tarv::Outcome outcome = parse(program, {});
    expect("one that was moved from", outcome.exitCode(), 2);
    expect("what it says", outcome.errors(), "out of memory\n");
    const tarv::Handle<int> none;
    expect("no handle", *none == 0 && !none.given() && none.count() == 0 && none.position() == -1);

    tarv::Program wrong("p");
    wrong.option("level", "", 12).range(1, 9);
    wrong.option("level", "", 1);
    expect("problems", wrong.problems(),
           "p: 'level': its default 12 must be from 1 to 9\np: 'level': the name is taken\n");
}

// A parser of the plain interface, which ends with its block.
class Parser {
public:
    explicit Parser(int flags = 0) {
        plain::createParser(&m_parser, flags);
        m_parser->option("level,l", "How much.", plain::vtInt32, "topic: A title")
            .allowValue(1)
            .allowValue(2)
            .defaultValue(2);
        m_parser->option("verbose", "Says more.", plain::vtBool, "tarv_hidden");
        m_parser->action("build", "Builds.", plain::vtNull);
        m_parser->modifier("jobs", "build", "How many.", plain::vtUInt32);
        m_parser->option("file", "What to read.", plain::vtString).tokenize(';').positional();
    }
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;
    ~Parser() { m_parser->destroy(); }

    operator plain::IParser*() const { return m_parser; }
    plain::IParser* operator->() const { return m_parser; }

private:
    plain::IParser* m_parser = nullptr;
};

void expectDeclaration(const plain::Declaration& level) {
    expect("an option", level.role, 1);
    expect("its kind", level.kind, 6);
    expect("how many names", level.nameCount, 2);
    expect("its names", std::string(level.names[0]) == "level" && std::string(level.names[1]) == "l");
    expect("no switch", level.isNegatable == 0 && level.isPositional == 0 && level.isHidden == 0);
    expect("its description", level.text, "How much.");
    expect("its topic", level.topic, "topic");
    expect("the title of its topic", level.topicTitle, " A title");
    expect("no tag", level.tagCount, 0);
    expect("how many values", level.allowedCount, 2);
    expect("its values", std::string(level.allowed[0]) == "1" && std::string(level.allowed[1]) == "2");
    expect("its separator", level.separator, ',');
    expect("its default", level.defaultText, "2");
    expect("how many notes", level.noteCount, 2);
    expect("a key", level.notes[0].key, "value");
    expect("a note", level.notes[0].value, "N");
    expect("a key of the host", level.notes[1].key, "host.icon");
    expect("a note of the host", level.notes[1].value, "new");
}

void expectOtherDeclarations(const plain::Description& description) {
    const plain::Declaration& verbose = plain::declarationAt(description, 1);
    expect("a hidden switch", verbose.isNegatable == 1 && verbose.isHidden == 1 && verbose.kind == 0);
    expect("no default", verbose.defaultText == nullptr);
    const plain::Declaration& build = plain::declarationAt(description, 2);
    expect("an action", build.role, 0);
    expect("its kind", build.kind, 17);
    const plain::Declaration& jobs = plain::declarationAt(description, 3);
    expect("a modifier", jobs.role == 1 && jobs.tagCount == 1);
    expect("its tag", jobs.tags[0], "build");
    const plain::Declaration& file = plain::declarationAt(description, 4);
    expect("a positional option", file.isPositional, 1);
    expect("its separator", file.separator, ';');
}

void describe() {
    const Parser parser(plain::flagRejectUnknown);
    expect("a note", plain::annotate(parser, "l", "value", "N"), 0);
    expect("a note of the host", plain::annotate(parser, "level", "host.icon", "new"), 0);
    expect("a misspelt key", plain::annotate(parser, "level", "valeu", "N"), 1);
    expect("a rule", plain::addRule(parser, plain::ruleAtMostOne, "level,verbose"), 0);
    expect("another rule", plain::addRule(parser, plain::ruleNeeds, "jobs,build"), 0);
    expect("a rule over one option", plain::addRule(parser, plain::ruleAllOrNone, "level"), 1);
    const plain::Description* const description = plain::describe(parser);
    parser->option("later", "", plain::vtNull);
    expect("a description has what this host knows", description->size >= 48 && description->stride >= 112);
    expect("its flags", description->flags, plain::flagRejectUnknown);
    expect("what it describes", description->declarationCount, 5);
    expectDeclaration(plain::declarationAt(*description, 0));
    expectOtherDeclarations(*description);
    expect("how many rules", description->ruleCount, 2);
    expect("the kind of a rule", description->rules[0].kind, 1);
    expect("how many names it has", description->rules[0].nameCount, 2);
    expect("its second name", description->rules[0].names[1], "verbose");
    expect("the kind of the next", description->rules[1].kind, 5);
    expect("what it needs", description->rules[1].names[1], "build");
    expect("no option files, no handlers",
           description->readsOptionFiles == 0 && description->asksHandlers == 0);
    plain::release(description);
    expectBegin("as JSON", plain::describeAsJson(parser),
                "{\"format\": \"tarv-description\", \"version\": \"1.");
    expect("a suggestion", plain::suggest(parser, "--levle=3"), "Did you mean '--level'?");
    expect("no suggestion", plain::suggest(parser, "--zzzzzz") == nullptr);
}

void checkRules() {
    const Parser parser;
    plain::addRule(parser, plain::ruleAtMostOne, "level,verbose");
    plain::IParseResult* result = nullptr;
    parser->createResult(&result);
    const char* const argv[] = {"host", "--build", "--level=1", "--verbose"};
    expect("a parse", parser->parseArgsVector(3, argv, result), 0);
    expect("a rule that is kept", plain::checkRules(parser, result), 0);
    expect("another parse", parser->parseArgsVector(4, argv, result), 0);
    expect("a rule that is broken", plain::checkRules(parser, result), 2);
    expect("which one", parser->getErrorDesc(), "Option 'level' and option 'verbose' exclude each other");
    expect("no result", plain::checkRules(parser, nullptr), 3);
    result->destroy();
}

// Offers what is asked for, by the table of virtual functions that it knows.
bool offer(void* context, const char* option, const char* word, plain::CandidateSink& sink) {
    ++*static_cast<int*>(context);
    sink.add("notes", "What was said.");
    sink.add("news", nullptr);
    sink.add("other", "Does not begin so.");
    return std::strcmp(option, "file") == 0 && std::strcmp(word, "n") == 0;
}

void complete() {
    const Parser parser;
    const char* const names[] = {"host", "--l"};
    const plain::Completion* completion = plain::complete(parser, 2, names);
    expect("a completion has what this host knows", completion->size >= 40 && completion->stride >= 16);
    expect("a name", completion->candidateCount, 1);
    expect("its text", completion->candidates->text, "--level=");
    expect("its description", completion->candidates->description, "How much.");
    expect("what names have in common", completion->common, "--level=");
    expect("no files", completion->files == 0 && completion->fileOffset == 0);
    plain::release(completion);

    const char* const values[] = {"host", "--file=a;n"};
    int calls = 0;
    completion = plain::complete(parser, 2, values, offer, &calls);
    expect("the host was asked", calls, 1);
    expect("its values", completion->candidateCount, 2);
    const char* const second = reinterpret_cast<const char*>(completion->candidates) + completion->stride;
    expect("the first value", completion->candidates->text, "--file=a;notes");
    expect("what it says of it", completion->candidates->description, "What was said.");
    expect("the second value", reinterpret_cast<const plain::Candidate*>(second)->text, "--file=a;news");
    expect("nothing said", reinterpret_cast<const plain::Candidate*>(second)->description, "");
    expect("what they have in common", completion->common, "--file=a;n");
    plain::release(completion);

    completion = plain::complete(parser, 2, values);
    expect("files", completion->files, 1);
    expect("where their names begin", completion->fileOffset, 9);
    plain::release(completion);
    expect("no request", !plain::answerCompletion(parser, 2, values));
}

void explain() {
    const Parser parser(plain::flagDashIsNotPositional);
    const char* const argv[] = {"host", "--lev=1", "-l", "2", "--n-v", "--zzz", "x"};
    const plain::Explanation* const explanation = plain::explain(parser, 7, argv);
    expect("an explanation has what this host knows", explanation->size >= 24 && explanation->stride >= 64);
    expect("its arguments", explanation->argumentCount, 6);
    const plain::ExplainedArgument& cut = plain::explainedAt(*explanation, 0);
    expect("a named argument", cut.role == 1 && cut.place == 0);
    expect("its name", cut.name, "level");
    expect("where it stands", cut.nameStart == 2 && cut.nameEnd == 5 && cut.valueStart == 6);
    expect("cut short", cut.isAbbreviated == 1 && cut.isNegated == 0 && cut.isRefused == 0);
    expect("a value in the same argument", cut.source, 2);
    expect("a value in the next", plain::explainedAt(*explanation, 1).source, 3);
    expect("that value", plain::explainedAt(*explanation, 2).role, 2);
    const plain::ExplainedArgument& off = plain::explainedAt(*explanation, 3);
    expect("a switch that is turned off", off.isNegated == 1 && off.source == 1);
    expect("its whole name", off.name, "no-verbose");
    expect("an unknown argument", plain::explainedAt(*explanation, 4).role, 6);
    expect("a positional one", plain::explainedAt(*explanation, 5).role, 3);
    plain::release(explanation);

    const Parser other;
    other->option("verify", "", plain::vtNull);
    const char* const unclear[] = {"host", "--ver"};
    const plain::Explanation* const ambiguous = plain::explain(other, 2, unclear);
    const plain::ExplainedArgument& either = plain::explainedAt(*ambiguous, 0);
    expect("an ambiguous argument", either.role == 8 && either.isRefused == 1);
    expect("what it fits", either.candidateCount, 2);
    expect("the second", either.candidates[1], "verify");
    plain::release(ambiguous);
}

} // namespace

int main() {
    // What was found is printed even if the next contract crashes.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    unsetenv("TARV_ABBREVIATIONS");
    unsetenv("TARV_OLD_HOST_LEVEL");
    unsetenv("TARV_OLD_HOST_WAIT");
    useNumbers();
    useTexts();
    useLists();
    useBoundVariables();
    usePositionalArguments();
    useSources();
    showHelp();
    refuseValues();
    useRules();
    useActionsAndLetters();
    runVerbs();
    runCodeOfTheHost();
    completeValues();
    driveBySteps();
    movePrograms();
    describe();
    checkRules();
    complete();
    explain();
    std::printf("%d of %d contracts hold\n", checks - failures, checks);
    return failures == 0 ? 0 : 1;
}
