#pragma once

#include <charconv>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// What sort_lines does, whichever library reads its command line: it says what it would do.
namespace lines {

using Path = std::filesystem::path;

enum class Order { text, general_numeric, human_numeric, month, numeric, random, version };

/// The fields that lines are compared by, as in "2,3": the last one is 0 where the key goes up to the end.
struct Key {
    unsigned first = 0;
    unsigned last = 0;
};

/// Makes "2" or "2,3" a key. False when the text is none.
inline bool fromText(const char* text, Key& key) {
    const char* const end = text + std::strlen(text);
    const std::from_chars_result first = std::from_chars(text, end, key.first);
    if (first.ec != std::errc() || key.first == 0) {
        return false;
    }
    if (first.ptr == end) {
        return true;
    }
    const std::from_chars_result last = std::from_chars(first.ptr + 1, end, key.last);
    return *first.ptr == ',' && last.ec == std::errc() && last.ptr == end && key.last >= key.first;
}

struct Job {
    Order order = Order::text;
    bool ignoreLeadingBlanks = false;
    bool dictionaryOrder = false;
    bool ignoreCase = false;
    bool ignoreNonprinting = false;
    bool reverse = false;
    bool check = false;
    bool merge = false;
    bool stable = false;
    bool unique = false;
    bool zeroTerminated = false;
    bool debug = false;
    std::vector<Key> keys;
    std::optional<char> separator;
    Path output;
    Path filesFrom;
    Path randomSource;
    std::string compressProgram;
    unsigned long long bufferSize = 0;
    std::vector<Path> temporaryDirectories;
    unsigned batchSize = 16;
    unsigned parallel = 1;
    std::vector<Path> files;
};

inline void print(const char* what, const Path& path) {
    if (!path.empty()) {
        std::printf("%s '%s'\n", what, path.c_str());
    }
}

inline void sort(const Job& job) {
    const struct {
        bool isSet;
        const char* name;
    } switches[] = {{job.ignoreLeadingBlanks, "ignore-leading-blanks"},
                    {job.dictionaryOrder, "dictionary-order"},
                    {job.ignoreCase, "ignore-case"},
                    {job.ignoreNonprinting, "ignore-nonprinting"},
                    {job.reverse, "reverse"},
                    {job.check, "check"},
                    {job.merge, "merge"},
                    {job.stable, "stable"},
                    {job.unique, "unique"},
                    {job.zeroTerminated, "zero-terminated"},
                    {job.debug, "debug"}};
    static const char* const orders[] = {"text",    "general-numeric", "human-numeric", "month",
                                         "numeric", "random",          "version"};
    std::printf("order %s", orders[static_cast<int>(job.order)]);
    for (const auto& each : switches) {
        std::printf("%s%s", each.isSet ? ", " : "", each.isSet ? each.name : "");
    }
    std::printf("\n");
    for (const Key& key : job.keys) {
        std::printf("key %u to %u\n", key.first, key.last);
    }
    if (job.separator.has_value()) {
        std::printf("separator '%c'\n", *job.separator);
    }
    std::printf("buffer %llu, batch %u, parallel %u\n", job.bufferSize, job.batchSize, job.parallel);
    print("output", job.output);
    print("files from", job.filesFrom);
    print("random source", job.randomSource);
    print("compress with", job.compressProgram);
    for (const Path& folder : job.temporaryDirectories) {
        print("temporary", folder);
    }
    for (const Path& file : job.files) {
        print("file", file);
    }
}

} // namespace lines
