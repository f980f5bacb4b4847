#pragma once

#include <vector>

#include "front/Arguments.h"

namespace tarv_program {

/// One of the things that the program does.
struct Verb {
    static constexpr auto anyNumber = static_cast<std::size_t>(-1);

    const char* name;
    /// What stands behind it in a synopsis.
    const char* synopsis;
    ///@{
    /// How many positional arguments it takes.
    std::size_t least;
    std::size_t most;
    ///@}
    const char* text;
    /// Flags of its parser.
    int flags;
    void (*declare)(tarv_3_3::IParser& parser);
    /// Does it, and returns the exit code. Throws `Failure` for what ends with 2.
    int (*run)(const Arguments& arguments);
};

/// All of them, in the order of help. Their options and what they do are in verbs.cpp.
const std::vector<Verb>& allVerbs();

/// The parser of a verb, with its options declared.
Parser parserOf(const Verb& verb);

/// The description of the whole program as JSON.
std::string describeProgram(const std::vector<Verb>& verbs, tarv_3_3::IParser& root);

/// Answers tarvoption=describe, tarvoption=completion=SHELL and tarvoption=complete=SHELL; false for any
/// other command line.
bool answerRequest(const std::vector<Verb>& verbs, tarv_3_3::IParser& root, int argc,
                   const char* const* argv);

/// Writes to standard output. Throws `Failure` when it cannot be written.
void print(const std::string& text);

} // namespace tarv_program
