#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <thread>

#include "parser/Parsing.h"
#include "recognition/IArgumentParser.h"
#include "support/CapturedLog.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryDirectory.h"

namespace tarv_3_3 {
namespace {

/// A parser that reads option files and refuses unknown arguments; option `name`, not a list.
class OptionFiles : public ::testing::Test {
protected:
    OptionFiles() {
        parsing.parser.addOptionFileOption("", "");
        parsing.parser.option("name", "", vtString, "").tokenize(0);
    }

    int parseFile(const std::string& path) { return parsing.parse({("--option-file=" + path).c_str()}); }

    /// The values of `name`, each in square brackets.
    std::string names() {
        std::string line;
        for (Value value = parsing.result.get("name", 0, 2147483647); value.status == 0;
             value = parsing.result.next("name")) {
            line += "[" + std::string(value.text) + "]";
        }
        return line;
    }

    TemporaryDirectory directory;
    Parsing parsing{0x02};
};

class CountingParser : public BasicParser {
public:
    CountingParser() : BasicParser(0) {}

    IOption& option(const char* names, const char* description, das_variant_type_t type,
                    const char* topic) override {
        declared += std::string(names) + "/" + description + "/" + std::to_string(type) + "/" + topic + ";";
        return BasicParser::option(names, description, type, topic);
    }

