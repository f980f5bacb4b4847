#include <boost/program_options.hpp>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace po = boost::program_options;

int main(int argc, char** argv) {
    po::options_description options("Options");
    options.add_options()("verbose,v", po::bool_switch(), "Tell what is being done.")(
        "jobs,j", po::value<int>()->default_value(0), "How many files to work on at the same time.")(
        "scale", po::value<double>()->default_value(0), "The factor for every length.")(
        "output-file,o", po::value<std::string>()->default_value(""), "Where the result is written.")(
        "include-path", po::value<std::string>()->default_value(""),
        "Directories to search.")("input", po::value<std::vector<std::string>>(), "The files to work on.");
    po::positional_options_description positional;
    positional.add("input", -1);
    po::variables_map found;
    try {
        po::store(po::command_line_parser(argc, argv).options(options).positional(positional).run(), found);
        po::notify(found);
    } catch (const po::error& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    std::printf("%d %d %g %s\n", found["verbose"].as<bool>(), found["jobs"].as<int>(),
                found["scale"].as<double>(), found["output-file"].as<std::string>().c_str());
    std::string paths = found["include-path"].as<std::string>();
    for (char* path = std::strtok(&paths[0], ","); path; path = std::strtok(nullptr, ","))
        std::printf("%s\n", path);
    if (found.count("input"))
        for (const std::string& input : found["input"].as<std::vector<std::string>>())
            std::printf("%s\n", input.c_str());
}
