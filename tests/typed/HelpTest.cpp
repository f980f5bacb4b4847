#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/TypedLine.h"

namespace {

namespace tarv = tarv_3_3::typed;

enum class Format { png, jpeg };

std::string helpAt(tarv::Program& program, const char* columns, const std::vector<std::string>& line) {
    setenv("COLUMNS", columns, 1);
    const std::string outcome = parseLine(program, line);
    unsetenv("COLUMNS");
    return "\n" + outcome;
}

tarv::Program convert() {
    tarv::Program program("convert", "2.1", "Converts images. Überall, 日本語でも画像を変換します。");
    program.option("to,t", "The format to write.", Format::png);
    program.option("quality,q", "Of lossy formats.", 85).range(1, 100).env("CONVERT_QUALITY");
    program.option<std::vector<int>>("size,s", "Widths to make.").separator(':');
    program.option("output", "The folder to write to.", std::filesystem::path(".")).value("FOLDER");
    program.option("color", "Keep colours.", true);
    program.flag("secret", "Not shown.").hidden();
    program.option<std::string>("an-option-with-a-very-long-name", "Its text is on a line of its own.");
    program.flag("fast", "Hurry.").topic("Speed");
    program.option<int>("even", "").check("even", [](int value) { return value % 2 == 0; }).required();
    program.flag("old", "Gone soon.").deprecated("--fast");
    program.positional<std::vector<std::filesystem::path>>("image", "What to convert.").required();
    program.positional<std::string>("target", "");
    return program;
}

TEST(TypedHelp, ShowsTheElementsOfADefaultAsTheyAreTyped) {
    tarv::Program program("p");
    const std::vector<int> two = {1, 2};
    program.option("split", "One argument.", two);
    program.option("own", "Another separator.", two).separator(':');
    program.option("each", "One argument each.", two).separator('\0');
    program.option("color,c", "Named for what is typed.", true);
    program.positional("number", "One argument each.", two);
    EXPECT_EQ(helpAt(program, "80", {"--help"}), R"(
0 Usage: p [OPTION]... [NUMBER]...

Arguments:
  [NUMBER]...             One argument each. (default: 1 2)

Options:
      --split=NUMBER,...  One argument. (default: 1,2)
      --own=NUMBER:...    Another separator. (default: 1:2)
      --each=NUMBER       One argument each. (default: 1 2)
      --no-color, --no-c  Named for what is typed.
  -h, --help              Show this help.
)");
}

TEST(TypedHelp, IsLaidOutForEightyColumns) {
    tarv::Program program = convert();
    EXPECT_EQ(helpAt(program, "", {"--help"}), R"(
0 Usage: convert [OPTION]... IMAGE... [TARGET]
Converts images. Überall, 日本語でも画像を変換します。

Arguments:
  IMAGE...               What to convert.

Options:
  -t, --to=WORD          The format to write. (one of png, jpeg; default: png)
  -q, --quality=NUMBER   Of lossy formats. (from 1 to 100; default: 85;
                         environment: CONVERT_QUALITY)
  -s, --size=NUMBER:...  Widths to make.
      --output=FOLDER    The folder to write to. (default: .)
      --no-color         Keep colours.
      --an-option-with-a-very-long-name=TEXT
                         Its text is on a line of its own.
      --even=NUMBER      (even; required)
      --old              Gone soon. (deprecated, use --fast)
  -h, --help             Show this help.
      --version          Show the version.

Speed:
      --fast             Hurry.
)");
}

TEST(TypedHelp, IsLaidOutForFortyColumns) {
    tarv::Program program = convert();
    EXPECT_EQ(helpAt(program, "40", {"--help"}), R"(
0 Usage: convert [OPTION]... IMAGE...
       [TARGET]
Converts images. Überall, 日本語でも画像
を変換します。

Arguments:
  IMAGE...              What to convert.

Options:
  -t, --to=WORD         The format to
                        write. (one of
                        png, jpeg;
                        default: png)
  -q, --quality=NUMBER  Of lossy
                        formats. (from 1
                        to 100; default:
                        85; environment:
                        CONVERT_QUALITY)
  -s, --size=NUMBER:...
                        Widths to make.
      --output=FOLDER   The folder to
                        write to.
                        (default: .)
      --no-color        Keep colours.
      --an-option-with-a-very-long-name=TEXT
                        Its text is on a
                        line of its own.
      --even=NUMBER     (even; required)
      --old             Gone soon.
                        (deprecated, use
                        --fast)
  -h, --help            Show this help.
      --version         Show the
                        version.

Speed:
      --fast            Hurry.
)");
}

TEST(TypedHelp, IsLaidOutForTwoHundredColumns) {
    tarv::Program program("wide", nullptr, "");
    program.option<std::string>("text",
                                "A text that is much longer than a line of eighty columns could ever be, "
                                "but not so long that two hundred would not be enough for it.");
    EXPECT_EQ(helpAt(program, "200", {"--help"}), R"(
0 Usage: wide [OPTION]...

Options:
      --text=TEXT  A text that is much longer than a line of eighty columns could ever be, but not so long that two hundred would not be enough for it.
  -h, --help       Show this help.
)");
}

TEST(TypedHelp, OfVerbsListsTheirOwnOptionsFirst) {
    tarv::Program program("vcs", "1.0", "Tracks versions.");
    program.option<std::string>("host,h", "Where.");
    tarv::Command& log = program.verb("log", "Show the history.").does([] {});
    log.flag("graph", "Draw.");
    tarv::Command& remote = program.verb("remote,rem", "Others.");
    remote.verb("add", "One more.").does([] {});
    EXPECT_EQ(helpAt(program, "80", {"--help"}), R"(
0 Usage: vcs [OPTION]... VERB [ARGUMENT]...
Tracks versions.

Verbs:
  log              Show the history.
  remote, rem      Others.

Options:
  -h, --host=TEXT  Where.
      --help       Show this help.
      --version    Show the version.

Try 'vcs help VERB' to read more about a verb.
)");
    EXPECT_EQ(helpAt(program, "80", {"log", "--help"}), R"(
0 Usage: vcs log [OPTION]...
Show the history.

Options:
      --graph      Draw.
      --help       Show this help.
      --version    Show the version.

Options of vcs:
  -h, --host=TEXT  Where.
)");
    EXPECT_EQ(helpAt(program, "80", {"remote", "--help"}), R"(
0 Usage: vcs remote [OPTION]... VERB [ARGUMENT]...
Others.

Verbs:
  add              One more.

Options:
      --help       Show this help.
      --version    Show the version.

Options of vcs:
  -h, --host=TEXT  Where.

Try 'vcs remote VERB --help' to read more about a verb.
)");
}

TEST(TypedHelp, SaysRulesAndCounts) {
    tarv::Program program("p");
    const auto user = program.option<std::string>("user,u", "Who.");
    const auto guest = program.flag("guest", "Nobody.");
    const auto secret = program.flag("secret", "").hidden();
    const auto key = program.option<std::string>("key", "Her key.").needs(user).required();
    tarv::Command& send = program.verb("send", "Sends.");
    const auto fast = send.flag("fast", "Hurry.");
    const auto points = send.positional<std::vector<int>>("point", "Where.").times(2, 3);
    program.exactlyOne(user, guest).atMostOne(guest, secret);
    send.allOrNone(fast, points, user).atLeastOne(fast, key).atMostOne(fast, guest);
    EXPECT_EQ(helpAt(program, "60", {"send", "--help"}), R"(
0 Usage: p send [OPTION]... POINT...
Sends.

Arguments:
  POINT...         Where. (2 to 3 times)

Options:
      --fast       Hurry.
  -h, --help       Show this help.

Options of p:
  -u, --user=TEXT  Who.
      --guest      Nobody.
      --key=TEXT   Her key. (needs --user; required)

--fast, POINT and --user go together.
At least one of --fast and --key is required.
At most one of --fast and --guest.
Exactly one of --user and --guest is required.
)");
}

TEST(TypedHelp, SaysHowOftenAListIsGiven) {
    const struct {
        unsigned least;
        unsigned most;
        const char* usage;
        const char* argument;
    } rows[] = {{0, 0, "[FILE]...", "[FILE]...   What."},
                {1, 0, "FILE...", "FILE...     What."},
                {2, 0, "FILE...", "FILE...     What. (at least 2 times)"},
                {2, 2, "FILE...", "FILE...     What. (2 times)"},
                {0, 3, "[FILE]...", "[FILE]...   What. (at most 3 times)"},
                {1, 3, "FILE...", "FILE...     What. (1 to 3 times)"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::to_string(row.least) + ", " + std::to_string(row.most));
        tarv::Program program("p");
        program.positional<std::vector<std::string>>("file", "What.").times(row.least, row.most);
        EXPECT_EQ(helpAt(program, "80", {"--help"}), std::string("\n0 Usage: p [OPTION]... ") + row.usage +
                                                         "\n\nArguments:\n  " + row.argument +
                                                         "\n\nOptions:\n  -h, --help  Show this help.\n");
    }
}

TEST(TypedHelp, HasTwentyColumnsAtLeastAndEightyUnlessANumberSaysOtherwise) {
    constexpr const char* narrow = R"(
0 Usage: p [OPTION]...

Options:
      --text=TEXT
              A text
              of six
              words
              here.
  -h, --help  Show
              this
              help.
)";
    constexpr const char* wide = R"(
0 Usage: p [OPTION]...

Options:
      --text=TEXT  A text of six words here.
  -h, --help       Show this help.
)";
    const struct {
        const char* columns;
        const char* help;
    } rows[] = {{"20", narrow}, {"19", narrow}, {"1", narrow}, {"80", wide},
                {"0", wide},    {"20x", wide},  {"x", wide},   {"-20", wide}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.columns);
        tarv::Program program("p");
        program.option<std::string>("text", "A text of six words here.");
        EXPECT_EQ(helpAt(program, row.columns, {"--help"}), row.help);
    }
}

