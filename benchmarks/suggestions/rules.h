#pragma once

#include <string>
#include <vector>

/// The rules by which other libraries suggest a name, written down from their descriptions: what each of
/// them shows for a word among `names`.

/// clap: the one name of the highest Jaro similarity, if that is above 0.7.
std::vector<std::string> byJaro(const std::string& word, const std::vector<std::string>& names);

/// LLVM CommandLine: the one name of the least Levenshtein distance, however large it is.
std::vector<std::string> byNearest(const std::string& word, const std::vector<std::string>& names);

/// cobra, for its commands: every name at a Levenshtein distance of at most 2, or that begins with the
/// word.
std::vector<std::string> byDistanceOrBeginning(const std::string& word,
                                               const std::vector<std::string>& names);
