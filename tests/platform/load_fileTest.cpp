#include "platform/load_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "support/OrdinaryUser.h"
#include "support/TemporaryDirectory.h"

namespace MERO_2_16::system {
namespace {

std::string everyByte() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

TEST(LoadFile, ReadsEveryByteAsItIs) {
    const TemporaryDirectory directory;
    std::string contents;
    ASSERT_TRUE(load_file(directory.write("bytes", everyByte() + "\r\n\r\n"), contents));
    EXPECT_EQ(contents, everyByte() + "\r\n\r\n");
}

TEST(LoadFile, ReadsFilesOfAnySize) {
    const TemporaryDirectory directory;
    for (const std::size_t size : {0U, 1U, 4096U, 16383U, 16384U, 16385U, 32768U, 100000U}) {
        SCOPED_TRACE(size);
        std::string written;
        while (written.size() < size) {
            written += std::to_string(written.size()) + ' ';
        }
        written.resize(size);
        std::string contents = "what was there before";
        ASSERT_TRUE(load_file(directory.write("file", written), contents));
        EXPECT_TRUE(contents == written);
    }
}

// The lowest one that is free.
int nextDescriptor() {
    const int descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
    close(descriptor);
    return descriptor;
}

TEST(LoadFile, LeavesNoDescriptorOpen) {
    const TemporaryDirectory directory;
    const int before = nextDescriptor();
    ASSERT_GE(before, 0);
    std::string contents;
    EXPECT_TRUE(load_file(directory.write("file", "text"), contents));
    EXPECT_EQ(nextDescriptor(), before);
    EXPECT_FALSE(load_file(directory.pathOf("."), contents));
    EXPECT_EQ(nextDescriptor(), before);
}

TEST(LoadFile, FollowsASymbolicLink) {
    const TemporaryDirectory directory;
    std::filesystem::create_symlink(directory.write("file", "text"), directory.pathOf("link"));
    std::string contents;
    ASSERT_TRUE(load_file(directory.pathOf("link"), contents));
    EXPECT_EQ(contents, "text");
}

// More than a pipe holds, so reader and writer have to take turns.
TEST(LoadFile, ReadsAPipeToItsEnd) {
    const TemporaryDirectory directory;
    const std::string path = directory.pathOf("pipe");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    const std::string written(200000, 'x');
    std::thread writer([&] {
        std::ofstream pipe(path);
        pipe << "--first\n" << std::flush << written << "\n--last";
    });
    std::string contents;
    const bool loaded = load_file(path, contents);
    writer.join();
    EXPECT_TRUE(loaded);
    EXPECT_TRUE(contents == "--first\n" + written + "\n--last");
}

// The descriptor flags with which this process reads a pipe, -1 when it does not.
int flagsOfReader(const std::string& path) {
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        const int descriptor = std::stoi(entry.path().filename());
        std::error_code gone;
        if (std::filesystem::read_symlink(entry, gone) == std::filesystem::canonical(path) &&
            (fcntl(descriptor, F_GETFL) & O_ACCMODE) == O_RDONLY) {
            return fcntl(descriptor, F_GETFD);
        }
    }
    return -1;
}

// A pipe that is not written yet holds the loader where the file is open.
TEST(LoadFile, HidesTheOpenFileFromProgramsThatAreStartedMeanwhile) {
    const TemporaryDirectory directory;
    const std::string path = directory.pathOf("pipe");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    std::thread loader([&] {
        std::string contents;
        load_file(path, contents);
    });
    std::ofstream pipe(path);
    int flags = -1;
    for (int i = 0; i < 10000 && flags == -1; ++i) {
        flags = flagsOfReader(path);
        std::this_thread::sleep_for(std::chrono::milliseconds(flags == -1 ? 1 : 0));
    }
    EXPECT_EQ(flags, FD_CLOEXEC);
    pipe.close();
    loader.join();
}

TEST(LoadFile, ReadsAKernelFileThatDoesNotSayItsSize) {
    std::string contents;
    ASSERT_TRUE(load_file("/proc/sys/kernel/ostype", contents));
    EXPECT_EQ(contents, "Linux\n");
}

TEST(LoadFile, FailsWhereNothingCanBeRead) {
    const TemporaryDirectory directory;
    const std::string file = directory.write("file", "text");
    // The first page of a process's memory is never there to be read.
    const std::string paths[] = {directory.pathOf(""), directory.pathOf("missing"), file + "/below", "",
                                 "/proc/self/mem"};
    for (const std::string& path : paths) {
        SCOPED_TRACE(path);
        std::string contents;
        EXPECT_FALSE(load_file(path, contents));
    }
}

TEST(LoadFile, FailsWhereReadingIsForbidden) {
    const TemporaryDirectory directory;
    const std::string path = directory.write("file", "text");
    ASSERT_EQ(chmod(directory.pathOf("").c_str(), 0755), 0);
    ASSERT_EQ(chmod(path.c_str(), 0644), 0);
    {
        const OrdinaryUser user;
        std::string contents;
        if (geteuid() == 0 || !load_file(path, contents)) {
            GTEST_SKIP() << "the superuser may read everything, and cannot become another user here";
        }
    }
    ASSERT_EQ(chmod(path.c_str(), 0), 0);
    const OrdinaryUser user;
    std::string contents;
    EXPECT_FALSE(load_file(path, contents));
}

} // namespace
} // namespace MERO_2_16::system
