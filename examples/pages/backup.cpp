#include <cstdio>
#include <string>
#include <tarv_3_3/typed.h>
#include <vector>

namespace tarv = tarv_3_3::typed;

enum class Format { tar, zip };

int main(int argc, char** argv) {
    tarv::Program tool("backup", "1.0", "Keeps copies of folders.");
    auto target = tool.option("target,t", "The folder to write to.", "backup").env("BACKUP_TARGET");
    auto format = tool.option("format", "What to write.", Format::tar);
    auto level = tool.option("level,l", "How hard to compress.", 6).range(0, 9);
    auto exclude = tool.option<std::vector<std::string>>("exclude,x", "Endings to leave out.");
    auto dryRun = tool.flag("dry-run,n", "Only say what would be done.");
    auto folders = tool.positional<std::vector<std::string>>("folder", "What to keep.").required();

    return tool.run(argc, argv, [=] {
        std::printf("%s to '%s' at level %d\n", *dryRun ? "would write" : "writing", target->c_str(), *level);
        for (const std::string& folder : *folders) {
            std::printf("  %s.%s\n", folder.c_str(), format.nameOf(*format));
        }
        if (exclude.given()) {
            std::printf("without %zu endings\n", exclude->size());
        }
    });
}
