#include "replacing.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/random.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "OpenFile.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryDirectory.h"

namespace fs = std::filesystem;

namespace {

/// What the functions below were called for, and what they do besides.
struct SystemCalls {
    std::vector<std::string> log;
    /// Called before the temporary file gets its name.
    std::function<void()> onRandom = [] {};
    /// Called with what is brought to the disk, a file or not; an error number takes its place.
    std::function<int(bool)> onSync = [](bool) { return 0; };
    /// Called with the number of the exchange, from 1 on; an error number takes its place.
    std::function<int(int)> onExchange = [](int) { return 0; };
    int exchanges = 0;
};

SystemCalls calls;

} // namespace

// These stand in front of those of the C library.

extern "C" ssize_t getrandom(void* buffer, std::size_t size, unsigned flags) {
    calls.onRandom();
    return syscall(SYS_getrandom, buffer, size, flags);
}

extern "C" int fsync(int descriptor) {
    struct stat state = {};
    fstat(descriptor, &state);
    const bool isFile = !S_ISDIR(state.st_mode);
    calls.log.emplace_back(isFile ? "sync file" : "sync folder");
    const int error = calls.onSync(isFile);
    if (error != 0) {
        errno = error;
        return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}

extern "C" int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
                         unsigned flags) noexcept {
    calls.log.emplace_back("exchange");
    const int error = calls.onExchange(++calls.exchanges);
    if (error != 0) {
        errno = error;
        return -1;
    }
    return static_cast<int>(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}

extern "C" int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept {
    calls.log.emplace_back("rename");
    return static_cast<int>(syscall(SYS_renameat2, fromFolder, from, toFolder, to, 0));
}

namespace seek {
namespace {

struct stat stateOf(const std::string& path) {
    struct stat state = {};
    EXPECT_EQ(lstat(path.c_str(), &state), 0) << path;
    return state;
}

std::string contentsOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class ReplaceFile : public ::testing::Test {
protected:
    ReplaceFile() { calls = SystemCalls(); }
    ~ReplaceFile() override { calls = SystemCalls(); }

    /// Replaces a file that is opened now; returns what stood in the way.
    std::string replace(const std::string& file) {
        const OpenFile read(file, OpenFile::Kind::regular);
        return replace(file, read);
    }

    static std::string replace(const std::string& file, const OpenFile& read) {
        try {
            replaceFile(file, read, "new text\n");
            return "";
        } catch (const FileError& error) {
            return error.what();
        }
    }

    /// Writes another text of the same length, this much later than the first one.
    void writeLater(std::chrono::nanoseconds delay) const {
        const fs::file_time_type time = fs::last_write_time(path);
        directory.write("text", "OLD TEXT\n");
        fs::last_write_time(path, time + delay);
    }

    std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const fs::directory_entry& entry : fs::directory_iterator(directory.pathOf(""))) {
            found.push_back(entry.path().filename());
        }
        std::sort(found.begin(), found.end());
        return found;
    }

    using Names = std::vector<std::string>;

    TemporaryDirectory directory;
    const std::string path = directory.write("text", "old text\n");
};

TEST_F(ReplaceFile, PutsTheNewTextUnderTheName) {
    EXPECT_EQ(replace(path), "");
    EXPECT_EQ(contentsOf(path), "new text\n");
    EXPECT_EQ(names(), Names{"text"});
}

TEST_F(ReplaceFile, FindsAFileOfTheWorkingDirectory) {
    const fs::path before = fs::current_path();
    fs::current_path(directory.pathOf(""));
    EXPECT_EQ(replace("text"), "");
    fs::current_path(before);
    EXPECT_EQ(contentsOf(path), "new text\n");
}

TEST_F(ReplaceFile, BringsTheTextToTheDiskBeforeTheNameAndTheFolderBehindIt) {
    EXPECT_EQ(replace(path), "");
    EXPECT_EQ(calls.log, (Names{"sync file", "exchange", "sync folder"}));
}

TEST_F(ReplaceFile, LeavesTheFileWhenTheTextCannotBeBroughtToTheDisk) {
    calls.onSync = [](bool isFile) { return isFile ? EIO : 0; };
    EXPECT_EQ(replace(path), "Input/output error");
    EXPECT_EQ(contentsOf(path), "old text\n");
    EXPECT_EQ(names(), Names{"text"});
}

TEST_F(ReplaceFile, SaysWhenTheFolderCannotBeBroughtToTheDisk) {
    calls.onSync = [](bool isFile) { return isFile ? 0 : EIO; };
    EXPECT_EQ(replace(path), "Input/output error");
    EXPECT_EQ(contentsOf(path), "new text\n");
    EXPECT_EQ(names(), Names{"text"});
}

TEST_F(ReplaceFile, RenamesWhereNamesCannotBeExchanged) {
    calls.onExchange = [](int) { return EINVAL; };
    EXPECT_EQ(replace(path), "");
    EXPECT_EQ(calls.log, (Names{"sync file", "exchange", "rename", "sync folder"}));
    EXPECT_EQ(contentsOf(path), "new text\n");
    EXPECT_EQ(names(), Names{"text"});
}

TEST_F(ReplaceFile, LeavesTheFileWhenTheNameCannotBeTaken) {
    calls.onExchange = [](int) { return EPERM; };
    EXPECT_EQ(replace(path), "Operation not permitted");
    EXPECT_EQ(contentsOf(path), "old text\n");
    EXPECT_EQ(names(), Names{"text"});
}

TEST_F(ReplaceFile, LeavesTheFileWhenTheTextCannotBeWritten) {
    const OpenFile read(path, OpenFile::Kind::regular);
    struct rlimit before = {};
    getrlimit(RLIMIT_FSIZE, &before);
    const struct rlimit small = {4, before.rlim_max};
    signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    const std::string reason = replace(path, read);
    setrlimit(RLIMIT_FSIZE, &before);
    signal(SIGXFSZ, SIG_DFL);
    EXPECT_EQ(reason, "File too large");
    EXPECT_EQ(contentsOf(path), "old text\n");
    EXPECT_EQ(names(), Names{"text"});
}

TEST_F(ReplaceFile, RefusesAFileWithSeveralLinks) {
    fs::create_hard_link(path, directory.pathOf("twin"));
    EXPECT_EQ(replace(path), "Has several links, which would not be kept");
    EXPECT_EQ(contentsOf(path), "old text\n");
    EXPECT_EQ(contentsOf(directory.pathOf("twin")), "old text\n");
    EXPECT_EQ(names(), (Names{"text", "twin"}));
}

TEST_F(ReplaceFile, LeavesADeletedFileDeleted) {
    const OpenFile read(path, OpenFile::Kind::regular);
    fs::remove(path);
    EXPECT_EQ(replace(path, read), "Was changed or deleted meanwhile");
    EXPECT_EQ(names(), Names{});
}

TEST_F(ReplaceFile, LeavesAFileDeletedThatGoesInTheLastMoment) {
    calls.onExchange = [this](int) { return fs::remove(path) ? 0 : EIO; };
    EXPECT_EQ(replace(path), "No such file or directory");
    EXPECT_EQ(names(), Names{});
}

TEST_F(ReplaceFile, LeavesWhatSomebodyElseHasMadeOfTheFile) {
    const struct {
        std::string what;
        std::function<void()> change;
        std::string contents;
    } rows[] = {
        {"other text", [this] { directory.write("text", "their longer text\n"); }, "their longer text\n"},
        {"other file",
         [this] {
             directory.write("theirs", "old text\n");
             fs::rename(directory.pathOf("theirs"), path);
         },
         "old text\n"},
        {"other mode", [this] { chmod(path.c_str(), 0600); }, "old text\n"},
        {"another link", [this] { fs::create_hard_link(path, directory.pathOf("twin")); }, "old text\n"},
        {"a link to it",
         [this] {
             fs::rename(path, directory.pathOf("moved"));
             fs::create_symlink("moved", path);
         },
         "old text\n"},
        {"other length, same time",
         [this] {
             const fs::file_time_type time = fs::last_write_time(path);
             directory.write("text", "their longer text\n");
             fs::last_write_time(path, time);
         },
         "their longer text\n"},
        {"an hour later", [this] { writeLater(std::chrono::hours(1)); }, "OLD TEXT\n"},
        {"a nanosecond later", [this] { writeLater(std::chrono::nanoseconds(1)); }, "OLD TEXT\n"},
        {"other owner", [this] { EXPECT_EQ(chown(path.c_str(), 65534, getegid()), 0); }, "old text\n"},
        {"other group", [this] { EXPECT_EQ(chown(path.c_str(), geteuid(), 65533), 0); }, "old text\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        if (geteuid() != 0 && (row.what == "other owner" || row.what == "other group")) {
            std::cout << row.what << " is left out: it needs root\n";
            continue;
        }
        fs::remove(directory.pathOf("moved"));
        fs::remove(directory.pathOf("twin"));
        fs::remove(path);
        directory.write("text", "old text\n");
        chmod(path.c_str(), 0644);
        const OpenFile read(path, OpenFile::Kind::regular);
        row.change();
        EXPECT_EQ(replace(path, read), "Was changed or deleted meanwhile");
        EXPECT_EQ(contentsOf(path), row.contents);
    }
}

TEST_F(ReplaceFile, GivesBackAFileThatSomebodyElsePutsThereInTheLastMoment) {
    calls.onExchange = [this](int number) {
        if (number == 1) {
            directory.write("theirs", "their text\n");
            fs::rename(directory.pathOf("theirs"), path);
        }
        return 0;
    };
    EXPECT_EQ(replace(path), "Was changed or deleted meanwhile");
    EXPECT_EQ(contentsOf(path), "their text\n");
    EXPECT_EQ(names(), Names{"text"});
}

TEST_F(ReplaceFile, KeepsAFileOfSomebodyElseThatItCannotGiveBack) {
    calls.onExchange = [this](int number) {
        if (number == 2) {
            return EIO;
        }
        directory.write("theirs", "their text\n");
        fs::rename(directory.pathOf("theirs"), path);
        return 0;
    };
    const std::string reason = replace(path);
    ASSERT_EQ(names().size(), 2U);
    const std::string name = names()[0];
    EXPECT_EQ(name.substr(0, 6), ".seek-");
    EXPECT_EQ(reason, "Was changed meanwhile, and is now called " + name);
    EXPECT_EQ(contentsOf(directory.pathOf(name)), "their text\n");
}

TEST_F(ReplaceFile, KeepsTheMode) {
    for (const unsigned mode : {0600U, 0644U, 0755U, 0444U, 04755U, 02755U, 01644U}) {
        SCOPED_TRACE(::testing::Message() << std::oct << mode);
        ASSERT_EQ(chmod(path.c_str(), mode), 0);
        EXPECT_EQ(replace(path), "");
        EXPECT_EQ(stateOf(path).st_mode, S_IFREG | mode);
        chmod(path.c_str(), 0644);
        directory.write("text", "old text\n");
    }
}

TEST_F(ReplaceFile, KeepsTheOwnerOfASetuidFile) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs root, to make a file of another user";
    }
    ASSERT_EQ(chown(path.c_str(), 65534, 65533), 0);
    ASSERT_EQ(chmod(path.c_str(), 06755), 0);
    EXPECT_EQ(replace(path), "");
    const struct stat state = stateOf(path);
    EXPECT_EQ(state.st_uid, 65534U);
    EXPECT_EQ(state.st_gid, 65533U);
    EXPECT_EQ(state.st_mode, S_IFREG | 06755U);
    EXPECT_EQ(contentsOf(path), "new text\n");
}

