// A host of the typed face that is compiled in many ways, and run.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <tarv_3_3/typed.h>

namespace tarv = tarv_3_3::typed;

namespace {

enum class Paper { a4, us_letter };
enum class Weekday : unsigned char { monday = 1, sunday = 7 };

struct Point {
    int x = 0;
    int y = 0;
};

bool fromText(const char* text, Point& point) {
    return std::sscanf(text, "%d:%d", &point.x, &point.y) == 2;
}

} // namespace

template <>
struct tarv_3_3::typed::Names<Weekday> {
    static constexpr Choice<Weekday> list[] = {{"monday", Weekday::monday}, {"sunday", Weekday::sunday}};
};

int main(int argc, char** argv) {
    tarv::Program tool("host", "1.0", "Is compiled in many ways.");
    auto verbose = tool.counter("verbose,v", "Say more.");
    auto& print = tool.verb("print", "Prints what it was given.");
    auto paper = print.option("paper,p", "The paper.", Paper::a4);
    auto day = print.option("day", "The day.", Weekday::sunday);
    auto where = print.option<std::optional<Point>>("where", "The place.");
    auto sizes = print.option<std::vector<unsigned short>>("size", "Sizes.").range(1, 9000);
    auto names =
        print.option<std::set<std::string>>("name", "Names.").check("short", [](const std::string& name) {
            return name.size() < 9;
        });
    auto wait = print.option("wait", "How long.", std::chrono::milliseconds(20));
    auto limit = print.option("limit", "How much.", tarv::Size(1024)).range(1, 1 << 20);
    auto title = print.option("title", "What for.", "none").mayBeEmpty();
    auto view = print.option<std::string_view>("view", "A view.")
                    .completeWith([](const char*, tarv::Candidates& candidates) {
                        candidates.add("all", "Everything.");
                    });
    auto path = print.positional<std::filesystem::path>("path", "Where to.").required();
    bool fast = false;
    print.bind("fast", fast, "Hurry.");
    print.does([=, &fast] {
        std::printf("v%d paper %d day %d at %d sizes %zu names %zu wait %lld limit %llu '%s' '%.*s' %s%s\n",
                    *verbose, static_cast<int>(*paper), static_cast<int>(*day),
                    where->has_value() ? (*where)->y : -1, sizes->size(), names->size(),
                    static_cast<long long>(wait->count()), limit->bytes, title->c_str(),
                    static_cast<int>(view->size()), view->data(), path->c_str(), fast ? " fast" : "");
        return 3;
    });
    return tool.run(argc, argv);
}
