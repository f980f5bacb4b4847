#include <cstdio>
#include <tarv_3_3/typed.h>

namespace tarv = tarv_3_3::typed;

int main(int argc, char** argv) {
    tarv::Program tool("exclusive");
    auto color = tool.flag("color", "In colour.");
    auto plain = tool.flag("plain", "Without colour.");
    return tool.run(argc, argv, [=] {
        if (color.position() == plain.position()) {
            std::puts("in colour on a terminal");
        } else {
            std::puts(color.position() > plain.position() ? "in colour" : "without colour");
        }
    });
}
