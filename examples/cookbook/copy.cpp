#include <cstdio>
#include <string>
#include <tarv_3_3/typed.h>
#include <vector>

namespace tarv = tarv_3_3::typed;

int main(int argc, char** argv) {
    tarv::Program tool("copy", "1.0", "Copies files.");
    auto sources = tool.positional<std::vector<std::string>>("source", "What to copy.").times(1, 3);
    auto target = tool.positional<tarv::Text>("target", "Where to.").required();
    return tool.run(argc, argv, [=] {
        for (const std::string& source : *sources) {
            std::printf("%s -> %s\n", source.c_str(), target->c_str());
        }
    });
}
