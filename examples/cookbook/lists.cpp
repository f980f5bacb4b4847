#include <cstdio>
#include <set>
#include <string>
#include <tarv_3_3/typed.h>
#include <vector>

namespace tarv = tarv_3_3::typed;

int main(int argc, char** argv) {
    tarv::Program tool("lists");
    auto sizes = tool.option<std::set<int>>("size", "Sizes to make.").range(1, 512);
    auto folders = tool.option<std::vector<std::string>>("path", "Folders to look in.").separator(':');
    auto titles = tool.option<std::vector<std::string>>("title", "Titles, commas and all.").separator('\0');
    return tool.run(argc, argv, [=] {
        for (const int size : *sizes) {
            std::printf("size %d\n", size);
        }
        for (const std::string& folder : *folders) {
            std::printf("folder '%s'\n", folder.c_str());
        }
        for (const std::string& title : *titles) {
            std::printf("title '%s'\n", title.c_str());
        }
    });
}
