#pragma once

#include <optional>
#include <string>
#include <vector>

#include "lint/Call.h"
#include "model/CommandLine.h"

namespace tarv_program {

/// A change of a script: `length` bytes from `offset` on become `text`.
struct Replacement {
    std::size_t offset;
    std::size_t length;
    std::string text;
};

/// Something in a script that whoever wrote it should know.
struct Diagnostic {
    bool isError;
    std::size_t line;
    std::size_t column;
    std::string message;
    /// What mends it.
    std::optional<Replacement> fix;
};

/// What is to be said of a call of `program`, whose word stands at `place`: names and values that are
/// abbreviated, ambiguous or unknown, and what is deprecated.
std::vector<Diagnostic> checkCall(const CommandLine& program, const Call& call, std::size_t place);

} // namespace tarv_program
