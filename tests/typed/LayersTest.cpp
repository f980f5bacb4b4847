#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/EnvironmentVariable.h"
#include "support/TemporaryDirectory.h"
#include "support/TypedLine.h"

namespace {

namespace tarv = tarv_3_3::typed;

using Texts = std::vector<std::string>;

std::string wrong(const std::string& message, const std::string& path = "p") {
    return "2 p: " + message + "\nTry '" + path + " --help'.\n";
}

TEST(TypedLayers, TheStrongestSourceCounts) {
    const TemporaryDirectory directory;
    tarv::Program program("p");
    const auto level = program.option("level", "", 1).env("TARV_TEST_LEVEL");
    const auto list = program.option<Texts>("list", "", {"initial"}).env("TARV_TEST_LIST");
    program.settingsFile(directory.write("conf", "level=2\nlist=f,g\nlist=h\n").c_str());
    EXPECT_EQ(parseLine(program, {}), "ok");
    EXPECT_EQ(*level, 2);
    EXPECT_EQ(level.source(), tarv::Source::file);
    EXPECT_EQ(level.position(), -1);
    EXPECT_EQ(*list, (Texts{"f", "g", "h"}));
    EXPECT_EQ(list.count(), 2);
    {
        const EnvironmentVariable levelVariable("TARV_TEST_LEVEL", "3");
        const EnvironmentVariable listVariable("TARV_TEST_LIST", "e");
        EXPECT_EQ(parseLine(program, {}), "ok");
        EXPECT_EQ(*level, 3);
        EXPECT_EQ(level.source(), tarv::Source::environment);
        EXPECT_EQ(*list, (Texts{"e"}));
        EXPECT_EQ(parseLine(program, {"--level=4", "--list=c"}), "ok");
        EXPECT_EQ(*level, 4);
        EXPECT_EQ(level.source(), tarv::Source::commandLine);
        EXPECT_EQ(*list, (Texts{"c"}));
    }
    program.settingsFile(directory.pathOf("none").c_str());
    EXPECT_EQ(parseLine(program, {}), "ok");
    EXPECT_EQ(*level, 1);
    EXPECT_EQ(level.source(), tarv::Source::initial);
    EXPECT_FALSE(level.given());
}

TEST(TypedLayers, VariablesAreReadByTheirKind) {
    tarv::Program program("p");
    const auto color = program.flag("color", "").env("TARV_TEST_COLOR");
    const auto verbose = program.counter("verbose", "").env("TARV_TEST_VERBOSE");
    program.option<int>("jobs", "").env("TARV_TEST_JOBS");
    program.option<std::string>("word", "").oneOf("red", "blue").env("TARV_TEST_WORD");
    const struct {
        const char* name;
        const char* value;
        const char* message;
        bool color;
        int verbose;
    } rows[] = {{"TARV_TEST_COLOR", "yes", "", true, 0},
                {"TARV_TEST_COLOR", "off", "", false, 0},
                {"TARV_TEST_COLOR", "", "", false, 0},
                {"TARV_TEST_VERBOSE", "3", "", false, 3},
                {"TARV_TEST_COLOR", "maybe",
                 "TARV_TEST_COLOR=maybe: must be one of 1, true, yes, on, 0, false, no, off", false, 0},
                {"TARV_TEST_VERBOSE", "v", "TARV_TEST_VERBOSE=v: must be a whole number", false, 0},
                {"TARV_TEST_JOBS", "many", "TARV_TEST_JOBS=many: must be a whole number", false, 0},
                {"TARV_TEST_WORD", "re", "TARV_TEST_WORD=re: must be one of red or blue", false, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.name) + "=" + row.value);
        const EnvironmentVariable variable(row.name, row.value);
        EXPECT_EQ(parseLine(program, {}), *row.message == '\0' ? "ok" : wrong(row.message));
        if (*row.message == '\0') {
            EXPECT_EQ(*color, row.color);
            EXPECT_EQ(*verbose, row.verbose);
        }
    }
}