TEST_F(ReplaceFile, RefusesAFileOfAnotherUserAndOneOfAnotherGroup) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs root, to make a file of another user";
    }
    const struct {
        const char* what;
        uid_t owner;
        gid_t group;
    } rows[] = {{"owner", 0, 0}, {"group", 65534, 65533}};
    chmod(directory.pathOf("").c_str(), 0777);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        ASSERT_EQ(chown(path.c_str(), row.owner, row.group), 0);
        ASSERT_EQ(chmod(path.c_str(), 0644), 0);
        {
            const OrdinaryUser user;
            EXPECT_EQ(replace(path), "Its owner, group and mode cannot be kept");
        }
        EXPECT_EQ(stateOf(path).st_uid, row.owner);
        EXPECT_EQ(stateOf(path).st_gid, row.group);
        EXPECT_EQ(contentsOf(path), "old text\n");
        EXPECT_EQ(names(), Names{"text"});
    }
}

TEST_F(ReplaceFile, RefusesASetgidFileOfAGroupThatTheUserIsNotIn) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs root, to make a file of another group";
    }
    // New files in a setgid folder have its group, whoever makes them.
    const std::string folder = directory.pathOf("");
    ASSERT_EQ(chown(folder.c_str(), 0, 65533), 0);
    ASSERT_EQ(chmod(folder.c_str(), 02777), 0);
    ASSERT_EQ(chown(path.c_str(), 65534, 65533), 0);
    ASSERT_EQ(chmod(path.c_str(), 02755), 0);
    {
        const OrdinaryUser user;
        EXPECT_EQ(replace(path), "Its owner, group and mode cannot be kept");
    }
    EXPECT_EQ(stateOf(path).st_mode, S_IFREG | 02755U);
    EXPECT_EQ(contentsOf(path), "old text\n");
    EXPECT_EQ(names(), Names{"text"});
}

