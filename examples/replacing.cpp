#include "replacing.h"

#include <fcntl.h>
#include <linux/limits.h>
#include <sys/random.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace seek {

namespace {

/// Those that do not end a program unless it says so, and those of a crash, which cannot wait.
constexpr int undeferredSignals[] = {SIGCHLD, SIGCONT, SIGTSTP, SIGTTIN, SIGTTOU, SIGURG, SIGWINCH,
                                     SIGBUS,  SIGFPE,  SIGILL,  SIGSEGV, SIGSYS,  SIGTRAP};

/// Keeps the signals that end the program waiting until it is destroyed. Those that the program was
/// started to ignore, as nohup does, stay ignored. Nothing keeps SIGKILL and SIGSTOP.
class DeferredSignals {
public:
    DeferredSignals() {
        sigfillset(&m_deferred);
        for (const int number : undeferredSignals) {
            sigdelset(&m_deferred, number);
        }
        for (int number = 1; number <= SIGRTMAX; ++number) {
            struct sigaction action = {};
            if (sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN) {
                sigdelset(&m_deferred, number);
            }
        }
        sigprocmask(SIG_BLOCK, &m_deferred, &m_before);
    }
    DeferredSignals(const DeferredSignals&) = delete;
    DeferredSignals& operator=(const DeferredSignals&) = delete;
    ~DeferredSignals() { sigprocmask(SIG_SETMASK, &m_before, nullptr); }

    bool isOneWaiting() const {
        sigset_t waiting;
        sigpending(&waiting);
        // One by one: sigisemptyset of older C libraries does not see the signals from 33 on.
        for (int number = 1; number <= SIGRTMAX; ++number) {
            if (sigismember(&waiting, number) == 1 && sigismember(&m_deferred, number) == 1) {
                return true;
            }
        }
        return false;
    }

private:
    sigset_t m_deferred;
    sigset_t m_before;
};

/// A new file that only its owner may read, under a name that nobody can foresee. Whatever has that name in
/// the end is removed.
class TemporaryFile {
public:
    explicit TemporaryFile(const Descriptor& folder)
        : m_folder(folder), m_name(makeName()),
          m_descriptor(openat(folder.number(), name(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!m_isKept) {
            unlinkat(m_folder.number(), name(), 0);
        }
    }

    int descriptor() const { return m_descriptor.number(); }
    const char* name() const { return m_name.c_str(); }
    void keep() { m_isKept = true; }

private:
    static std::string makeName() {
        std::uint64_t number = 0;
        if (getrandom(&number, sizeof number, 0) != sizeof number) {
            throwLastError();
        }
        char name[32];
        std::snprintf(name, sizeof name, ".seek-%016llx", static_cast<unsigned long long>(number));
        return name;
    }

    const Descriptor& m_folder;
    std::string m_name;
    Descriptor m_descriptor;
    bool m_isKept = false;
};

void write(int descriptor, std::string_view contents, const DeferredSignals& signals) {
    constexpr std::size_t blockSize = 1U << 20U;
    while (!contents.empty()) {
        if (signals.isOneWaiting()) {
            throw FileError("Interrupted");
        }
        const ssize_t size = ::write(descriptor, contents.data(), std::min(contents.size(), blockSize));
        if (size < 0) {
            throwLastError();
        }
        contents.remove_prefix(static_cast<std::size_t>(size));
    }
}

void sync(int descriptor) {
    if (fsync(descriptor) != 0) {
        throwLastError();
    }
}

// Without its access list the mode of a file would let other users in. One that the folder gave to the new
// file goes.
bool copyAccessList(int from, int to) {
    const char* const name = "system.posix_acl_access";
    std::vector<char> list(XATTR_SIZE_MAX);
    const ssize_t size = fgetxattr(from, name, list.data(), list.size());
    if (size >= 0) {
        return fsetxattr(to, name, list.data(), static_cast<std::size_t>(size), 0) == 0;
    }
    return fremovexattr(to, name) == 0 || errno == ENODATA || errno == ENOTSUP;
}

// The owner first, since a change of it clears bits of the mode. A setgid bit that the user may not give is
// dropped without an error, so the outcome counts.
void copyOwnerAndMode(const OpenFile& read, int to) {
    const struct stat& wanted = read.state();
    struct stat actual = {};
    if (fchown(to, wanted.st_uid, wanted.st_gid) != 0 || !copyAccessList(read.descriptor(), to) ||
        fchmod(to, wanted.st_mode & 07777U) != 0 || fstat(to, &actual) != 0 ||
        actual.st_mode != wanted.st_mode) {
        throw FileError("Its owner, group and mode cannot be kept");
    }
}

// Whether this name still leads to the file that was read, and nobody has changed it since.
bool isAsRead(const Descriptor& folder, const char* name, const struct stat& read) {
    struct stat now = {};
    return fstatat(folder.number(), name, &now, AT_SYMLINK_NOFOLLOW) == 0 && now.st_dev == read.st_dev &&
           now.st_ino == read.st_ino && now.st_mode == read.st_mode && now.st_uid == read.st_uid &&
           now.st_gid == read.st_gid && now.st_nlink == read.st_nlink && now.st_size == read.st_size &&
           now.st_mtim.tv_sec == read.st_mtim.tv_sec && now.st_mtim.tv_nsec == read.st_mtim.tv_nsec;
}

bool exchange(const Descriptor& folder, const char* one, const char* other) {
    return renameat2(folder.number(), one, folder.number(), other, RENAME_EXCHANGE) == 0;
}

// Two names are exchanged rather than one taken over: that fails when the file was deleted, and gives back
// what somebody else has put in its place, both until the last moment.
void exchangeWithTemporary(const Descriptor& folder, TemporaryFile& temporary, const char* name,
                           const struct stat& read) {
    const char* const changed = "Was changed or deleted meanwhile";
    if (!isAsRead(folder, name, read)) {
        throw FileError(changed);
    }
    if (exchange(folder, temporary.name(), name)) {
        if (isAsRead(folder, temporary.name(), read)) {
            return;
        }
        if (!exchange(folder, temporary.name(), name)) {
            temporary.keep();
            throw FileError(std::string("Was changed meanwhile, and is now called ") + temporary.name());
        }
        throw FileError(changed);
    }
    // Not every file system can exchange names.
    if (errno != EINVAL || renameat(folder.number(), temporary.name(), folder.number(), name) != 0) {
        throwLastError();
    }
}

} // namespace

void replaceFile(const fs::path& path, const OpenFile& read, std::string_view contents) {
    if (read.state().st_nlink > 1) {
        throw FileError("Has several links, which would not be kept");
    }
    const fs::path parent = path.has_parent_path() ? path.parent_path() : ".";
    const Descriptor folder(open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const DeferredSignals signals;
    {
        TemporaryFile temporary(folder);
        write(temporary.descriptor(), contents, signals);
        copyOwnerAndMode(read, temporary.descriptor());
        sync(temporary.descriptor());
        exchangeWithTemporary(folder, temporary, path.filename().c_str(), read.state());
    }
    sync(folder.number());
}

} // namespace seek
