#pragma once

#include <string>

#include "typed/Command.h"

namespace tarv_3_3::typed::engine {

///@{
/// What may have been meant by an argument that is no option of a command, or by a word that is none of its
/// verbs: a sentence, or "".
std::string suggestOption(const Command& command, const std::string& argument);
std::string suggestVerb(const Command& command, const std::string& word);
///@}

} // namespace tarv_3_3::typed::engine