const char* const accessList = "system.posix_acl_access";

/// Gives a file a list by which user 65534 may read and write it, and the file's own group not.
int setAccessList(const std::string& path, const char* kind) {
    struct Entry {
        std::uint16_t tag;
        std::uint16_t rights;
        std::uint32_t id;
    };
    const struct {
        std::uint32_t version = 2;
        Entry entries[5];
    } list = {2,
              {{0x01, 6, UINT32_MAX},
               {0x02, 6, 65534},
               {0x04, 0, UINT32_MAX},
               {0x10, 6, UINT32_MAX},
               {0x20, 0, UINT32_MAX}}};
    return setxattr(path.c_str(), kind, &list, sizeof list, 0);
}

std::string accessListOf(const std::string& path) {
    char list[256] = {};
    const ssize_t size = getxattr(path.c_str(), accessList, list, sizeof list);
    return size < 0 ? std::strerror(errno) : std::string(list, static_cast<std::size_t>(size));
}

TEST_F(ReplaceFile, KeepsTheAccessList) {
    if (setAccessList(path, accessList) != 0) {
        GTEST_SKIP() << "needs a file system with access lists: " << std::strerror(errno);
    }
    const std::string before = accessListOf(path);
    ASSERT_EQ(before.size(), 44U);
    EXPECT_EQ(replace(path), "");
    EXPECT_EQ(accessListOf(path), before);
    EXPECT_EQ(contentsOf(path), "new text\n");
}