    std::string declared;
};

TEST(AddOptionFileOption, DeclaresAStringOption) {
    CountingParser parser;
    EXPECT_TRUE(parser.addOptionFileOption("Reads options.", "files:Files"));
    EXPECT_EQ(parser.declared, "option-file/Reads options./12/files:Files;");
    EXPECT_TRUE(parser.isOptionDeclared("option-file", false, "files"));
}

TEST(AddOptionFileOption, IsTrueEvenWhenTheNameIsTaken) {
    BasicParser parser(0);
    EXPECT_TRUE(parser.addOptionFileOption("", ""));
    const CapturedLog log;
    EXPECT_TRUE(parser.addOptionFileOption("", ""));
    EXPECT_EQ(log.text(),
              "Tried to register an option with a name, which is alread registered: option-file\n");
}

TEST_F(OptionFiles, AreReadAfterARefusedSecondDeclaration) {
    EXPECT_TRUE(parsing.parser.addOptionFileOption("", ""));
    EXPECT_EQ(parseFile(directory.write("a", "--name=1")), 0);
    EXPECT_EQ(names(), "[1]");
}

TEST_F(OptionFiles, AreReadThroughAnOptionThatTheHostDeclaredItself) {
    Parsing own;
    own.parser.option("option-file,f", "", vtString, "");
    own.parser.option("name", "", vtString, "");
    const std::string file = "-f=" + directory.write("a", "--name=1");
    EXPECT_EQ(own.parse({file.c_str()}), 0);
    EXPECT_FALSE(own.result.present("name", 0, 2147483647));
    EXPECT_TRUE(own.parser.addOptionFileOption("", ""));
    EXPECT_EQ(own.parse({"--name=0"}), 0);
    EXPECT_STREQ(getLastValue(&own.result, "name").text, "1");
}

TEST_F(OptionFiles, AreReadBehindTheCommandLine) {
    const std::string file = "--option-file=" + directory.write("a", "--name=2\n--\nplain of file\n");
    EXPECT_EQ(parsing.parse({file.c_str(), "--name=1", "--", "plain of line"}), 0);
    EXPECT_EQ(names(), "[1][2]");
    EXPECT_EQ(parsing.plainArguments(), "[plain of line][plain of file]");
}

// The query begins an iteration, and the loop over the files goes on with it.
TEST_F(OptionFiles, AreRedirectedByAHandlerThatQueriesTheResult) {
    struct Querying : EventHandler {
        explicit Querying(IParseResult& queried) : result(queried) {}
        bool onOptionParse(const char* name) override {
            if (name == std::string("name") && !hasAsked) {
                hasAsked = true;
                result.get("other", 0, 2147483647);
            }
            return true;
        }
        IParseResult& result;
        bool hasAsked = false;
    };
    Querying handler(parsing.result);
    parsing.parser.addHandler(&handler);
    parsing.parser.option("other", "", vtString, "");
    const std::string other = "--other=no-file," + directory.write("redirected", "--name=from_other");
    const std::string files = "--option-file=" + directory.write("first", "--name=from_first") + "," +
                              directory.write("second", "--name=from_second");
    EXPECT_EQ(parsing.parse({other.c_str(), files.c_str()}), 0);
    EXPECT_EQ(names(), "[from_first][from_other]");
}

TEST_F(OptionFiles, AreReadWhenTheyAreNamedAtPositionZero) {
    const int before = IArgumentParser::m_idx;
    IArgumentParser::m_idx = 0;
    const std::string file = "--option-file=" + directory.write("a", "--name=1");
    EXPECT_EQ(parsing.parse({file.c_str()}), 0);
    EXPECT_EQ(names(), "[1]");
    IArgumentParser::m_idx = before;
}

TEST_F(OptionFiles, AreReadForStreamsAsWell) {
    EXPECT_EQ(parsing.parseStream(("--option-file=" + directory.write("a", "--name=1")).c_str()), 0);
    EXPECT_EQ(names(), "[1]");
}

TEST_F(OptionFiles, AreReadInTheOrderStored) {
    const std::string list = "--option-file=" + directory.write("z", "--name=z") + "," +
                             directory.write("a", "--name=a") + "," + directory.write("m", "--name=m");
    const std::string further = "--option-file=" + directory.write("b", "--name=b");
    EXPECT_EQ(parsing.parse({list.c_str(), further.c_str()}), 0);
    EXPECT_EQ(names(), "[z][a][m][b]");
}

TEST_F(OptionFiles, AreReadTwiceWhenNamedTwiceAndAgainByTheNextParse) {
    const std::string path = directory.write("a", "--name=a");
    const std::string file = "--option-file=" + path + "," + path;
    EXPECT_EQ(parsing.parse({file.c_str()}), 0);
    EXPECT_EQ(names(), "[a][a]");
    EXPECT_EQ(parsing.parse({"--name=b"}), 0);
    EXPECT_EQ(names(), "[a][a][b][a][a]");
}

TEST_F(OptionFiles, MayNameFurtherFilesTenDeep) {
    std::string next = directory.write("10", "--name=10");
    for (int depth = 9; depth >= 1; --depth) {
        next = directory.write(std::to_string(depth),
                               "--name=" + std::to_string(depth) + "\n--option-file=" + next + "\n");
    }
    EXPECT_EQ(parseFile(next), 0);
    EXPECT_EQ(names(), "[1][2][3][4][5][6][7][8][9][10]");
}

// A file named in a file waits until those named before it were read.
TEST_F(OptionFiles, NamedInAFileAreReadBehindThoseNamedBefore) {
    const std::string inner = directory.write("inner", "--name=inner");
    const std::string list =
        "--option-file=" + directory.write("first", "--option-file=" + inner + "\n--name=first") + "," +
        directory.write("second", "--name=second");
    EXPECT_EQ(parsing.parse({list.c_str()}), 0);
    EXPECT_EQ(names(), "[first][second][inner]");
}

TEST_F(OptionFiles, MayBeTheDefault) {
    Parsing reader;
    reader.parser.option("option-file", "", vtString, "")
        .defaultValue(directory.write("default", "--name=default").c_str());
    reader.parser.addOptionFileOption("", "");
    reader.parser.option("name", "", vtString, "");
    EXPECT_EQ(reader.parse({"--name=line"}), 0);
    EXPECT_STREQ(getLastValue(&reader.result, "name").text, "default");
    EXPECT_EQ(reader.parseStream("--name=stream"), 0);
    EXPECT_STREQ(getLastValue(&reader.result, "name").text, "default");
}

TEST_F(OptionFiles, AreReadByteForByteUpToAZeroByte) {
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '\n' && byte != '\r') {
            bytes += static_cast<char>(byte);
        }
    }
    const struct {
        const char* title;
        std::string contents;
        std::string names;
    } rows[] = {
        {"empty", "", ""},
        {"no final newline", "--name=1\n--name=2", "[1][2]"},
        {"carriage returns", "--name=1\r\n--name=2\r\r\n\r\n", "[1][2]"},
        {"bytes of all values", "--name=" + bytes + "\n", "[" + bytes + "]"},
        {"zero byte", std::string("--name=1\n--name=2\0 3\n--name=4\n", 29), "[1][2]"},
        {"zero byte at first", std::string("\0--name=1\n", 10), ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.title);
        Parsing reader(0x02);
        reader.parser.addOptionFileOption("", "");
        reader.parser.option("name", "", vtString, "").tokenize(0);
        const std::string file = "--option-file=" + directory.write("file", row.contents);
        EXPECT_EQ(reader.parse({file.c_str()}), 0);
        std::string names;
        for (Value value = reader.result.get("name", 0, 2147483647); value.status == 0;
             value = reader.result.next("name")) {
            names += "[" + std::string(value.text) + "]";
        }
        EXPECT_EQ(names, row.names);
    }
}

