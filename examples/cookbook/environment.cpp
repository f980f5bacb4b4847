#include <cstdio>
#include <tarv_3_3/typed.h>

namespace tarv = tarv_3_3::typed;

int main(int argc, char** argv) {
    tarv::Program tool("environment", "1.0", "Says where a value came from.");
    tool.settingsFile("environment.conf");
    tool.settingsOption("config", "Settings to read besides.");
    auto level = tool.option("level,l", "How hard to try.", 2).range(1, 9).env("PACK_LEVEL");
    auto& show = tool.verb("show", "Show the level.");
    auto loud = show.flag("loud", "In capitals.");
    show.does([=] {
        static const char* const sources[] = {"the default", "a file", "the environment", "the command line"};
        std::printf("%s %d, from %s\n", *loud ? "LEVEL" : "level", *level,
                    sources[static_cast<int>(level.source())]);
    });
    tool.verb("reset", "Back to the defaults.").does([] { std::puts("reset"); });
    return tool.run(argc, argv);
}