TEST(TypedLayers, LinesOfSettingsAreWholeNamesAndAllChecked) {
    const TemporaryDirectory directory;
    tarv::Program program("p");
    program.option<int>("max-count", "");
    const auto color = program.flag("color", "");
    const auto paging = program.option("paging", "", true);
    tarv::Command& log = program.verb("log", "");
    const auto depth = log.option<int>("depth", "").range(1, 9);
    log.does([] {});
    tarv::Command& remote = program.verb("remote", "");
    const auto url = remote.verb("add", "").does([] {}).option<std::string>("url", "");
    const struct {
        const char* contents;
        const char* message;
    } rows[] = {{"# comment\n; comment\n\n  --max-count=3\r\nno-color\n", ""},
                {"max-count 3\nlog.depth=4\nremote.add.url=x y\n", ""},
                {"max=3\n", ":1: unknown setting 'max'"},
                {"\nlo.depth=3\n", ":2: unknown setting 'lo.depth'"},
                {"depth=3\n", ":1: unknown setting 'depth'"},
                {"log.max-count=3\n", ":1: unknown setting 'log.max-count'"},
                {"max-count\n", ":1: setting 'max-count' needs a value"},
                {"max-count=\n", ":1: the value is empty"},
                {"no-color=1\n", ":1: no-color=1: option 'no-color' takes no value"},
                {"max-count=x\n", ":1: max-count=x: must be a whole number"},
                {"remote.add.url=x\nlog.depth=10\n", ":2: log.depth=10: must be from 1 to 9"},
                {"color=maybe\n", ":1: color=maybe: must be one of 1, true, yes, on, 0, false, no, off"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.contents);
        const std::string path = directory.write("conf", row.contents);
        program.settingsFile(path.c_str());
        const std::string expected = wrong(path + row.message, "p remote add");
        EXPECT_EQ(parseLine(program, {"remote", "add"}), *row.message == '\0' ? "ok" : expected);
    }
    program.settingsFile(
        directory.write("conf", "color\nno-paging\nlog.depth=4\nremote.add.url=x y").c_str());
    EXPECT_EQ(parseLine(program, {"log"}), "ok");
    EXPECT_EQ(*depth, 4);
    EXPECT_TRUE(*color);
    EXPECT_FALSE(*paging);
    EXPECT_FALSE(url.given());
}

TEST(TypedLayers, AFileThatIsNamedMustBeThere) {
    const TemporaryDirectory directory;
    tarv::Program program("p");
    const auto config = program.settingsOption("config", "").env("TARV_TEST_CONFIG");
    const auto level = program.option("level", "", 1);
    const auto depth = program.option("depth", "", 1);
    program.settingsFile(directory.write("weak", "level=2\ndepth=2\n").c_str());
    const std::string strong = directory.write("strong", "level=3\n");
    EXPECT_EQ(parseLine(program, {"--config=" + strong}), "ok");
    EXPECT_EQ(*level, 3);
    EXPECT_EQ(*depth, 2);
    const std::string none = directory.pathOf("none");
    EXPECT_EQ(parseLine(program, {"--config=" + none}),
              wrong("cannot read the settings file '" + none + "'"));
    const EnvironmentVariable variable("TARV_TEST_CONFIG", strong.c_str());
    EXPECT_EQ(parseLine(program, {}), "ok");
    EXPECT_EQ(*level, 3);
    EXPECT_EQ(config.source(), tarv::Source::environment);
    program.settingsFile(directory.write("weak", "config=x\n").c_str());
    EXPECT_EQ(parseLine(program, {}), wrong(directory.pathOf("weak") + ":1: unknown setting 'config'"));
    program.settingsFile(directory.pathOf("").c_str());
    EXPECT_EQ(parseLine(program, {}), wrong("cannot read the settings file '" + directory.pathOf("") + "'"));
    program.settingsFile((strong + "/conf").c_str());
    EXPECT_EQ(parseLine(program, {}), wrong("cannot read the settings file '" + strong + "/conf'"));
}

TEST(TypedLayers, OfWhatIsNotUsedNobodyIsWarned) {
    const TemporaryDirectory directory;
    tarv::Program program("p");
    program.option<int>("old", "").deprecated("").env("TARV_TEST_OLD");
    program.verb("log", "").does([] {}).flag("older", "").deprecated("");
    program.verb("show", "").does([] {});
    program.settingsFile(directory.write("conf", "log.older\n").c_str());
    EXPECT_EQ(parseLine(program, {"show"}), "ok");
    EXPECT_EQ(parseLine(program, {"log"}), "okp: option '--older' is deprecated\n");
}

