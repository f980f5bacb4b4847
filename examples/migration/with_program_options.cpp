#include <boost/program_options.hpp>

#include <cstdio>
#include <exception>
#include <initializer_list>
#include <iostream>
#include <string>
#include <vector>

namespace po = boost::program_options;

int main(int argc, char** argv) {
    po::options_description visible;
    // clang-format off
    visible.add_options()
        ("level,l", po::value<int>()->default_value(2), "How hard to try.")
        ("verbose,v", po::bool_switch(), "Say what is done.")
        ("output,o", po::value<std::string>()->default_value("a.out"), "The file to write.")
        ("include,i", po::value<std::vector<std::string>>(), "A folder to search; may be repeated.")
        ("help,h", "Show this help.");
    // clang-format on
    po::options_description all;
    all.add(visible).add_options()("file", po::value<std::vector<std::string>>());
    po::positional_options_description positional;
    positional.add("file", -1);

    po::variables_map found;
    try {
        po::store(po::command_line_parser(argc, argv).options(all).positional(positional).run(), found);
        po::notify(found);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "with_program_options: %s\n", error.what());
        return 2;
    }
    if (found.count("help") != 0) {
        std::cout << visible;
        return 0;
    }
    std::printf("level %d, %s, output %s\n", found["level"].as<int>(),
                found["verbose"].as<bool>() ? "verbose" : "quiet", found["output"].as<std::string>().c_str());
    for (const char* name : {"include", "file"}) {
        if (found.count(name) != 0) {
            for (const std::string& value : found[name].as<std::vector<std::string>>()) {
                std::printf("%s %s\n", name, value.c_str());
            }
        }
    }
    return 0;
}
