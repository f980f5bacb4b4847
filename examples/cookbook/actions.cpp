#include <cstdio>
#include <string>
#include <tarv_3_3/typed.h>
#include <vector>

namespace tarv = tarv_3_3::typed;

int main(int argc, char** argv) {
    tarv::Program tool("actions", "1.0", "Keeps files in an archive.");
    tool.joinLetters();
    auto create = tool.action("create,c", "Make an archive.");
    auto list = tool.action("list,t", "Show what is in it.");
    auto archive = tool.option<tarv::Text>("file,f", "The archive.").required();
    auto level = tool.option("level,l", "How hard to compress.", 6).range(0, 9).goesWith(create);
    auto files = tool.positional<std::vector<std::string>>("member", "What is in it.");
    return tool.run(argc, argv, [=] {
        std::printf("%s %s, %zu files\n", *list ? "list" : "create", archive->c_str(), files->size());
        if (*create) {
            std::printf("at level %d\n", *level);
        }
    });
}
