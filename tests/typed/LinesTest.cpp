#include <chrono>
#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/TypedLine.h"

namespace {

namespace tarv = tarv_3_3::typed;

using Texts = std::vector<std::string>;

std::string wrong(const std::string& message) {
    return "2 p: " + message + "\nTry 'p --help'.\n";
}

TEST(TypedLines, ANumberWithAMinusIsAValueOfAnOptionThatTakesNumbers) {
    tarv::Program program("p");
    const auto offset = program.option<int>("offset,o", "");
    const auto gamma = program.option<double>("gamma", "");
    program.option<std::string>("text", "");
    const auto five = program.flag("5", "");
    EXPECT_EQ(parseLine(program, {"--offset", "-5", "--gamma", "-.5"}), "ok");
    EXPECT_EQ(*offset, -5);
    EXPECT_EQ(*gamma, -0.5);
    EXPECT_FALSE(*five);
    EXPECT_EQ(parseLine(program, {"--offset", "-x"}), wrong("option '--offset' needs a value"));
    EXPECT_EQ(parseLine(program, {"--text", "-5"}), wrong("option '--text' needs a value"));
    EXPECT_EQ(parseLine(program, {"--offset", "-5x"}), wrong("--offset -5x: must be a whole number"));
}

TEST(TypedLines, EveryKindOfNumberTakesOneWithAMinus) {
    tarv::Program program("p");
    program.option<unsigned>("unsigned", "");
    program.option<double>("real", "");
    program.option<tarv::Size>("size", "");
    program.option<std::chrono::seconds>("wait", "");
    program.option<std::vector<int>>("list", "");
    program.option<char>("byte", "");
    const struct {
        const char* line;
        const char* message;
    } rows[] = {
        {"--unsigned -5", "--unsigned -5: must be from 0 to 4294967295"},
        {"--real -5", ""},
        {"--real -.5", ""},
        {"--real -.", "option '--real' needs a value"},
        {"--real -.x", "option '--real' needs a value"},
        {"--size -5", "--size -5: must be a number of bytes, such as 4096 or 4MiB"},
        {"--wait -5s", ""},
        {"--list -5", ""},
        {"--byte -5", "option '--byte' needs a value"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(parseLine(program, words(row.line)), *row.message == '\0' ? "ok" : wrong(row.message));
    }
}

TEST(TypedLines, ANumberWithAMinusIsAnArgumentWhereArgumentsAreNumbers) {
    tarv::Program program("p");
    const auto five = program.flag("5", "");
    const auto verbose = program.counter("7", "");
    const auto numbers = program.positional<std::vector<double>>("number", "");
    EXPECT_EQ(parseLine(program, {"-6", "-.5", "3", "-5", "-77"}), "ok");
    EXPECT_EQ(*numbers, (std::vector<double>{-6, -0.5, 3}));
    EXPECT_TRUE(*five);
    EXPECT_EQ(*verbose, 2);
    EXPECT_EQ(parseLine(program, {"-6x"}), wrong("NUMBER '-6x': must be a number"));
    EXPECT_EQ(parseLine(program, {"-x"}), wrong("unknown option '-x'"));
    EXPECT_EQ(parseLine(program, {"-0", "-9"}), "ok");
    for (const char* const beside : {"-/", "-:", "-./", "-.:"}) {
        EXPECT_EQ(parseLine(program, {beside}), wrong("unknown option '" + std::string(beside) + "'"));
    }

    tarv::Program letters("p");
    letters.joinLetters().flag("5", "");
    const auto offset = letters.positional<int>("offset", "");
    EXPECT_EQ(parseLine(letters, {"-6"}), "ok");
    EXPECT_EQ(*offset, -6);
    EXPECT_EQ(parseLine(letters, {"-56"}), wrong("unknown option '-6'"));

    tarv::Program text("p");
    text.positional<std::string>("file", "");
    EXPECT_EQ(parseLine(text, {"-6"}), wrong("unknown option '-6'"));
}

TEST(TypedLines, ALoneDashIsAValue) {
    tarv::Program program("p");
    const auto input = program.option<std::string>("input", "");
    const auto file = program.positional<std::string>("file", "");
    EXPECT_EQ(parseLine(program, {"--input", "-", "-"}), "ok");
    EXPECT_EQ(*input, "-");
    EXPECT_EQ(*file, "-");
}

TEST(TypedLines, AnEmptyValueNeverTakesTheNextArgument) {
    tarv::Program program("p");
    const auto title = program.option<std::string>("title", "").mayBeEmpty();
    program.option<std::string>("name", "");
    const auto file = program.positional<std::string>("file", "");
    for (const Texts& line : {Texts{"--title=", "x"}, Texts{"--title ", "x"}, Texts{"--title", "", "x"}}) {
        SCOPED_TRACE(line.front());
        EXPECT_EQ(parseLine(program, line), "ok");
        EXPECT_TRUE(title.given());
        EXPECT_EQ(*title, "");
        EXPECT_EQ(*file, "x");
    }
    EXPECT_EQ(parseLine(program, {"--name=", "x"}), wrong("--name=: the value is empty"));
    EXPECT_EQ(parseLine(program, {"--name", ""}), wrong("--name '': the value is empty"));
}

TEST(TypedLines, AListThatMayBeEmptyTakesAnEmptyTextButNoLoneSeparator) {
    tarv::Program program("p");
    const auto names = program.option<Texts>("name", "").mayBeEmpty();
    EXPECT_EQ(parseLine(program, {"--name=", "--name=a"}), "ok");
    EXPECT_EQ(*names, (Texts{"", "a"}));
    EXPECT_EQ(parseLine(program, {"--name=,"}), wrong("--name=,: the value is empty"));
}

TEST(TypedLines, AnEmptyPositionalIsAnEmptyText) {
    tarv::Program program("p");
    const auto files = program.positional<Texts>("file", "");
    const auto count = program.option<int>("n", "");
    EXPECT_EQ(parseLine(program, {"", "a", ""}), "ok");
    EXPECT_EQ(*files, (Texts{"", "a", ""}));
    EXPECT_EQ(count.count(), 0);
}

TEST(TypedLines, RepeatedLettersCountACounter) {
    tarv::Program program("p");
    const auto verbose = program.counter("verbose,v", "");
    program.flag("x", "");
    EXPECT_EQ(parseLine(program, {"-vvv", "--verb", "-v"}), "ok");
    EXPECT_EQ(*verbose, 5);
    EXPECT_EQ(verbose.count(), 5);
    EXPECT_EQ(verbose.position(0), 1);
    EXPECT_EQ(verbose.position(), 3);
    EXPECT_EQ(parseLine(program, {}), "ok");
    EXPECT_EQ(*verbose, 0);
    EXPECT_EQ(parseLine(program, {"-xx"}), wrong("unknown option '-xx'\nDid you mean '-x -x'?"));
    EXPECT_EQ(parseLine(program, {"--vv"}), wrong("unknown option '--vv'"));
    EXPECT_EQ(parseLine(program, {"-v=3"}), wrong("-v=3: option '-v' takes no value"));
    EXPECT_EQ(parseLine(program, {"-vv=3"}), wrong("unknown option '-vv'"));
}

TEST(TypedLines, RequiredPositionalsAreServedFirst) {
    tarv::Program copy("p");
    const auto sources = copy.positional<Texts>("source", "").required();
    const auto target = copy.positional<std::string>("dest", "").required();
    EXPECT_EQ(parseLine(copy, {"a", "b", "c"}), "ok");
    EXPECT_EQ(*sources, (Texts{"a", "b"}));
    EXPECT_EQ(*target, "c");
    EXPECT_EQ(sources.position(1), 2);
    EXPECT_EQ(parseLine(copy, {"a"}), wrong("argument DEST is missing"));
    EXPECT_EQ(parseLine(copy, {}), wrong("argument SOURCE is missing"));

    tarv::Program second("p");
    const auto first = second.positional<std::string>("first", "", "none");
    const auto last = second.positional<int>("last", "").required();
    EXPECT_EQ(parseLine(second, {"7"}), "ok");
    EXPECT_TRUE(*first == "none");
    EXPECT_EQ(*last, 7);
    EXPECT_EQ(parseLine(second, {"a", "7"}), "ok");
    EXPECT_EQ(parseLine(second, {"a", "b"}), wrong("LAST 'b': must be a whole number"));
    EXPECT_EQ(parseLine(second, {"a", "7", "c"}), wrong("unexpected argument 'c'"));
}

TEST(TypedLines, APositionalListHasCounts) {
    tarv::Program program("p");
    program.positional<Texts>("point", "").times(2, 3);
    EXPECT_EQ(parseLine(program, {"a"}), wrong("argument POINT is needed at least 2 times"));
    EXPECT_EQ(parseLine(program, {"a", "b", "c"}), "ok");
    EXPECT_EQ(parseLine(program, {"a", "b", "c", "d"}), wrong("unexpected argument 'd'"));
    EXPECT_EQ(parseLine(program, {}), wrong("argument POINT is missing"));
}

TEST(TypedLines, APositionalListTakesNoMoreThanItsCountAndLeavesTheRest) {
    tarv::Program program("p");
    const auto corners = program.positional<Texts>("corner", "").times(2, 2);
    const auto name = program.positional<std::string>("name", "");
    EXPECT_EQ(parseLine(program, {"a", "b", "c"}), "ok");
    EXPECT_EQ(*corners, (Texts{"a", "b"}));
    EXPECT_EQ(*name, "c");
}

TEST(TypedLines, BehindTheMarkerEverythingIsPositional) {
    tarv::Program program("p");
    const auto verbose = program.flag("verbose", "");
    const auto files = program.positional<Texts>("file", "");
    EXPECT_EQ(parseLine(program, {"--verbose", "--", "--verbose", "--"}), "ok");
    EXPECT_TRUE(*verbose);
    EXPECT_EQ(*files, (Texts{"--verbose", "--"}));
}

TEST(TypedLines, ARestTakesWhateverFollows) {
    tarv::Program program("p", "1");
    const auto verbose = program.flag("verbose", "");
    const auto host = program.positional<std::string>("host", "").required();
    const auto command = program.rest<Texts>("command", "");
    EXPECT_EQ(parseLine(program, {"--verb", "h", "ls", "--help", "--", "-x"}), "ok");
    EXPECT_TRUE(*verbose);
    EXPECT_EQ(*host, "h");
    EXPECT_EQ(*command, (Texts{"ls", "--help", "--", "-x"}));
    EXPECT_EQ(parseLine(program, {"h", "--verbose"}), "ok");
    EXPECT_FALSE(*verbose);
}

TEST(TypedLines, JoinedLettersAreTakenApart) {
    tarv::Program sort("p");
    sort.joinLetters();
    const auto numeric = sort.flag("numeric-sort,n", "");
    const auto verbose = sort.counter("v", "");
    const auto key = sort.option<Texts>("key,k", "").separator('\0');
    const auto separator = sort.option<std::string>("t", "");
    const auto lines = sort.option<int>("lines,l", "");
    EXPECT_EQ(parseLine(sort, {"-nvl3", "-vk", "2,3", "-k1", "-t="}), "ok");
    EXPECT_TRUE(*numeric);
    EXPECT_EQ(*verbose, 2);
    EXPECT_EQ(*lines, 3);
    EXPECT_EQ(*key, (Texts{"2,3", "1"}));
    EXPECT_EQ(key.position(0), 2);
    EXPECT_EQ(*separator, "=");
    EXPECT_EQ(parseLine(sort, {"-l=4", "--lines=5", "-l", "-6"}), "ok");
    EXPECT_EQ(*lines, -6);
    EXPECT_EQ(parseLine(sort, {"-nx"}), wrong("unknown option '-x'"));
    EXPECT_EQ(parseLine(sort, {"-n\xFFx"}), wrong("unknown option '-\\xff'"));
    EXPECT_EQ(parseLine(sort, {"-n\xC3\xBCx"}), wrong("unknown option '-\xC3\xBC'"));
    EXPECT_EQ(parseLine(sort, {"-nl"}), wrong("option '-l' needs a value"));
    EXPECT_EQ(parseLine(sort, {"-lines=3"}), wrong("-lines=3: must be a whole number"));
}

TEST(TypedLines, SwitchesAndTheirContraries) {
    tarv::Program program("p");
    const auto color = program.option("color,c", "", true);
    EXPECT_EQ(parseLine(program, {}), "ok");
    EXPECT_TRUE(*color);
    EXPECT_EQ(parseLine(program, {"--no-color"}), "ok");
    EXPECT_FALSE(*color);
    EXPECT_TRUE(color.given());
    EXPECT_EQ(parseLine(program, {"--no-c", "--col"}), "ok");
    EXPECT_TRUE(*color);
    EXPECT_EQ(parseLine(program, {"--color=1"}), wrong("--color=1: option '--color' takes no value"));
}

TEST(TypedLines, UnknownAndAmbiguousNamesAreRefused) {
    tarv::Program program("p");
    program.option<int>("max-count", "");
    program.option<int>("max-depth", "");
    EXPECT_EQ(parseLine(program, {"--m-c=3"}), "ok");
    EXPECT_EQ(parseLine(program, {"--zzz=3"}), wrong("unknown option '--zzz'"));
    EXPECT_EQ(parseLine(program, {"--m-cuont=3"}),
              wrong("unknown option '--m-cuont'\nDid you mean '--max-count'?"));
    EXPECT_EQ(parseLine(program, {"--m-=3"}),
              wrong("ambiguous option '--m-', could be '--max-count' or '--max-depth'"));
    EXPECT_EQ(parseLine(program, {"--hlep"}), wrong("unknown option '--hlep'\nDid you mean '--help'?"));
    EXPECT_EQ(parseLine(program, {"--max-count=1", "x\x1b[m"}), wrong("unexpected argument 'x\\x1b[m'"));
    EXPECT_EQ(parseLine(program, {"---x"}), wrong("unknown option '---x'"));
}

TEST(TypedLines, PositionsAreIndicesOfTheCommandLine) {
    tarv::Program program("p");
    const auto level = program.option<int>("level", "");
    const auto file = program.positional<std::string>("file", "");
    EXPECT_EQ(parseLine(program, {"a", "--level", "3", "--level=4"}), "ok");
    EXPECT_EQ(level.count(), 2);
    EXPECT_EQ(level.position(0), 2);
    EXPECT_EQ(level.position(), 4);
    EXPECT_EQ(level.position(2), -1);
    EXPECT_EQ(file.position(), 1);
    EXPECT_EQ(level.source(), tarv::Source::commandLine);
}

TEST(TypedLines, TheFirstComplaintOfTheLineCounts) {
    tarv::Program program("p");
    program.option<int>("first", "");
    program.option<int>("second", "");
    EXPECT_EQ(parseLine(program, {"--second=x", "--first=y"}), wrong("--second=x: must be a whole number"));
    EXPECT_EQ(parseLine(program, {"--first=y", "--bogus", "--more"}), wrong("unknown option '--bogus'"));
}

TEST(TypedLines, TheTraceSaysWhatEachArgumentIs) {
    tarv::Program program("p", "1.0");
    program.option<std::vector<int>>("level,l", "");
    program.flag("color", "").env("TARV_TEST_TRACED");
    program.counter("verbose,v", "");
    tarv::Command& log = program.verb("log", "").does([] {});
    log.positional<std::string>("file", "");
    const std::string traceSwitch = "tarvoption=tarvlogenable=1";
    EXPECT_EQ(parseLine(program, {traceSwitch, "--lev=1,2", "-vv", "lo", "-l", "3", "a\x1b"}),
              "okp: the command is 'p log'\n"
              "p: --lev=1,2 is option '--level', value '1,2'\n"
              "p: -vv is option '--verbose'\n"
              "p: -vv is option '--verbose'\n"
              "p: -l 3 is option '--level', value '3'\n"
              "p: 'a\\x1b' is argument FILE\n");
    EXPECT_EQ(parseLine(program, {traceSwitch, "log", "--no-color", "--bogus"}),
              "2 p: the command is 'p log'\n"
              "p: --no-color is option '--color', value 'off'\n"
              "p: unknown option '--bogus'\nTry 'p log --help'.\n");
    setenv("TARV_TEST_TRACED", "yes", 1);
    EXPECT_EQ(parseLine(program, {traceSwitch, "log"}),
              "okp: the command is 'p log'\np: TARV_TEST_TRACED=yes is option '--color', value 'yes'\n");
    unsetenv("TARV_TEST_TRACED");
    EXPECT_EQ(parseLine(program, {traceSwitch, "--version", "log", "a"}),
              "0 p 1.0\np: the command is 'p log'\np: 'a' is argument FILE\n");
    EXPECT_EQ(parseLine(program, {"log", traceSwitch}), "ok");
    tarv::Program named("p");
    named.positional<std::string>("file", "").env("TARV_TEST_TRACED");
    setenv("TARV_TEST_TRACED", "a", 1);
    EXPECT_EQ(parseLine(named, {traceSwitch}), "okp: TARV_TEST_TRACED=a is argument FILE, value 'a'\n");
    unsetenv("TARV_TEST_TRACED");
}

TEST(TypedLines, ALineWithoutArgumentsOrProgramIsRight) {
    tarv::Program program("p");
    EXPECT_TRUE(program.parse(0, nullptr).goesOn());
    EXPECT_TRUE(program.parse(2, nullptr).goesOn());
    const char* const argv[] = {"p", nullptr, "--bogus"};
    EXPECT_TRUE(program.parse(1, argv).goesOn());
    EXPECT_TRUE(program.parse(3, argv).goesOn());
}

} // namespace
