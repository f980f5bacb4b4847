#include <cstdio>
#include <filesystem>
#include <tarv_3_3/typed.h>
#include <vector>

namespace tarv = tarv_3_3::typed;

/// What the command line says. Some tools keep that in a struct of their own.
struct Settings {
    std::filesystem::path output = "out.pack";
    int level = 2;
    bool verbose = false;
};

int main(int argc, char** argv) {
    tarv::Program tool("typical_tool", "1.0", "Packs files.");
    Settings settings;
    tool.bind("output,o", settings.output, "The file to write.");
    tool.bind("level,l", settings.level, "How hard to try.").range(1, 3);
    tool.bind("verbose,v", settings.verbose, "Say what is done.");
    auto files = tool.positional<std::vector<std::filesystem::path>>("file", "What to pack.").required();
    return tool.run(argc, argv, [&] {
        for (const std::filesystem::path& file : *files) {
            std::printf("pack %s at level %d%s\n", file.c_str(), settings.level,
                        settings.verbose ? ", and say so" : "");
        }
        std::printf("write %s\n", settings.output.c_str());
    });
}
