#include <cstdio>
#include <string>
#include <vector>

#include <tarv_3_3/typed.h>

namespace tarv = tarv_3_3::typed;

int main(int argc, char** argv) {
    tarv::Program tool("with_tarv");
    auto level = tool.option("level,l", "How hard to try.", 2);
    auto verbose = tool.flag("verbose,v", "Say what is done.");
    auto output = tool.option("output,o", "The file to write.", "a.out");
    auto includes = tool.option<std::vector<std::string>>("include,i", "A folder to search; may be repeated.")
                        .separator('\0');
    auto files = tool.positional<std::vector<std::string>>("file", "What to compile.");
    return tool.run(argc, argv, [=] {
        std::printf("level %d, %s, output %s\n", *level, *verbose ? "verbose" : "quiet", output->c_str());
        for (const std::string& include : *includes) {
            std::printf("include %s\n", include.c_str());
        }
        for (const std::string& file : *files) {
            std::printf("file %s\n", file.c_str());
        }
    });
}
