#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "tarv_3_3/tarv.h"

/// A parser and a result. Whatever is there at the end is destroyed.
struct Session {
    Session() = default;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    tarv_3_3::IParser* parser = nullptr;
    tarv_3_3::IParseResult* result = nullptr;
};

/// A parser with the given flags, and a result.
void open(Session& session, int flags = 0);

/// Parses at most fifteen arguments, without a program name. Needs no memory of its own.
int parse(Session& session, std::initializer_list<const char*> arguments);

/// The same for any number.
int parse(Session& session, const std::vector<std::string>& arguments);

/// Parses, and shows the status and what is then stored: `0 level=3`.
std::string parseAndShow(Session& session, std::initializer_list<const char*> arguments,
                         std::initializer_list<const char*> names);

/// The given options' values as `level=3 files=a,b verbose`, the plain arguments behind "--".
std::string stored(Session& session, std::initializer_list<const char*> names);
