#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

#include "model/CommandLine.h"

namespace tarv_program {

/// How long another program may run, and how much it may print.
struct Limits {
    std::chrono::milliseconds time = std::chrono::seconds(10);
    std::size_t bytes = std::size_t(16) * 1024 * 1024;
};

/// There is no such program.
class NotFound : public Failure {
public:
    using Failure::Failure;
};

/// What becomes of the standard error of another program: nothing, or the reason why it failed.
enum class Complaints { areHidden, areTold };

/// Runs a program, by its path or found in PATH, without input, and returns what it prints. `input` is a file
/// for its standard input, "" for none.
/// Throws `NotFound` when there is none, `Failure` when it cannot be started, does not end with exit code 0,
/// or goes beyond the limits; then it was killed, with what it had started in its process group.
std::string outputOf(const std::vector<std::string>& command, const Limits& limits,
                     const std::string& input = "", Complaints complaints = Complaints::areHidden);

} // namespace tarv_program
