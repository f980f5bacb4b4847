#include <cxxopts.hpp>

#include <cstdio>

int main(int argc, char** argv) {
    cxxopts::Options options("host", "A program with a command line.");
    options.add_options()("v,verbose", "Tell what is being done.")(
        "j,jobs", "How many files to work on at the same time.", cxxopts::value<int>()->default_value("0"))(
        "scale", "The factor for every length.", cxxopts::value<double>()->default_value("0"))(
        "o,output-file", "Where the result is written.", cxxopts::value<std::string>()->default_value(""))(
        "include-path", "Directories to search.", cxxopts::value<std::vector<std::string>>())(
        "input", "The files to work on.", cxxopts::value<std::vector<std::string>>());
    options.parse_positional({"input"});
    try {
        const cxxopts::ParseResult found = options.parse(argc, argv);
        std::printf("%d %d %g %s\n", found["verbose"].as<bool>(), found["jobs"].as<int>(),
                    found["scale"].as<double>(), found["output-file"].as<std::string>().c_str());
        for (const char* name : {"include-path", "input"})
            if (found.count(name))
                for (const std::string& value : found[name].as<std::vector<std::string>>())
                    std::printf("%s\n", value.c_str());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
