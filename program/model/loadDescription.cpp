#include "model/loadDescription.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "model/readDescription.h"

namespace tarv_program {

namespace {

constexpr std::size_t mostBytes = std::size_t(16) * 1024 * 1024;

bool isDescriptionFile(const std::string& path) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored)) {
        return false;
    }
    std::ifstream file(path, std::ios::binary);
    char begin[256];
    file.read(begin, sizeof begin);
    return looksLikeDescription(std::string(begin, static_cast<std::size_t>(file.gcount())));
}

std::string jsonOf(const std::string& source, const Limits& limits) {
    std::error_code ignored;
    // Nobody can look at the beginning of a pipe and leave it there.
    if (std::filesystem::is_fifo(source, ignored) || isDescriptionFile(source)) {
        return contentsOf(source);
    }
    if (source.find('/') == std::string::npos && std::filesystem::is_regular_file(source, ignored)) {
        throw Failure(source + ": is a file, but no description; a program here is ./" + source);
    }
    std::string answer = outputOf({source, "tarvoption=describe"}, limits);
    if (!looksLikeDescription(answer)) {
        throw Failure(source + ": is no description, and does not answer tarvoption=describe with one");
    }
    return answer;
}

std::string allOf(std::istream& stream, const std::string& name) {
    std::string contents;
    char buffer[65536];
    while (stream.read(buffer, sizeof buffer) || stream.gcount() > 0) {
        contents.append(buffer, static_cast<std::size_t>(stream.gcount()));
        if (contents.size() > mostBytes) {
            throw Failure(name + ": has more than " + std::to_string(mostBytes) + " bytes");
        }
    }
    return contents;
}

} // namespace

std::string contentsOf(const std::string& path) {
    std::error_code error;
    if (std::filesystem::is_directory(path, error)) {
        throw Failure(path + ": is a directory");
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw Failure(path + ": " + std::strerror(errno));
    }
    return allOf(file, path);
}

std::string contentsOfStandardInput() {
    std::string contents = allOf(std::cin, standardInputName);
    if (std::ferror(stdin) != 0) {
        throw Failure(std::string(standardInputName) + ": " + std::strerror(errno));
    }
    return contents;
}

std::string programName(const std::string& path) {
    const std::filesystem::path name = std::filesystem::path(path).filename();
    return name.extension() == ".json" ? name.stem().string() : name.string();
}

CommandLine loadDescription(const std::string& source, const Limits& limits) {
    CommandLine line = readDescription(jsonOf(source, limits), source);
    if (line.names.empty() || line.names.front().empty()) {
        line.names = {programName(source)};
    }
    return line;
}

std::string loadJson(const std::string& source, const Limits& limits) {
    std::string json = jsonOf(source, limits);
    readDescription(json, source);
    return json;
}

} // namespace tarv_program
