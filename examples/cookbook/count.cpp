#include <cstdio>
#include <tarv_3_3/typed.h>

namespace tarv = tarv_3_3::typed;

int main(int argc, char** argv) {
    tarv::Program tool("count");
    auto verbosity = tool.counter("verbose,v", "Say more; may be repeated.").env("COUNT_VERBOSE");
    auto include = tool.option<tarv::Text>("include", "The last one counts.");
    return tool.run(argc, argv,
                    [=] { std::printf("verbosity %d, %d includes\n", *verbosity, include.count()); });
}
