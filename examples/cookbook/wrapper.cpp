#include <chrono>
#include <cstdio>
#include <string>
#include <tarv_3_3/typed.h>
#include <vector>

namespace tarv = tarv_3_3::typed;

int main(int argc, char** argv) {
    tarv::Program tool("wrapper", "1.0", "Runs a command for some time.");
    auto limit = tool.option("limit", "How long it may take.", std::chrono::seconds(10));
    auto command = tool.rest<std::vector<std::string>>("command", "What to run.").required();
    return tool.run(argc, argv, [=] {
        std::printf("%lld seconds:", static_cast<long long>(limit->count()));
        for (const std::string& word : *command) {
            std::printf(" %s", word.c_str());
        }
        std::puts("");
    });
}
