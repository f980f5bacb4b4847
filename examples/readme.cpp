#include <cstdio>
#include <tarv_3_3/typed.h>

namespace tarv = tarv_3_3::typed;

enum class Paper { a4, letter };

int main(int argc, char** argv) {
    tarv::Program tool("readme", "1.0", "Says how large a sheet is.");
    auto paper = tool.option("paper-size,p", "The paper.", Paper::a4);
    auto copies = tool.option("copies", "How many.", 1).range(1, 99);
    return tool.run(argc, argv, [=] {
        std::printf("%d x %s mm\n", *copies, *paper == Paper::a4 ? "210 x 297" : "216 x 279");
    });
}
