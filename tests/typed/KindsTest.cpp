#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/TypedLine.h"

namespace {

namespace tarv = tarv_3_3::typed;

using Texts = std::vector<std::string>;

enum class Paper { a4, letter };
enum class Only { one };

struct Point {
    int x;
};

bool fromText(const char*, Point&) {
    return true;
}

/// One option of every kind that an option can be.
class TypedKinds : public testing::Test {
protected:
    TypedKinds() {
        program.flag("on,o", "A switch.");
        program.option("off", "Off.", true);
        program.counter("count", "A counter.");
        program.option<signed char>("narrow", "");
        program.option<unsigned short>("natural", "");
        program.option("number", "", 3).range(-1, 9);
        program.option<unsigned>("unsigned", "").range(1U, 9U);
        program.option("real", "", 0.5).range(0.25, 4.0);
        program.option<float>("float", "");
        program.option<char>("byte", "").required();
        program.option("size", "", tarv::Size(2048)).range(1, tarv::Size(4096));
        program.option<std::chrono::seconds>("wait", "")
            .range(std::chrono::seconds(1), std::chrono::minutes(1));
        program.option<std::chrono::duration<double>>("seconds", "");
        program.option<Point>("own", "");
        program.option<std::filesystem::path>("file", "");
        program.option("word", "", "red").oneOf("red", "blue").deprecated("--paper");
        program.option("paper", "", Paper::a4).value("SHEET").deprecated("");
        program.option<Only>("only", "");
        program.option("list", "", std::vector<int>{1, 2}).env("LIST");
        program.option("lines", "", Texts{"a", "b"}).separator('\0');
        program.option("none", "", Texts{});
        program.option<std::vector<bool>>("bools", "");
        program.option<std::optional<int>>("maybe", "");
        program.option<std::string>("text", "").mayBeEmpty().check("short", [](const std::string& text) {
            return text.size() < 9;
        });
        program.positional<Texts>("name", "The names.").times(1, 3);
    }

    tarv::Program program{"p", "1.0", "All kinds."};
};

TEST_F(TypedKinds, AreShownByHelp) {
    EXPECT_EQ(parseLine(program, {"--help"}), R"(0 Usage: p [OPTION]... NAME...
All kinds.

Arguments:
  NAME...                The names. (1 to 3 times)

Options:
  -o, --on               A switch.
      --no-off           Off.
      --count            A counter.
      --narrow=NUMBER
      --natural=NUMBER
      --number=NUMBER    (from -1 to 9; default: 3)
      --unsigned=NUMBER  (from 1 to 9)
      --real=NUMBER      (from 0.25 to 4; default: 0.5)
      --float=NUMBER
      --byte=CHAR        (required)
      --size=SIZE        (from 1 to 4KiB; default: 2KiB)
      --wait=TIME        (from 1s to 60s)
      --seconds=TIME
      --own=VALUE
      --file=FILE
      --word=WORD        (one of red, blue; default: red; deprecated, use
                         --paper)
      --paper=SHEET      (one of a4, letter; default: a4; deprecated)
      --only=WORD        (one)
      --list=NUMBER,...  (default: 1,2; environment: LIST)
      --lines=TEXT       (default: a b)
      --none=TEXT,...
      --bools=VALUE,...
      --maybe=NUMBER
      --text=TEXT        (short)
  -h, --help             Show this help.
      --version          Show the version.
)");
}

TEST_F(TypedKinds, AreDescribed) {
    EXPECT_EQ(parseLine(program, {"tarvoption=describe"}),
              R"(0 {"format": "tarv-description", "version": "1.1",
"program": {"name": "p", "version": "1.0", "text": "All kinds."},
"mends": ["negativeNumbers", "loneDash", "emptyValues", "emptyPositionals", "repeatedLetters"],
"flags": ["rejectUnknown", "plainArePositional", "dashIsNotPositional"],
"topics": [
{"name": ""}],
"declarations": [
{"role": "option", "kind": "switch", "names": ["on", "o"], "text": "A switch.", "negatable": true},
{"role": "option", "kind": "switch", "names": ["off"], "text": "Off.", "default": "1", "negatable": true},
{"role": "option", "kind": "none", "names": ["count"], "text": "A counter."},
{"role": "option", "kind": "int32", "names": ["narrow"], "notes": {"range": "-128..127"}},
{"role": "option", "kind": "uint32", "names": ["natural"], "notes": {"range": "0..65535"}},
{"role": "option", "kind": "int32", "names": ["number"], "default": "3", "notes": {"range": "-1..9"}},
{"role": "option", "kind": "uint32", "names": ["unsigned"], "notes": {"range": "1..9"}},
{"role": "option", "kind": "double", "names": ["real"], "default": "0.5", "notes": {"range": "0.25..4"}},
{"role": "option", "kind": "double", "names": ["float"]},
{"role": "option", "kind": "string", "names": ["byte"], "notes": {"required": "1"}, "checks": [{"opaque": true, "by": "type", "text": "must be one character"}]},
{"role": "option", "kind": "string", "names": ["size"], "default": "2KiB", "checks": [{"opaque": true, "by": "type", "text": "must be a number of bytes, such as 4096 or 4MiB, from 1 to 4KiB"}]},
{"role": "option", "kind": "string", "names": ["wait"], "checks": [{"opaque": true, "by": "type", "text": "must be a duration, such as 1.5s or 3min, from 1s to 60s"}]},
{"role": "option", "kind": "string", "names": ["seconds"], "checks": [{"opaque": true, "by": "type", "text": "must be a duration, such as 1.5s or 3min"}]},
{"role": "option", "kind": "string", "names": ["own"], "checks": [{"opaque": true, "by": "type", "text": "is not valid"}]},
{"role": "option", "kind": "string", "names": ["file"], "notes": {"complete": "file"}},
{"role": "option", "kind": "string", "names": ["word"], "allowed": ["red", "blue"], "default": "red", "notes": {"deprecated": "--paper"}},
{"role": "option", "kind": "string", "names": ["paper"], "allowed": ["a4", "letter"], "default": "a4", "notes": {"value": "SHEET", "deprecated": ""}},
{"role": "option", "kind": "string", "names": ["only"], "allowed": ["one"]},
{"role": "option", "kind": "int32", "names": ["list"], "separator": ",", "default": "1,2", "notes": {"environment": "LIST"}},
{"role": "option", "kind": "string", "names": ["lines"], "default": "a b"},
{"role": "option", "kind": "string", "names": ["none"], "separator": ","},
{"role": "option", "kind": "string", "names": ["bools"], "separator": ",", "checks": [{"opaque": true, "by": "type", "text": "must be one of 1, true, yes, on, 0, false, no, off"}]},
{"role": "option", "kind": "int32", "names": ["maybe"]},
{"role": "option", "kind": "string", "names": ["text"], "notes": {"typed.mayBeEmpty": "1"}, "checks": [{"opaque": true, "by": "host", "text": "must be short"}]},
{"role": "option", "kind": "string", "names": ["name"], "text": "The names.", "positional": "filled", "count": {"least": 1, "most": 3}}],
"rules": [
{"kind": "required", "names": ["byte"]}],
"checks": []}
)");
}

