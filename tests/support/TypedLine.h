#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "tarv_3_3/typed.h"

/// What became of a command line, as one text: "ok", or the exit code and what would be printed.
inline std::string said(const tarv_3_3::typed::Outcome& outcome) {
    if (outcome.goesOn()) {
        return std::string("ok") + outcome.errors();
    }
    return std::to_string(outcome.exitCode()) + " " + outcome.output() + outcome.errors();
}

/// Parses a command line; the program is not among the arguments.
inline std::string parseLine(tarv_3_3::typed::Program& program, const std::vector<std::string>& arguments) {
    std::vector<const char*> argv = {"program"};
    for (const std::string& argument : arguments) {
        argv.push_back(argument.c_str());
    }
    return said(program.parse(static_cast<int>(argv.size()), argv.data()));
}

/// The arguments of a line, which blanks separate.
inline std::vector<std::string> words(const std::string& line) {
    std::vector<std::string> list;
    std::string word;
    for (const char byte : line + " ") {
        if (byte != ' ') {
            word += byte;
        } else if (!word.empty()) {
            list.push_back(word);
            word.clear();
        }
    }
    return list;
}
