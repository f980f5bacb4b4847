#pragma once

#include <list>
#include <string>
#include <vector>

#include "typed/Command.h"

namespace tarv_3_3::typed::engine {

/// Where a value comes from; the numbers of `typed::Source`.
enum SourceNumber : int { fromInitial = 0, fromFile = 1, fromEnvironment = 2, fromCommandLine = 3 };

/// A line of a settings file.
struct SettingsLine {
    std::string file;
    int number;
    std::string text;
};

/// Somebody gave an option.
struct Occurrence {
    Option* option = nullptr;
    /// Its value, which lives as long as the parse; of a switch "1" or "0".
    const char* text = "";
    int source = fromCommandLine;
    /// On the command line, its index in `argv`, which a value behind it does not have.
    int place = -1;
    /// In a settings file.
    const SettingsLine* line = nullptr;
    /// Whether the value is looked at and then forgotten.
    bool isOnlyChecked = false;
};

/// What a command line asks for instead of the work.
enum class Wish { none, help, version };

/// A command line and what was read of it.
struct CommandLine {
    CommandLine(Command& program, int argc, const char* const* argv);

    /// The first complaint counts.
    void complain(std::string text, std::string advice = "");
    /// Keeps a text as long as the parse.
    const char* keep(std::string text) { return texts.emplace_back(std::move(text)).c_str(); }

    std::vector<std::string> arguments;
    std::vector<Occurrence> occurrences;
    /// The command that the line names.
    Command* chosen;
    /// Whether it is said what each argument is.
    bool isTraced = false;
    Wish wish = Wish::none;
    bool hasComplaint = false;
    std::string complaint;
    /// What the user may have meant.
    std::string suggestion;
    std::vector<std::string> warnings;
    std::list<SettingsLine> settings;
    std::list<std::string> texts;
};

/// A name as it is typed: with two dashes, or with one where it is a letter.
std::string dashed(const std::string& name);

/// A positional argument as help and messages call it.
std::string argumentName(const Option& option);

/// The option among others in messages: "'--level'" or "FILE".
std::string quotedName(const Option& option);

/// The option as messages call it: "option '--level'", "action '--list'" or "argument FILE".
std::string calledName(const Option& option);

/// What was typed for an occurrence, and where, fit for a terminal: "--copies=120", "VCS_DIR=x",
/// "vcs.conf:3: git-dir=x".
std::string shownOccurrence(const CommandLine& line, const Occurrence& occurrence);

} // namespace tarv_3_3::typed::engine