TEST(TypedHelp, NamesOfTheHostAreItsOwn) {
    tarv::Program program("p", "1.0", "");
    program.verb("list", "Lists.").does([] {});
    program.does([] {});
    program.flag("help", "Helps.");
    program.flag("h", "Half.");
    program.verb("show", "Shows.").does([] {}).positional<std::string>("file~", "Not shown.").hidden();
    program.option<int>("version", "Which one.");
    EXPECT_EQ(helpAt(program, "80", {"help"}), R"(
0 Usage: p [OPTION]... [VERB [ARGUMENT]...]

Verbs:
  list                  Lists.
  show                  Shows.

Options:
      --help            Helps.
  -h                    Half.
      --version=NUMBER  Which one.

Try 'p help VERB' to read more about a verb.
)");
    EXPECT_EQ(helpAt(program, "80", {"help", "show"}), R"(
0 Usage: p show [OPTION]... [FILE~]
Shows.

Options of p:
      --help            Helps.
  -h                    Half.
      --version=NUMBER  Which one.
)");
}

TEST(TypedHelp, IsNotPromisedBehindADeclaredVerbOfThatName) {
    tarv::Program program("p");
    program.verb("show", "Shows.");
    program.verb("manual,help", "Helps.");
    EXPECT_EQ(helpAt(program, "80", {"--help"}), R"(
0 Usage: p [OPTION]... VERB [ARGUMENT]...

Verbs:
  show          Shows.
  manual, help  Helps.

Options:
  -h, --help    Show this help.

Try 'p VERB --help' to read more about a verb.
)");
}

