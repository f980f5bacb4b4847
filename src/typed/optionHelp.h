#pragma once

#include <string>
#include <vector>

#include "typed/Command.h"

namespace tarv_3_3::typed::engine {

/// What help calls a value of the option.
std::string valueName(const Option& option);

/// "-n, --max-count=NUMBER"; names without a letter are indented as far as those behind one.
std::string optionSynopsis(const Option& option);

/// A positional argument as in the line of usage: "SOURCE...", "[FILE]".
std::string argumentSynopsis(const Option& option);

/// The description, and in brackets what else is to know: choices, range, default, environment.
std::string optionText(const Option& option);

/// A rule over options as a sentence; empty unless help shows two of them or more.
std::string ruleText(const GroupRule& rule);

/// Names as they are typed, with `prefix` in front of each, letters first.
std::string namesSynopsis(const std::vector<std::string>& names, const char* prefix = "");

} // namespace tarv_3_3::typed::engine
