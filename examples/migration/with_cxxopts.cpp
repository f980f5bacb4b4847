#define CXXOPTS_VECTOR_DELIMITER '\0'
#include <cxxopts.hpp>

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    using Texts = std::vector<std::string>;
    cxxopts::Options options("with_cxxopts");
    // clang-format off
    options.add_options()
        ("l,level", "How hard to try.", cxxopts::value<int>()->default_value("2"))
        ("v,verbose", "Say what is done.")
        ("o,output", "The file to write.", cxxopts::value<std::string>()->default_value("a.out"))
        ("i,include", "A folder to search; may be repeated.", cxxopts::value<Texts>())
        ("h,help", "Show this help.")
        ("file", "What to compile.", cxxopts::value<Texts>());
    // clang-format on
    options.parse_positional("file");
    try {
        const cxxopts::ParseResult found = options.parse(argc, argv);
        if (found.count("help") != 0) {
            std::printf("%s", options.help().c_str());
            return 0;
        }
        std::printf("level %d, %s, output %s\n", found["level"].as<int>(),
                    found["verbose"].as<bool>() ? "verbose" : "quiet",
                    found["output"].as<std::string>().c_str());
        for (const char* name : {"include", "file"}) {
            if (found.count(name) != 0) {
                for (const std::string& value : found[name].as<Texts>()) {
                    std::printf("%s %s\n", name, value.c_str());
                }
            }
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "with_cxxopts: %s\n", error.what());
        return 2;
    }
    return 0;
}
