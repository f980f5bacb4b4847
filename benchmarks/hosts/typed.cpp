#include <tarv_3_3/typed.h>

#include <cstdio>
#include <string>
#include <vector>

namespace tarv = tarv_3_3::typed;

int main(int argc, char** argv) {
    tarv::Program tool("host", nullptr, "A program with a command line.");
    auto verbose = tool.flag("verbose,v", "Tell what is being done.");
    auto jobs = tool.option("jobs,j", "How many files to work on at the same time.", 0);
    auto scale = tool.option("scale", "The factor for every length.", 0.0);
    auto output = tool.option<std::string>("output-file,o", "Where the result is written.");
    auto paths = tool.option<std::vector<std::string>>("include-path", "Directories to search.");
    auto inputs = tool.positional<std::vector<std::string>>("input", "The files to work on.");
    return tool.run(argc, argv, [=] {
        std::printf("%d %d %g %s\n", *verbose, *jobs, *scale, output->c_str());
        for (const std::string& path : *paths)
            std::printf("%s\n", path.c_str());
        for (const std::string& input : *inputs)
            std::printf("%s\n", input.c_str());
    });
}