TEST(TypedDescription, HasActionsSettingsAndLetters) {
    tarv::Program program("p");
    program.joinLetters();
    program.settingsFile("conf");
    program.settingsOption("config", "");
    const auto list = program.action("list,l", "List it.");
    program.option("all", "", false).goesWith(list).topic("Scope");
    program.positional<std::string>("file", "").required();
    EXPECT_EQ(parseLine(program, {"tarvoption=describe"}),
              R"(0 {"format": "tarv-description", "version": "1.1",
"program": {"name": "p"},
"mends": ["negativeNumbers", "loneDash", "emptyValues", "emptyPositionals", "repeatedLetters", "joinedLetters"],
"settings": [{"file": "conf"}, {"option": "config"}],
"flags": ["rejectUnknown", "plainArePositional", "dashIsNotPositional"],
"topics": [
{"name": ""},
{"name": "Scope", "title": "Scope"}],
"declarations": [
{"role": "option", "kind": "string", "names": ["config"], "notes": {"complete": "file", "value": "FILE"}},
{"role": "action", "kind": "none", "names": ["list", "l"], "text": "List it.", "tags": ["l", "list"]},
{"role": "option", "kind": "switch", "names": ["all"], "topic": "Scope", "tags": ["list"], "default": "0", "negatable": true},
{"role": "option", "kind": "string", "names": ["file"], "positional": "filled", "count": {"least": 1, "most": 1}}],
"rules": [],
"checks": []}
)");
}

TEST(TypedNulls, AreEmptyTexts) {
    tarv::Program program(nullptr, nullptr, nullptr);
    EXPECT_STREQ(program.problems(), "");
    program.flag("x", nullptr).env(nullptr).topic(nullptr).value(nullptr).completeAs(nullptr);
    program.flag("y", nullptr).deprecated(nullptr);
    program.option<int>("z", "").check(nullptr, [](int) { return false; });
    program.settingsFile(nullptr);
    program.option<std::string>("w", "").completeWith(
        [](const char*, tarv::Candidates& candidates) { candidates.add(nullptr, nullptr); });
    EXPECT_STREQ(program.problems(), "");
    EXPECT_EQ(parseLine(program, {"-x", "-y"}), "ok: option '-y' is deprecated\n");
    EXPECT_EQ(parseLine(program, {"-z=1"}), "2 : -z=1: must be \nTry ' --help'.\n");
    program.flag(nullptr, "");
    program.verb(nullptr, nullptr).does([] {});
    EXPECT_STREQ(program.problems(), ": '': a name is empty\n: '': a name is empty\n");
}

TEST(TypedBodies, TheLastOneCounts) {
    tarv::Program program("p");
    int done = 0;
    tarv::Command& log = program.verb("log", "");
    log.does([&] { done = 1; });
    log.does([&] { done = 2; });
    const char* argv[] = {"p", "log", nullptr};
    EXPECT_EQ(program.run(2, argv), 0);
    EXPECT_EQ(done, 2);
}

} // namespace