TEST_F(OptionFiles, HoldingMinusOneAloneHoldAQuestionMark) {
    EXPECT_EQ(parseFile(directory.write("a", "-1")), 2);
    EXPECT_EQ(parsing.error(), "Unknown option: ?");
}

TEST_F(OptionFiles, WithAByteOrderMarkBeginWithIt) {
    EXPECT_EQ(parseFile(directory.write("a", "\xEF\xBB\xBF--name=1\n")), 2);
    EXPECT_EQ(parsing.error(), "Unknown option: \xEF\xBB\xBF--name=1");
}

TEST_F(OptionFiles, ThatEndRecognitionDoSoForThemselvesOnly) {
    const std::string list = "--option-file=" + directory.write("a", "--name=1\n--\n--name=2\n") + "," +
                             directory.write("b", "--name=3\n");
    EXPECT_EQ(parsing.parse({list.c_str()}), 0);
    EXPECT_EQ(names(), "[1][3]");
    EXPECT_EQ(parsing.plainArguments(), "[--name=2]");
}

TEST_F(OptionFiles, OfTheKernelThatSayNoSizeAreReadWhole) {
    EXPECT_EQ(parseFile("/dev/null"), 0);
    EXPECT_EQ(names(), "");
    Parsing reader;
    reader.parser.addOptionFileOption("", "");
    reader.parser.option("words", "", vtString, "").positional().tokenize(0);
    EXPECT_EQ(reader.parse({"--option-file=/proc/self/cmdline"}), 0);
    std::ifstream file("/proc/self/cmdline");
    std::string program;
    std::getline(file, program, '\0');
    EXPECT_EQ(reader.result.get("words", 0, 2147483647).text, program);
}

TEST_F(OptionFiles, MayHaveALineOfAMebibyte) {
    const std::string value(1 << 20, 'x');
    EXPECT_EQ(parseFile(directory.write("a", "--name=" + value + "\n--name=end\n")), 0);
    EXPECT_TRUE(names() == "[" + value + "][end]");
}

TEST_F(OptionFiles, MayHaveAHundredThousandLines) {
    std::string contents;
    for (int i = 0; i < 100000; ++i) {
        contents += "--name=x\n";
    }
    EXPECT_EQ(parseFile(directory.write("a", contents + "--name=end\n")), 0);
    EXPECT_EQ(parsing.result.entries().find("name")->group().positions.size(), 100001U);
    EXPECT_STREQ(getLastValue(&parsing.result, "name").text, "end");
}

TEST_F(OptionFiles, MayBeAPipe) {
    const std::string path = directory.pathOf("pipe");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    const std::string value(200000, 'x');
    std::thread writer([&] { directory.write("pipe", "--name=" + value + "\n--name=end"); });
    EXPECT_EQ(parseFile(path), 0);
    writer.join();
    EXPECT_TRUE(names() == "[" + value + "][end]");
}

TEST_F(OptionFiles, ThatCannotBeReadEndTheParse) {
    const struct {
        const char* title;
        std::string path;
    } rows[] = {
        {"missing", directory.pathOf("missing.txt")},
        {"in a missing directory", directory.pathOf("missing/file")},
        {"a directory", directory.pathOf("")},
        {"a directory, roundabout", directory.pathOf("") + "/./"},
        {"below a file", directory.write("file", "") + "/file"},
        {"too long", std::string(5000, 'x')},
        {"without a path", "missing.txt"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.title);
        Parsing reader(0x02);
        reader.parser.addOptionFileOption("", "");
        const std::string file = "--option-file=" + row.path;
        EXPECT_EQ(reader.parse({file.c_str()}), 6);
        EXPECT_EQ(reader.error(), "Error reading option file '" + row.path + "'");
    }
}

