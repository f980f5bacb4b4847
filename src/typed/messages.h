#pragma once

#include <string>
#include <vector>

/// The wording of all that a program of the typed face says to its users. `typed` is what stands on the
/// command line, fit for a terminal; names have their dashes. What is `called` something is an option, an
/// action or an argument with that word in front: "option '--level'", "argument FILE".
namespace tarv_3_3::typed::engine::messages {

inline constexpr char aWholeNumber[] = "a whole number";
inline constexpr char aNumber[] = "a number";
inline constexpr char aSize[] = "a number of bytes, such as 4096 or 4MiB,";
inline constexpr char aDuration[] = "a duration, such as 1.5s or 3min,";
inline constexpr char aSwitch[] = "one of 1, true, yes, on, 0, false, no, off";
inline constexpr char oneByte[] = "one character";
inline constexpr char tooLarge[] = "is too large";
inline constexpr char unitIsMissing[] = "needs a unit: ns, us, ms, s, min, h or d";
inline constexpr char isNotValid[] = "is not valid";
inline constexpr char isEmpty[] = "the value is empty";
inline constexpr char noVerb[] = "a verb is missing";
inline constexpr char noAction[] = "an action is missing";
inline constexpr char isNotUsed[] = ", which is not used";
inline constexpr char outOfMemory[] = "out of memory";
inline constexpr char cannotWrite[] = "cannot write";

inline std::string listOf(const std::vector<std::string>& words, const char* last) {
    std::string list;
    for (const std::string& word : words) {
        list.append(list.empty() ? "" : &word == &words.back() ? last : ", ").append(word);
    }
    return list;
}

inline std::string mustBe(std::string what) {
    if (!what.empty() && what.back() == ',') {
        what.pop_back();
    }
    return "must be " + what;
}

inline std::string ofPiece(const std::string& piece, const std::string& reason) {
    return "'" + piece + "' " + reason;
}

inline std::string mustBeOneOf(const std::vector<std::string>& choices) {
    return "must be " + std::string(choices.size() > 1 ? "one of " : "") + listOf(choices, " or ");
}

inline std::string couldBe(const std::vector<std::string>& choices) {
    return "is ambiguous, could be " + listOf(choices, " or ");
}

inline std::string mustBeWholeUnits(const std::string& unit) {
    return "must be a multiple of " + unit;
}

inline std::string unknownOption(const std::string& typed) {
    return "unknown option '" + typed + "'";
}

inline std::string ambiguousOption(const std::string& typed, const std::vector<std::string>& names) {
    return "ambiguous option '" + typed + "', could be " + listOf(names, " or ");
}

inline std::string unknownVerb(const std::string& typed) {
    return "unknown verb '" + typed + "'";
}

inline std::string ambiguousVerb(const std::string& typed, const std::vector<std::string>& names) {
    return "ambiguous verb '" + typed + "', could be " + listOf(names, " or ");
}

inline std::string valueIsMissing(const std::string& typed) {
    return "option '" + typed + "' needs a value";
}

inline std::string takesNoValue(const std::string& typed, const std::string& name) {
    return typed + ": option '" + name + "' takes no value";
}

inline std::string belongsBehindVerb(const std::string& typed, const std::string& verb) {
    return "option '" + typed + "' belongs behind '" + verb + "'";
}

inline std::string tooManyArguments(const std::string& typed) {
    return "unexpected argument '" + typed + "'";
}

inline std::string argumentIsMissing(const std::string& called) {
    return called + " is missing";
}

inline std::string tooFewArguments(const std::string& called, unsigned least) {
    return called + " is needed at least " + std::to_string(least) + " times";
}

inline std::string isRequired(const std::string& called) {
    return called + " is required";
}

/// `kinds` is "options", "actions" or "arguments", or empty where the names are of several kinds.
inline std::string excludeEachOther(const std::string& kinds, const std::vector<std::string>& names) {
    return kinds + (kinds.empty() ? "" : " ") + listOf(names, " and ") + " exclude each other";
}

inline std::string oneIsRequired(const std::string& kinds, const std::vector<std::string>& names) {
    return "one of " + (kinds.empty() ? "" : "the " + kinds + " ") + listOf(names, " or ") + " is required";
}

inline std::string goTogether(const std::string& kinds, const std::vector<std::string>& names,
                              const std::string& missing) {
    return kinds + (kinds.empty() ? "" : " ") + listOf(names, " and ") + " go together, but " + missing +
           " is missing";
}

inline std::string needs(const std::string& called, const std::string& needed) {
    return called + " needs " + needed;
}

inline std::string doesNotGoWith(const std::string& called, const std::string& action) {
    return called + " does not go with " + action;
}

inline std::string isDeprecated(const std::string& called, const std::string& instead) {
    return called + " is deprecated" + (instead.empty() ? "" : "; use " + instead);
}

inline std::string commandIs(const std::string& path) {
    return "the command is '" + path + "'";
}

inline std::string isReadAs(const std::string& shown, const std::string& called, const std::string& value) {
    return shown + " is " + called + (value.empty() ? "" : ", value '" + value + "'");
}

inline std::string isShortFor(const std::string& typed, const std::string& whole) {
    return "'" + typed + "' is short for '" + whole + "'";
}

inline std::string mustBeWhole(const std::string& typed, const std::string& whole) {
    return "'" + typed + "' must be written in full: '" + whole + "'";
}

inline std::string cannotRead(const std::string& path) {
    return "cannot read the settings file '" + path + "'";
}

inline std::string unknownSetting(const std::string& name) {
    return "unknown setting '" + name + "'";
}

inline std::string settingNeedsValue(const std::string& name) {
    return "setting '" + name + "' needs a value";
}

inline std::string tryHelp(const std::string& path) {
    return "Try '" + path + " --help'.";
}

} // namespace tarv_3_3::typed::engine::messages
