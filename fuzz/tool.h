#pragma once

#include <cstring>

#include "oracles.h"

/// Refuses every value that has "veto" in it.
struct VetoingHandler : tarv_3_3::EventHandler {
    bool onValueParse(const char*, const tarv_3_3::Value& value) override {
        return std::strstr(value.text, "veto") == nullptr;
    }

    bool onUknownArgument(const char* argument) override { return std::strstr(argument, "known") == nullptr; }
};

/// Declares something of everything, but no defaults, and returns all names.
inline std::vector<std::string> declareTool(tarv_3_3::IParser& parser) {
    using namespace tarv_3_3;
    parser.option("verbose,v", "Says more.", vtBool, "general:All the rest");
    parser.option("no-colour,nc", "", vtBool).synonym("plain-text");
    parser.option("level,l", "", vtInt32, "general").allowValue(1).allowValue(2).allowValue(3);
    parser.option("count", "", vtUInt32);
    parser.option("offset", "", vtInt64);
    parser.option("hexadecimal,hex,x", "", vtUInt64);
    parser.option("ratio", "", vtDouble).tokenize(':');
    parser.option("output-file,o", "Where to.", vtString).tokenize(0);
    parser.option("output-form", "", vtString).allowValue("text").allowValue("table").allowValue("tab");
    parser.option("quiet,q", "", vtNull);
    parser.option("a--b", "", vtString);
    parser.action("build-all,build,b", "", vtNull);
    parser.action("test", "", vtBool);
    parser.modifier("jobs,j", "build", "How many.", vtInt32);
    parser.modifier("only", "test,build-all", "", vtString);
    parser.option("files", "", vtString).positional();
    return {"verbose", "v",     "no-colour",   "nc", "plain-text",  "level",       "l",     "count", "offset",
            "hex",     "x",     "hexadecimal", "o",  "output-file", "output-form", "quiet", "q",     "a--b",
            "ratio",   "build", "b",           "j",  "build-all",   "test",        "jobs",  "only",  "files"};
}
