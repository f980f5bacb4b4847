#pragma once

struct WantedName {
    const char* name;
    /// -1 for none.
    int place;
};

/// What is found in a table of four records: verbose,v,ld (an integer); color,c (a switch); Color (of
/// the null kind); no-log (a switch).
inline constexpr WantedName wantedNames[] = {
    {"verbose", 0},    {"v", 0},         {"ld", 0},           {"color", 1},       {"c", 1},
    {"no-color", 1},   {"no-c", 1},      {"Color", 2},        {"no-log", 3},      {"no-no-log", 3},
    {"verbos", -1},    {"verbosee", -1}, {"Verbose", -1},     {"no-verbose", -1}, {"no-v", -1},
    {"no-Color", -1},  {"log", -1},      {"no-no-color", -1}, {"nocolor", -1},    {"No-color", -1},
    {"no-colo", -1},   {"no-", -1},      {"no", -1},          {"", -1},           {"--verbose", -1},
    {"no-colors", -1}, {"no_color", -1},
};
