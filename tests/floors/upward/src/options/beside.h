#pragma once
#include <string>
#include <unordered_set>

struct Beside {
    std::unordered_set<std::string, TextHash> names;
    std::unordered_set<std::string> texts;
};
