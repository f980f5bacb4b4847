#include <cstdint>
#include <cstdio>
#include <optional>
#include <tarv_3_3/typed.h>

namespace tarv = tarv_3_3::typed;

int main(int argc, char** argv) {
    tarv::Program tool("negative");
    auto offset = tool.option("offset", "How far to move.", 0);
    auto scale = tool.option("scale", "How much to grow.", 1.0).range(-10, 10);
    auto port = tool.option<std::optional<std::uint16_t>>("port", "Where to listen.");
    auto even = tool.option("even", "An even number.", 2).check("even", [](int n) { return n % 2 == 0; });
    auto width = tool.option("width", "Bits.", 32).oneOf(8, 16, 32, 64);
    return tool.run(argc, argv, [=] {
        std::printf("offset %d, scale %g, port %d, even %d, width %d\n", *offset, *scale,
                    port->has_value() ? **port : -1, *even, *width);
    });
}
