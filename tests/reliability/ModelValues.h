#pragma once

#include <string>
#include <vector>

#include "reliability/Model.h"

namespace model {

bool beginsWith(const std::string& text, const std::string& beginning);

/// The texts in single quotes, with a comma and a blank between them.
std::string listed(const std::vector<std::string>& texts);

/// Completes the text where it stands for an allowed one. Returns the complaint, empty for none.
std::string validate(std::string& text, const Option& option);

/// The elements of a list, none of them empty; the value itself where the separator is 0.
std::vector<std::string> pieces(const std::string& value, char separator);

} // namespace model