TEST(TypedLayers, AStrongerSourceExcludesAWeakerOne) {
    const TemporaryDirectory directory;
    tarv::Program program("p");
    const auto skip = program.flag("skip", "").env("TARV_TEST_SKIP");
    const auto overwrite = program.flag("overwrite", "");
    program.atMostOne(skip, overwrite);
    program.settingsFile(directory.write("conf", "overwrite\n").c_str());
    const EnvironmentVariable variable("TARV_TEST_SKIP", "1");
    EXPECT_EQ(parseLine(program, {}), "ok");
    EXPECT_TRUE(*skip && !*overwrite && !overwrite.given());
    EXPECT_EQ(overwrite.source(), tarv::Source::initial);
    EXPECT_EQ(parseLine(program, {"--overwrite"}), "ok");
    EXPECT_TRUE(!*skip && !skip.given() && *overwrite);
    EXPECT_EQ(parseLine(program, {"--no-overwrite"}), "ok");
    EXPECT_TRUE(*skip && !*overwrite && overwrite.given());
}

TEST(TypedLayers, AnActionExcludesWhatDoesNotGoWithIt) {
    tarv::Program program("p");
    const auto list = program.action("list", "");
    const auto make = program.action("make", "");
    const auto level = program.option("level", "", 1).goesWith(make).env("TARV_TEST_LEVEL");
    const EnvironmentVariable variable("TARV_TEST_LEVEL", "3");
    EXPECT_EQ(parseLine(program, {"--make"}), "ok");
    EXPECT_EQ(*level, 3);
    EXPECT_EQ(parseLine(program, {"--list"}), "ok");
    EXPECT_EQ(*level, 1);
    EXPECT_FALSE(level.given());
    EXPECT_TRUE(*list && !*make);
}

TEST(TypedLayers, SettingsNameNoArguments) {
    const TemporaryDirectory directory;
    tarv::Program program("p");
    program.positional<std::string>("file", "");
    program.settingsFile(directory.write("conf", "file=x\n").c_str());
    EXPECT_EQ(parseLine(program, {}), wrong(directory.pathOf("conf") + ":1: unknown setting 'file'"));
}

TEST(TypedLayers, AnActionOfTheCommandLineIsStrongerThanOneOfAFile) {
    const TemporaryDirectory directory;
    tarv::Program tar("p");
    const auto list = tar.action("list", "");
    const auto extract = tar.action("extract", "");
    const auto folder = tar.option<std::string>("folder", "").goesWith(extract);
    tar.settingsFile(directory.write("conf", "--extract\n--folder=x\n").c_str());
    EXPECT_EQ(parseLine(tar, {}), "ok");
    EXPECT_TRUE(*extract && !*list);
    EXPECT_EQ(*folder, "x");
    EXPECT_EQ(parseLine(tar, {"--list"}), "ok");
    EXPECT_TRUE(!*extract && *list && !folder.given());
    EXPECT_EQ(parseLine(tar, {"tarvoption=tarvlogenable=1", "--list"}),
              "okp: --list is action '--list'\n"
              "p: " +
                  directory.pathOf("conf") +
                  ":1: --extract is action '--extract', which is not used\n"
                  "p: " +
                  directory.pathOf("conf") +
                  ":2: --folder=x is option '--folder', value 'x', which is not used\n");
    tar.settingsFile(directory.write("conf", "extract=1\n").c_str());
    EXPECT_EQ(parseLine(tar, {}),
              wrong(directory.pathOf("conf") + ":1: extract=1: option 'extract' takes no value"));
    tar.settingsFile(directory.write("conf", "extract\nlist\n").c_str());
    EXPECT_EQ(parseLine(tar, {}), wrong("actions '--extract' and '--list' exclude each other"));
}

TEST(TypedLayers, AbbreviationsAreToldOrRefusedOnRequest) {
    tarv::Program program("p");
    program.option<int>("max-count", "");
    program.verb("log", "").does([] {});
    const Texts line = {"--m-c=3", "lo"};
    EXPECT_EQ(parseLine(program, line), "ok");
    {
        const EnvironmentVariable variable("TARV_ABBREVIATIONS", "warn");
        EXPECT_EQ(parseLine(program, line),
                  "okp: '--m-c' is short for '--max-count'\np: 'lo' is short for 'log'\n");
        EXPECT_EQ(parseLine(program, {"--max-count=3", "log"}), "ok");
    }
    const EnvironmentVariable variable("TARV_ABBREVIATIONS", "error");
    EXPECT_EQ(parseLine(program, line), wrong("'--m-c' must be written in full: '--max-count'", "p log"));
    EXPECT_EQ(parseLine(program, {"lo"}), wrong("'lo' must be written in full: 'log'", "p log"));
    EXPECT_EQ(parseLine(program, {"--max-count=3", "log"}), "ok");
}

} // namespace
