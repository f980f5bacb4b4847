#include <gtest/gtest.h>

#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <thread>

#include "reliability/Session.h"

namespace {

using namespace tarv_3_3;

/// A directory of its own for every test, and a parser that reads option files.
struct HostileOptionFiles : testing::Test {
    HostileOptionFiles() {
        char pattern[] = "/tmp/option-files-XXXXXX";
        directory = mkdtemp(pattern);
        open(session);
        session.parser->option("level", "", vtInt32);
        session.parser->option("name", "", vtString);
        session.parser->option("files", "", vtString).positional();
        session.parser->addOptionFileOption("");
    }

    ~HostileOptionFiles() override { std::filesystem::remove_all(directory); }

    std::string write(const std::string& name, const std::string& contents) const {
        const std::string path = directory + "/" + name;
        std::ofstream(path, std::ios::binary) << contents;
        return path;
    }

    /// The status of a parse that names the file, and what is then stored.
    std::string read(const std::string& path) {
        const int status = parse(session, {"--option-file=" + path});
        return std::to_string(status) + " " + stored(session, {"level", "name", "files"});
    }

    std::string directory;
    Session session;
};

TEST_F(HostileOptionFiles, ThatCannotBeReadAreReported) {
    const std::string rows[] = {directory + "/missing", directory, "/dev/null/x", directory + "/./",
                                std::string(5000, 'x')};
    for (const std::string& path : rows) {
        SCOPED_TRACE(path);
        EXPECT_EQ(read(path), std::to_string(parseFileUnreadable) + " ");
        EXPECT_EQ(session.parser->getErrorDesc(), "Error reading option file '" + path + "'");
        session.result->destroy();
        session.parser->createResult(&session.result);
    }
}

TEST_F(HostileOptionFiles, ThatHoldNothingAddNothing) {
    const std::string rows[] = {"",
                                "\n",
                                "\n\n\n",
                                "   \t  ",
                                "\r\n\r\n",
                                "# comment",
                                "; comment\n#\n;",
                                std::string(1, '\0'),
                                std::string(100000, '\n')};
    for (const std::string& contents : rows) {
        SCOPED_TRACE(testing::PrintToString(contents.substr(0, 20)));
        EXPECT_EQ(read(write("nothing", contents)), "0 ");
    }
    EXPECT_EQ(read("/dev/null"), "0 ");
}

TEST_F(HostileOptionFiles, WithoutALastLineEndAreReadToTheEnd) {
    EXPECT_EQ(read(write("open", "--level=3\n--name=x")), "0 level=3 name=x");
}

TEST_F(HostileOptionFiles, WithForeignLineEndsLoseThem) {
    EXPECT_EQ(read(write("foreign", "--level=3\r\n--name=x\r\r\n\r\n")), "0 level=3 name=x");
}

TEST_F(HostileOptionFiles, AreReadUpToTheFirstZeroByte) {
    EXPECT_EQ(read(write("zero", std::string("--level=3\n--zz\0me=x\n--level=4\n", 28))),
              "0 level=3 files=--zz");
}

TEST_F(HostileOptionFiles, WithAByteOrderMarkBeginWithIt) {
    EXPECT_EQ(read(write("mark", "\xEF\xBB\xBF--level=3\n")), "0 files=\xEF\xBB\xBF--level=3");
}

TEST_F(HostileOptionFiles, OfBytesInAllValuesAreText) {
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte) {
        bytes += byte == '\n' ? 'n' : byte == ',' ? 'c' : static_cast<char>(byte);
    }
    EXPECT_EQ(read(write("bytes", "x" + bytes)), "0 files=x" + bytes);
}

TEST_F(HostileOptionFiles, WithALineOfAMebibyteKeepIt) {
    const std::string line(1 << 20, 'v');
    EXPECT_EQ(read(write("long", "--name=" + line + "\n--level=3\n")), "0 level=3 name=" + line);
}

TEST_F(HostileOptionFiles, AreReadInTheOrderNamedAndFilesOfFilesBehindThem) {
    const std::string inner = write("inner", "--name=inner\n");
    const std::string outer = write("outer", "--name=outer\n--option-file=" + inner + "\n");
    const std::string other = write("other", "--name=other\n");
    EXPECT_EQ(parse(session, {"--option-file=" + outer, "--option-file=" + other, "--name=line"}), parseOk);
    EXPECT_EQ(stored(session, {"name"}), "name=line,outer,other,inner");
}

TEST_F(HostileOptionFiles, ThatEndRecognitionDoSoForThemselvesOnly) {
    const std::string first = write("first", "--level=3\n--\n--level=4\n");
    const std::string second = write("second", "--level=5\n");
    EXPECT_EQ(parse(session, {"--option-file=" + first, "--option-file=" + second}), parseOk);
    EXPECT_EQ(stored(session, {"level"}), "level=3,5 -- --level=4");
}

TEST_F(HostileOptionFiles, WithAnErrorEndTheParseThere) {
    EXPECT_EQ(read(write("wrong", "--name=x\n--level=three\n--name=y\n")), "2 name=x");
    EXPECT_STREQ(session.parser->getErrorDesc(),
                 "Value validation problem in argument '--level=three': Option 'level' can not parse 'three' "
                 "value, requires a type 'integer' here.");
}

TEST_F(HostileOptionFiles, ThatArePipesAreReadToTheirEnd) {
    const std::string path = directory + "/pipe";
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    std::thread writer([&] { std::ofstream(path) << "--level=3\n" << std::flush << "--name=x\n"; });
    const std::string answer = read(path);
    writer.join();
    EXPECT_EQ(answer, "0 level=3 name=x");
}

TEST_F(HostileOptionFiles, OfTheKernelThatSayNoSizeAreReadWhole) {
    const std::string answer = read("/proc/self/cmdline");
    EXPECT_EQ(answer.substr(0, 8), "0 files=");
    EXPECT_GT(answer.size(), 8U);
}

} // namespace
