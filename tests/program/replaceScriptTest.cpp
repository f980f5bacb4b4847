#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <iterator>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "lint/lintScript.h"
#include "model/CommandLine.h"
#include "support/TemporaryDirectory.h"

namespace {

/// How the system disturbs this program.
struct Disturbance {
    /// Every other call of write is interrupted, and the rest write a few bytes.
    bool interrupts = false;
    bool wasInterrupted = false;
    bool isFull = false;
    bool refusesToRename = false;
};

Disturbance disturbance;

ssize_t failed(int error) {
    errno = error;
    return -1;
}

} // namespace

// These stand in for those of the C library.
extern "C" ssize_t write(int file, const void* bytes, size_t size) {
    if (disturbance.interrupts) {
        disturbance.wasInterrupted = !disturbance.wasInterrupted;
        if (disturbance.wasInterrupted) {
            return failed(EINTR);
        }
        size = std::min<std::size_t>(size, 4);
    }
    return disturbance.isFull ? failed(ENOSPC) : syscall(SYS_write, file, bytes, size);
}

extern "C" int rename(const char* before, const char* now) noexcept {
    return disturbance.refusesToRename ? static_cast<int>(failed(EXDEV))
                                       : renameat(AT_FDCWD, before, AT_FDCWD, now);
}

namespace tarv_program {
namespace {

class ReplaceScriptTest : public testing::Test {
protected:
    ReplaceScriptTest() {
        script.path = directory.write("script.sh", script.contents);
        Diagnostic found = {false, 1, 6, "", Replacement{5, 5, "--output"}};
        script.diagnostics = {found};
    }

    ~ReplaceScriptTest() override { disturbance = {}; }

    std::string contents() const {
        std::ifstream stream(script.path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

    std::string left() const {
        std::string names;
        for (const auto& entry : std::filesystem::directory_iterator(directory.pathOf(""))) {
            names += entry.path().filename().string() + " ";
        }
        return names;
    }

    // Begins with the path, which is that of a new file where this cannot be written.
    std::string failure() const {
        try {
            replaceScript(script);
        } catch (const Failure& failure) {
            const std::string message = failure.what();
            EXPECT_EQ(message.substr(0, script.path.size()), script.path);
            return message.substr(message.rfind(": "));
        }
        return "";
    }

    TemporaryDirectory directory;
    LintedScript script = {"", "pack --out=x\n", {}};
};

TEST_F(ReplaceScriptTest, WritesWhatIsMendedAndKeepsTheMode) {
    chmod(script.path.c_str(), 0741);
    replaceScript(script);
    struct stat file = {};
    stat(script.path.c_str(), &file);
    EXPECT_EQ(file.st_mode & 07777U, 0741U);
    EXPECT_EQ(left(), "script.sh ");
    EXPECT_EQ(contents(), "pack --output=x\n");
}

TEST_F(ReplaceScriptTest, WritesAllThroughInterruptions) {
    disturbance.interrupts = true;
    replaceScript(script);
    EXPECT_EQ(contents(), "pack --output=x\n");
    EXPECT_EQ(left(), "script.sh ");
}

TEST_F(ReplaceScriptTest, LeavesAScriptAloneWhenNoRoomIsLeft) {
    disturbance.isFull = true;
    EXPECT_EQ(failure(), ": No space left on device");
    EXPECT_EQ(contents(), "pack --out=x\n");
    EXPECT_EQ(left(), "script.sh ");
}

TEST_F(ReplaceScriptTest, LeavesAScriptAloneWhosePlaceCannotBeTaken) {
    disturbance.refusesToRename = true;
    EXPECT_EQ(failure(), ": Invalid cross-device link");
    EXPECT_EQ(contents(), "pack --out=x\n");
    EXPECT_EQ(left(), "script.sh ");
}

TEST_F(ReplaceScriptTest, LeavesAScriptAloneThatWasChangedMeanwhile) {
    directory.write("script.sh", "pack --out=y\n");
    EXPECT_EQ(failure(), ": was changed meanwhile, and is left as it is");
    EXPECT_EQ(left(), "script.sh ");
    EXPECT_EQ(contents(), "pack --out=y\n");
}

TEST_F(ReplaceScriptTest, WritesNothingWhereNothingIsToBeMended) {
    script.diagnostics.clear();
    struct stat before = {};
    stat(script.path.c_str(), &before);
    replaceScript(script);
    struct stat now = {};
    stat(script.path.c_str(), &now);
    EXPECT_EQ(now.st_ino, before.st_ino);
}

TEST_F(ReplaceScriptTest, SaysThatAScriptIsGone) {
    std::filesystem::remove(script.path);
    EXPECT_EQ(failure(), ": No such file or directory");
    EXPECT_EQ(left(), "");
}

} // namespace
} // namespace tarv_program