TEST_F(OptionFiles, WithoutPermissionEndTheParse) {
    const std::string path = directory.write("secret", "--name=1");
    ASSERT_EQ(chmod(directory.pathOf("").c_str(), 0755), 0);
    ASSERT_EQ(chmod(path.c_str(), 0), 0);
    const OrdinaryUser user;
    if (geteuid() == 0) {
        GTEST_SKIP() << "the superuser may read every file, and cannot become another user here";
    }
    EXPECT_EQ(parseFile(path), 6);
    EXPECT_EQ(parsing.error(), "Error reading option file '" + path + "'");
}

TEST_F(OptionFiles, KeepWhatWasStoredBeforeOneFails) {
    const std::string list = "--option-file=" + directory.write("a", "--name=a\n--\nplain") + "," +
                             directory.pathOf("missing") + "," + directory.write("b", "--name=b");
    EXPECT_EQ(parsing.parse({"--name=line", list.c_str()}), 6);
    EXPECT_EQ(parsing.error(), "Error reading option file '" + directory.pathOf("missing") + "'");
    EXPECT_EQ(names(), "[line][a]");
    EXPECT_EQ(parsing.plainArguments(), "[plain]");
}

TEST_F(OptionFiles, EndTheParseAtTheirFirstBadLine) {
    const std::string list = "--option-file=" + directory.write("a", "--name=a\nx\n--name=b") + "," +
                             directory.write("b", "--name=c");
    EXPECT_EQ(parsing.parse({list.c_str()}), 2);
    EXPECT_EQ(parsing.error(), "Unknown option: x");
    EXPECT_EQ(names(), "[a]");
}

TEST_F(OptionFiles, AreNotReadWhenTheCommandLineFails) {
    const std::string file = "--option-file=" + directory.pathOf("missing");
    EXPECT_EQ(parsing.parse({file.c_str(), "x"}), 2);
    EXPECT_EQ(parsing.error(), "Unknown option: x");
}

TEST_F(OptionFiles, AreCheckedByTheRulesTogetherWithTheCommandLine) {
    parsing.parser.action("build", "", vtNull, "");
    parsing.parser.modifier("deep", "clean", "", vtNull, "");
    const std::string path = directory.write("a", "--build\n--name=a");
    EXPECT_EQ(parseFile(path), 0);
    const std::string other = "--option-file=" + directory.write("b", "--deep");
    EXPECT_EQ(parsing.parse({other.c_str()}), 2);
    EXPECT_EQ(parsing.error(), "Action '-build' doesn't accept option '-deep'");
}

TEST_F(OptionFiles, DecideForThemselvesWhetherToTrace) {
    Parsing reader;
    reader.parser.addOptionFileOption("", "");
    const std::string list =
        "--option-file=" + directory.write("silent", "a\n") + "," +
        directory.write("traced", "# comment\n  tarvoption=tarvlogenable=1\r\nb\n--\nplain\n") + "," +
        directory.write("late", "c\ntarvoption=tarvlogenable=1\n");
    const CapturedLog log;
    EXPECT_EQ(reader.parse({list.c_str()}), 0);
    EXPECT_EQ(log.text(), "PositionalOptionsParser: recognizing argument 'b'\n"
                          "AbbreviationParser: recognizing argument 'b'\n"
                          "ignoring b\n"
                          "collectNonparsingArguments: stored argument: 'plain'\n");
    EXPECT_FALSE(internal::tarvLogEnabled);
}

/// Has no memory for a second value.
class ExhaustedResult final : public ParseResult {
public:
    Value next(const char*) override {
        Value exhausted;
        exhausted.status = valueException;
        return exhausted;
    }
};

TEST_F(OptionFiles, AreNotAtTheirEndWhenAQueryFails) {
    ExhaustedResult result;
    const std::string argument = "--option-file=" + directory.write("options", "--name=a");
    const char* const argv[] = {"program", argument.c_str()};
    EXPECT_EQ(parsing.parser.parseArgsVector(2, argv, &result), 4);
    EXPECT_EQ(parsing.error(), "Unidentified problem detected.");
    EXPECT_STREQ(result.get("name", 0, noPosition).text, "a");
}

} // namespace
} // namespace tarv_3_3
