#pragma once

#include <map>
#include <string>
#include <vector>

#include "compare/Side.h"

namespace tarv_program {

/// What becomes of a whole command line.
struct LineAnswer {
    bool isAccepted = false;
    /// Why it is not.
    std::string message;
    /// Whether that is an argument without a name which its option does not take.
    bool isWordRefused = false;
    /// The option that each argument without a name goes to, where they fill several by their order.
    std::vector<std::size_t> words;
    /// The values of each option that was given, "" for one without, and the arguments behind "--".
    std::map<std::size_t, std::vector<std::string>> values;
    std::vector<std::string> plain;
};

/// Asks the parser and the rules of a side; the values only where they are wanted.
enum class Wanted { acceptance, values };
LineAnswer askLine(const Side& side, const std::vector<std::string>& arguments,
                   Wanted wanted = Wanted::acceptance);

} // namespace tarv_program