TEST(TypedHelp, ListsActions) {
    tarv::Program program("tar", nullptr, "");
    program.action("list,t", "List it.");
    const auto extract = program.action("extract,x", "Extract it.");
    program.flag("keep", "Keep it.").goesWith(extract);
    program.action("test", "Test it.").topic("Checks");
    EXPECT_EQ(helpAt(program, "80", {"--help"}), R"(
0 Usage: tar ACTION [OPTION]...

Actions:
  -t, --list     List it.
  -x, --extract  Extract it.

Options:
      --keep     Keep it. (with --extract)
  -h, --help     Show this help.

Checks:
      --test     Test it.
)");
}

TEST(TypedHelp, TellsWhatHoldsForAnOptionInOneOrder) {
    tarv::Program program("tar", nullptr, "");
    const auto extract = program.action("extract,x", "Extract it.");
    const auto keep = program.flag("keep", "Keep it.");
    program.positional<std::vector<int>>("part", "Which.")
        .env("TARV_TEST_PART")
        .needs(keep)
        .check("must be even", [](int part) { return part % 2 == 0; })
        .range(1, 9)
        .oneOf(2, 4)
        .times(0, 3)
        .goesWith(extract);
    program.option("depth", "How deep.", 4)
        .deprecated("--part")
        .env("TARV_TEST_DEPTH")
        .oneOf(2, 4)
        .goesWith(extract);
    EXPECT_EQ(helpAt(program, "200", {"--help"}), R"(
0 Usage: tar ACTION [OPTION]... [PART]...

Arguments:
  [PART]...           Which. (with --extract; at most 3 times; one of 2, 4; from 1 to 9; must be even; needs --keep; environment: TARV_TEST_PART)

Actions:
  -x, --extract       Extract it.

Options:
      --keep          Keep it.
      --depth=NUMBER  How deep. (with --extract; one of 2, 4; default: 4; environment: TARV_TEST_DEPTH; deprecated, use --part)
  -h, --help          Show this help.
)");
}

} // namespace
