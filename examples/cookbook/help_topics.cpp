#include <cstdio>
#include <filesystem>
#include <tarv_3_3/typed.h>

namespace tarv = tarv_3_3::typed;

int main(int argc, char** argv) {
    tarv::Program tool("help_topics", "1.0", "Scans pictures.");
    tool.option("resolution,r", "Dots in an inch.", 300).range(75, 1200).topic("Picture");
    tool.flag("colour", "Not only grey.").topic("Picture");
    tool.option<std::filesystem::path>("folder", "Where pictures go.")
        .value("FOLDER")
        .completeAs("directory");
    tool.flag("color", "Not only grey.").deprecated("--colour");
    tool.flag("debug-sensor", "For those who build the scanner.").hidden();
    return tool.run(argc, argv, [] { std::puts("scan"); });
}
