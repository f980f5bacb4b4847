#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <tarv_3_3/tarv.h>

namespace tarv_program {

/// What went wrong, and where, for whoever called the program.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The key and the text of something that was said of an option.
using Note = std::pair<std::string, std::string>;

enum class Positional { no, filled, unused };

/// How many arguments a positional option takes.
struct Count {
    unsigned long least = 0;
    std::optional<unsigned long> most;
};

/// An option or an action, as a description has it.
struct Option {
    /// The text of a note; null when nothing was said.
    const std::string* note(std::string_view key) const;
    /// "" for a positional option without a name.
    std::string primaryName() const { return names.empty() ? "" : names.front(); }
    /// What people read: "FILE" where arguments fill it by their order, else the primary name with its
    /// dashes.
    std::string shownName() const;
    /// The names that can be typed: its own, and of a switch these behind "no-" as well. None of a slot.
    std::vector<std::string> typedNames() const;
    /// Whether arguments without a name fill it by their order. Nobody types its name then.
    bool isSlot() const { return positional == Positional::filled && count.has_value(); }
    bool isSwitch() const { return kind == tarv_3_3::vtBool; }
    bool takesValue() const { return kind != tarv_3_3::vtBool && kind != tarv_3_3::vtNull; }

    bool isAction = false;
    tarv_3_3::das_variant_type_t kind = tarv_3_3::vtNull;
    std::vector<std::string> names;
    std::string text;
    std::string topic;
    std::vector<std::string> tags;
    std::vector<std::string> allowed;
    /// 0 when values are not split.
    char separator = 0;
    std::optional<std::string> defaultText;
    Positional positional = Positional::no;
    std::optional<Count> count;
    bool isHidden = false;
    std::vector<Note> notes;
    /// What code of the program decides, as it is said to people.
    std::vector<std::string> checks;
};

struct Rule {
    /// A `tarv_3_3::RuleKind`.
    int kind = 0;
    /// Primary names.
    std::vector<std::string> names;
};

struct Topic {
    std::string name;
    std::string title;
};

/// A settings file that is read, or the option that names one.
struct Settings {
    std::string file;
    std::string option;
};

/// What a program or one of its verbs accepts.
struct CommandLine {
    /// The minor version of the format that it was written in.
    unsigned minorVersion = 0;
    /// Of the program; of a verb, its names and text.
    std::vector<std::string> names;
    std::string version;
    std::string text;

    /// `tarv_3_3::ParserFlag`s.
    int flags = 0;
    bool readsOptionFiles = false;
    std::vector<std::string> mends;
    std::vector<Settings> settings;
    std::vector<Topic> topics;
    std::vector<Option> options;
    std::vector<Rule> rules;
    std::vector<std::string> checks;
    std::vector<CommandLine> verbs;
    /// Whether one of the verbs has to follow; none where the description does not say it.
    std::optional<bool> isVerbRequired;
};

} // namespace tarv_program