TEST_F(ReplaceFile, TakesNoAccessListFromTheFolder) {
    if (setAccessList(directory.pathOf(""), "system.posix_acl_default") != 0) {
        GTEST_SKIP() << "needs a file system with access lists: " << std::strerror(errno);
    }
    directory.write("inheriting", "");
    ASSERT_EQ(accessListOf(directory.pathOf("inheriting")).size(), 44U);
    EXPECT_EQ(replace(path), "");
    EXPECT_EQ(accessListOf(path), std::strerror(ENODATA));
}

/// Replaces a file in a process of its own, and returns how that ended.
int statusOfReplacing(const std::string& path) {
    const pid_t child = fork();
    if (child == 0) {
        const struct rlimit noCore = {0, 0};
        setrlimit(RLIMIT_CORE, &noCore);
        const OpenFile read(path, OpenFile::Kind::regular);
        replaceFile(path, read, "new text\n");
        _exit(7);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return status;
}

// Those that end a program from outside. SIGXFSZ, which the program causes itself, has a test below.
const int endingSignals[] = {SIGHUP,    SIGINT,  SIGQUIT, SIGTERM,   SIGALRM, SIGUSR1,
                             SIGUSR2,   SIGABRT, SIGXCPU, SIGVTALRM, SIGPROF, SIGPIPE,
                             SIGSTKFLT, SIGIO,   SIGPWR,  SIGRTMIN,  SIGRTMAX};

TEST_F(ReplaceFile, LeavesTheOldTextOnASignalBeforeTheNewOneIsWritten) {
    for (const int number : endingSignals) {
        SCOPED_TRACE(number);
        calls.onRandom = [number] { kill(getpid(), number); };
        const int status = statusOfReplacing(path);
        EXPECT_TRUE(WIFSIGNALED(status));
        EXPECT_EQ(WTERMSIG(status), number);
        EXPECT_EQ(names(), Names{"text"});
        EXPECT_EQ(contentsOf(path), "old text\n");
    }
}

TEST_F(ReplaceFile, LeavesTheOldTextWhereALimitOfFileSizesEndsTheProgram) {
    calls.onRandom = [] {
        const struct rlimit small = {4, 4};
        setrlimit(RLIMIT_FSIZE, &small);
    };
    const int status = statusOfReplacing(path);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGXFSZ);
    EXPECT_EQ(names(), Names{"text"});
    EXPECT_EQ(contentsOf(path), "old text\n");
}

TEST_F(ReplaceFile, TakesTheLastStepsBeforeItEndsOnALaterSignal) {
    for (const int number : endingSignals) {
        SCOPED_TRACE(number);
        directory.write("text", "old text\n");
        calls.onSync = [number](bool) { return kill(getpid(), number); };
        const int status = statusOfReplacing(path);
        EXPECT_TRUE(WIFSIGNALED(status));
        EXPECT_EQ(WTERMSIG(status), number);
        EXPECT_EQ(names(), Names{"text"});
        EXPECT_EQ(contentsOf(path), "new text\n");
    }
}

TEST_F(ReplaceFile, GoesOnUnderASignalThatIsIgnored) {
    calls.onRandom = [] { kill(getpid(), SIGHUP); };
    signal(SIGHUP, SIG_IGN);
    const int status = statusOfReplacing(path);
    signal(SIGHUP, SIG_DFL);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 7);
    EXPECT_EQ(contentsOf(path), "new text\n");
}

} // namespace
} // namespace seek
