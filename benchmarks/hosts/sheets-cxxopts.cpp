// examples/readme.cpp as its author would write it with cxxopts.
#include <cxxopts.hpp>

#include <cstdio>

enum class Paper { a4, letter };

static Paper paperNamed(const std::string& name) {
    if (name == "a4")
        return Paper::a4;
    if (name == "letter")
        return Paper::letter;
    throw cxxopts::exceptions::parsing("--paper-size: must be a4 or letter");
}

int main(int argc, char** argv) {
    cxxopts::Options tool("readme", "Says how large a sheet is.");
    tool.add_options()("p,paper-size", "The paper.", cxxopts::value<std::string>()->default_value("a4"))(
        "copies", "How many.",
        cxxopts::value<int>()->default_value("1"))("help", "Show this help.")("version", "Show the version.");
    try {
        const cxxopts::ParseResult line = tool.parse(argc, argv);
        if (line.count("help") != 0) {
            std::printf("%s", tool.help().c_str());
            return 0;
        }
        if (line.count("version") != 0) {
            std::printf("readme 1.0\n");
            return 0;
        }
        const int copies = line["copies"].as<int>();
        if (copies < 1 || copies > 99)
            throw cxxopts::exceptions::parsing("--copies: must be from 1 to 99");
        const Paper paper = paperNamed(line["paper-size"].as<std::string>());
        std::printf("%d x %s mm\n", copies, paper == Paper::a4 ? "210 x 297" : "216 x 279");
        return 0;
    } catch (const cxxopts::exceptions::exception& error) {
        std::fprintf(stderr, "readme: %s\n", error.what());
        return 2;
    }
}
