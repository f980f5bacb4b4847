// The program that stands for any host in docs/syntax.md: it says what it was told.
#include <cstdio>
#include <filesystem>
#include <vector>

#include <tarv_3_3/typed.h>

namespace tarv = tarv_3_3::typed;

enum class Format { jpeg, png, pnm };

int main(int argc, char** argv) {
    using Paths = std::vector<std::filesystem::path>;
    tarv::Program tool("photo", "1.0", "Says what it was told.");
    tool.settingsOption("settings", "Read this file of settings.");
    auto output = tool.option<tarv::Text>("output-name,o", "The file to write.");
    auto level = tool.option<int>("level,l", "How hard to try.").env("PHOTO_LEVEL");
    auto sizes = tool.option<std::vector<unsigned>>("size,s", "Sizes to make.");
    auto format = tool.option<Format>("format,f", "The format to write.");
    auto verbose = tool.flag("verbose,v", "Say what is done.");
    auto verify = tool.flag("verify", "Read again what was written.");
    auto images = tool.positional<Paths>("image", "What to convert.");
    return tool.run(argc, argv, [=] {
        if (output.given()) {
            std::printf("output-name [%s]\n", output->c_str());
        }
        if (level.given()) {
            std::printf("level [%d]\n", *level);
        }
        for (const unsigned size : *sizes) {
            std::printf("size [%u]\n", size);
        }
        if (format.given()) {
            static const char* const names[] = {"jpeg", "png", "pnm"};
            std::printf("format [%s]\n", names[static_cast<int>(*format)]);
        }
        if (verbose.given() || verify.given()) {
            std::printf("verbose [%d], verify [%d]\n", *verbose ? 1 : 0, *verify ? 1 : 0);
        }
        for (const std::filesystem::path& image : *images) {
            std::printf("image [%s]\n", image.c_str());
        }
    });
}
