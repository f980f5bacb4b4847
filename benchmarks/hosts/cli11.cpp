#include <CLI/CLI.hpp>

#include <cstdio>

int main(int argc, char** argv) {
    bool verbose = false;
    int jobs = 0;
    double scale = 0;
    std::string output;
    std::vector<std::string> paths;
    std::vector<std::string> inputs;
    CLI::App app("A program with a command line.");
    app.add_flag("-v,--verbose", verbose, "Tell what is being done.");
    app.add_option("-j,--jobs", jobs, "How many files to work on at the same time.");
    app.add_option("--scale", scale, "The factor for every length.");
    app.add_option("-o,--output-file", output, "Where the result is written.");
    app.add_option("--include-path", paths, "Directories to search.")
        ->delimiter(',')
        ->allow_extra_args(false);
    app.add_option("input", inputs, "The files to work on.");
    CLI11_PARSE(app, argc, argv);
    std::printf("%d %d %g %s\n", verbose, jobs, scale, output.c_str());
    for (const std::string& path : paths)
        std::printf("%s\n", path.c_str());
    for (const std::string& input : inputs)
        std::printf("%s\n", input.c_str());
}
