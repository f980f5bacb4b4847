#include <chrono>
#include <cstdio>
#include <tarv_3_3/typed.h>

namespace tarv = tarv_3_3::typed;

enum class Unit { metre, foot };

struct Point {
    int x = 0;
    int y = 0;
};

/// Found because it stands beside the type.
bool fromText(const char* text, Point& point, const char*& must) {
    int end = 0;
    must = "two whole numbers, such as 3:-4";
    return std::sscanf(text, "%d:%d%n", &point.x, &point.y, &end) == 2 && text[end] == '\0';
}

/// Names that the compiler cannot give.
enum class Channel { red = 'r', green = 'g', blue = 'b' };
template <>
struct tarv_3_3::typed::Names<Channel> {
    static constexpr Choice<Channel> list[] = {
        {"red", Channel::red}, {"green", Channel::green}, {"blue", Channel::blue}};
};

int main(int argc, char** argv) {
    using std::chrono::milliseconds;
    tarv::Program tool("own_types");
    auto unit = tool.option("unit", "What to measure in.", Unit::metre);
    auto channel = tool.option("channel", "Which to take.", Channel::red);
    auto from = tool.option<Point>("from", "Where to begin.").value("X:Y");
    auto limit = tool.option("limit", "Read no more.", tarv::Size(4096));
    auto wait =
        tool.option("wait", "Pause so long.", milliseconds(250)).range(milliseconds(1), milliseconds(60000));
    return tool.run(argc, argv, [=] {
        std::printf("%s, %c, %d:%d, %llu bytes, %lld ms\n", *unit == Unit::metre ? "metres" : "feet",
                    static_cast<char>(*channel), from->x, from->y, limit->bytes,
                    static_cast<long long>(wait->count()));
    });
}
