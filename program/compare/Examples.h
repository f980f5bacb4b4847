#pragma once

#include <map>
#include <optional>
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
    /// The same under its primary name; a positional one by its value.
    std::vector<std::string> argumentsOf(std::size_t place);

    /// A whole command line as it is typed.
    std::string shown(const std::vector<std::string>& arguments) const;

private:
    const std::optional<std::string>& sample(std::size_t place);

    const Side& m_side;
    const std::vector<std::string> m_command;
    std::map<std::size_t, std::optional<std::string>> m_samples;
};

} // namespace tarv_program
