#include <CLI/CLI.hpp>

#include <cstdio>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    int level = 2;
    bool verbose = false;
    std::string output = "a.out";
    std::vector<std::string> includes;
    std::vector<std::string> files;

    CLI::App app;
    app.add_option("-l,--level", level, "How hard to try.")->capture_default_str();
    app.add_flag("-v,--verbose", verbose, "Say what is done.");
    app.add_option("-o,--output", output, "The file to write.")->capture_default_str();
    app.add_option("-i,--include", includes, "A folder to search; may be repeated.")->allow_extra_args(false);
    app.add_option("file", files);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : 2;
    }

    std::printf("level %d, %s, output %s\n", level, verbose ? "verbose" : "quiet", output.c_str());
    for (const std::string& include : includes) {
        std::printf("include %s\n", include.c_str());
    }
    for (const std::string& file : files) {
        std::printf("file %s\n", file.c_str());
    }
    return 0;
}
