#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "compare/Side.h"

namespace tarv_program {

/// Command lines that people could type, made for the older side.
class Examples {
public:
    /// `command` is the program, and the verbs behind it.
    Examples(const Side& side, std::vector<std::string> command)
        : m_side(side), m_command(std::move(command)) {}

    /// The arguments that give an option under `name`, or what abbreviates it.
    std::vector<std::string> argumentsOf(std::size_t place, const std::string& name);
    /// The same under its primary name; a positional one by its value, with what the arguments in front of it
    /// need.
    std::vector<std::string> argumentsOf(std::size_t place);
    /// The arguments that give an option this value, in the same way.
    std::vector<std::string> argumentsWith(std::size_t place, const std::string& value);

    /// So many arguments without a name, each as the option takes it that it goes to.
    std::vector<std::string> words(std::size_t count);
    /// How many of them the side takes at least, where each of these options is to have one; none where there
    /// is no such number.
    std::optional<std::size_t> wordCount(const std::set<std::size_t>& places) const;

    /// A whole command line as it is typed.
    std::string shown(const std::vector<std::string>& arguments) const;

private:
    std::vector<std::string> samples(std::size_t count);
    const std::optional<std::string>& sample(std::size_t place);

    const Side& m_side;
    const std::vector<std::string> m_command;
    std::map<std::size_t, std::optional<std::string>> m_samples;
};

} // namespace tarv_program
