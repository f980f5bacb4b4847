#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "lint/lintScript.h"
#include "model/loadDescription.h"

namespace tarv_program {

namespace {

[[noreturn]] void refuse(const std::string& path) {
    throw Failure(path + ": " + std::strerror(errno));
}

/// A new file beside another one, which goes unless it takes its place.
class FileBeside {
public:
    explicit FileBeside(const std::string& path) : m_path(path), m_name(path + ".XXXXXX") {
        m_file = mkstemp(m_name.data());
        if (m_file < 0) {
            refuse(m_name);
        }
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;
    ~FileBeside() {
        close(m_file);
        if (!m_name.empty()) {
            unlink(m_name.c_str());
        }
    }

    void write(const std::string& contents) const {
        std::size_t done = 0;
        while (done < contents.size()) {
            const ssize_t count = ::write(m_file, contents.data() + done, contents.size() - done);
            if (count < 0 && errno != EINTR) {
                refuse(m_name);
            }
            done += static_cast<std::size_t>(count < 0 ? 0 : count);
        }
    }

    void takePlace() {
        struct stat old = {};
        if (stat(m_path.c_str(), &old) != 0 || fchmod(m_file, old.st_mode & 07777) != 0) {
            refuse(m_path);
        }
        // Only root may give files away; for others the owner is the same anyway, or cannot be kept.
        const bool isSameOwner = old.st_uid == geteuid() && old.st_gid == getegid();
        if (!isSameOwner && fchown(m_file, old.st_uid, old.st_gid) != 0) {
            refuse(m_path);
        }
        if (fsync(m_file) != 0 || rename(m_name.c_str(), m_path.c_str()) != 0) {
            refuse(m_path);
        }
        m_name.clear();
    }

private:
    const std::string m_path;
    std::string m_name;
    int m_file = -1;
};

} // namespace

void replaceScript(const LintedScript& script) {
    const std::string contents = mended(script);
    if (contents == script.contents) {
        return;
    }
    const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(script.path.c_str(), nullptr),
                                                               std::free);
    if (resolved == nullptr) {
        refuse(script.path);
    }
    const std::string path = resolved.get();
    FileBeside file(path);
    file.write(contents);
    if (contentsOf(path) != script.contents) {
        throw Failure(script.path + ": was changed meanwhile, and is left as it is");
    }
    file.takePlace();
}

} // namespace tarv_program
