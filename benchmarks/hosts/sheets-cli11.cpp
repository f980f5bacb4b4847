// examples/readme.cpp as its author would write it with CLI11.
#include <CLI/CLI.hpp>

#include <cstdio>
#include <map>

enum class Paper { a4, letter };

int main(int argc, char** argv) {
    const std::map<std::string, Paper> papers = {{"a4", Paper::a4}, {"letter", Paper::letter}};
    CLI::App tool("Says how large a sheet is.", "readme");
    tool.set_version_flag("--version", "readme 1.0");
    Paper paper = Paper::a4;
    int copies = 1;
    tool.add_option("-p,--paper-size", paper, "The paper.")
        ->capture_default_str()
        ->transform(CLI::CheckedTransformer(papers));
    tool.add_option("--copies", copies, "How many.")->capture_default_str()->check(CLI::Range(1, 99));
    CLI11_PARSE(tool, argc, argv);
    std::printf("%d x %s mm\n", copies, paper == Paper::a4 ? "210 x 297" : "216 x 279");
}
