#include "model/askProgram.h"

#include <cerrno>
#include <csignal>
#include <cstring>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "model/CommandLine.h"

namespace tarv_program {

namespace {

using Clock = std::chrono::steady_clock;

/// A child process in a process group of its own, and the end of the pipe that its output comes through.
class Child {
public:
    Child(const std::vector<std::string>& command, const std::string& input, Complaints complaints)
        : m_name(command.front()), m_complaints(complaints) {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0) {
            throw Failure(m_name + ": " + std::strerror(errno));
        }
        m_output = ends[0];
        const int status = start(command, input, ends[1]);
        close(ends[1]);
        if (status != 0) {
            close(m_output);
            const std::string reason = m_name + ": " + std::strerror(status);
            if (status == ENOENT) {
                throw NotFound(reason);
            }
            throw Failure(reason);
        }
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child() {
        close(m_output);
        if (m_process > 0) {
            kill(-m_process, SIGKILL);
            waitpid(m_process, nullptr, 0);
        }
    }

    std::string readAll(const Limits& limits, Clock::time_point end) {
        std::string output;
        char buffer[65536];
        for (;;) {
            waitForOutput(end);
            const ssize_t count = read(m_output, buffer, sizeof buffer);
            if (count == 0) {
                return output;
            }
            if (count < 0 && errno != EINTR) {
                throw Failure(m_name + ": " + std::strerror(errno));
            }
            output.append(buffer, static_cast<std::size_t>(count < 0 ? 0 : count));
            if (output.size() > limits.bytes) {
                throw Failure(m_name + ": prints more than " + std::to_string(limits.bytes) + " bytes");
            }
        }
    }

    void expectSuccess(Clock::time_point end, const std::string& output) {
        int status = 0;
        while (waitpid(m_process, &status, WNOHANG) == 0) {
            if (Clock::now() > end) {
                refuseToWait();
            }
            poll(nullptr, 0, 1);
        }
        m_process = 0;
        if (WIFSIGNALED(status)) {
            throw Failure(m_name + ": ended by signal " + std::to_string(WTERMSIG(status)));
        }
        if (WEXITSTATUS(status) != 0 && m_complaints == Complaints::areTold && !output.empty()) {
            throw Failure(m_name + ": " + output.substr(0, output.find('\n')));
        }
        if (WEXITSTATUS(status) != 0) {
            throw Failure(m_name + ": ended with exit code " + std::to_string(WEXITSTATUS(status)));
        }
    }

private:
    int start(const std::vector<std::string>& command, const std::string& input, int output) {
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, input.empty() ? "/dev/null" : input.c_str(),
                                         O_RDONLY, 0);
        posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
        if (m_complaints == Complaints::areTold) {
            posix_spawn_file_actions_adddup2(&actions, output, STDERR_FILENO);
        } else {
            posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        }
        posix_spawnattr_t attributes;
        posix_spawnattr_init(&attributes);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
        std::vector<char*> arguments;
        arguments.reserve(command.size() + 1);
        for (const std::string& argument : command) {
            arguments.push_back(const_cast<char*>(argument.c_str()));
        }
        arguments.push_back(nullptr);
        const int status =
            posix_spawnp(&m_process, arguments.front(), &actions, &attributes, arguments.data(), environ);
        posix_spawnattr_destroy(&attributes);
        posix_spawn_file_actions_destroy(&actions);
        m_process = status == 0 ? m_process : 0;
        return status;
    }

    void waitForOutput(Clock::time_point end) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
        pollfd ready = {m_output, POLLIN, 0};
        if (left <= 0 || poll(&ready, 1, static_cast<int>(left)) == 0) {
            refuseToWait();
        }
    }

    [[noreturn]] void refuseToWait() { throw Failure(m_name + ": takes too long"); }

    const std::string m_name;
    const Complaints m_complaints;
    int m_output = -1;
    pid_t m_process = 0;
};

} // namespace

std::string outputOf(const std::vector<std::string>& command, const Limits& limits, const std::string& input,
                     Complaints complaints) {
    const Clock::time_point end = Clock::now() + limits.time;
    Child child(command, input, complaints);
    std::string output = child.readAll(limits, end);
    child.expectSuccess(end, output);
    return output;
}

} // namespace tarv_program
