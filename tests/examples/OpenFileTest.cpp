#include "OpenFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstddef>
#include <filesystem>
#include <new>
#include <string>

#include "support/TemporaryDirectory.h"

namespace seek {
namespace {

/// What a file holds, or why it cannot be read.
std::string outcome(const std::string& path, OpenFile::Kind kind) {
    try {
        return OpenFile(path, kind).read();
    } catch (const FileError& error) {
        return error.what();
    }
}

TEST(OpenFile, ReadsARegularFileWhole) {
    const TemporaryDirectory directory;
    const std::string contents(200'001, 'x');
    const std::string path = directory.write("file", contents + '\0' + "end");
    EXPECT_EQ(outcome(path, OpenFile::Kind::regular), contents + '\0' + "end");
    EXPECT_EQ(outcome(path, OpenFile::Kind::any), contents + '\0' + "end");
}

TEST(OpenFile, RefusesWhatIsNoRegularFileIfAskedFor) {
    const TemporaryDirectory directory;
    const std::string fifo = directory.pathOf("fifo");
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    const std::string link = directory.pathOf("link");
    std::filesystem::create_symlink(directory.write("file", "text"), link);
    const struct {
        std::string path;
        std::string expected;
    } rows[] = {
        {fifo, "Not a regular file"},
        {"/dev/null", "Not a regular file"},
        {directory.pathOf(""), "Not a regular file"},
        {link, "Too many levels of symbolic links"},
        {directory.pathOf("nowhere"), "No such file or directory"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        EXPECT_EQ(outcome(row.path, OpenFile::Kind::regular), row.expected);
    }
}

TEST(OpenFile, FollowsLinksAndReadsDevicesOtherwise) {
    const TemporaryDirectory directory;
    const std::string link = directory.pathOf("link");
    std::filesystem::create_symlink(directory.write("file", "text"), link);
    EXPECT_EQ(outcome(link, OpenFile::Kind::any), "text");
    EXPECT_EQ(outcome("/dev/null", OpenFile::Kind::any), "");
    EXPECT_EQ(outcome(directory.pathOf(""), OpenFile::Kind::any), "Is a directory");
}

TEST(OpenFile, RunsOutOfMemoryOverAFileThatNoTextCanHold) {
    const TemporaryDirectory directory;
    const OpenFile file(directory.write("file", "text"), OpenFile::Kind::regular);
    EXPECT_THROW(readAll(file.descriptor(), std::size_t(5) << 60), std::bad_alloc);
}

TEST(OpenFile, KeepsWhatTheFileWasWhenItWasOpened) {
    const TemporaryDirectory directory;
    const std::string path = directory.write("file", "text");
    const OpenFile file(path, OpenFile::Kind::regular);
    directory.write("file", "longer text");
    std::filesystem::remove(path);
    EXPECT_EQ(file.state().st_size, 4);
    EXPECT_EQ(file.state().st_nlink, 1U);
    EXPECT_EQ(file.read(), "longer text");
}

} // namespace
} // namespace seek
