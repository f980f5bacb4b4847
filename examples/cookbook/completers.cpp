#include <cstdio>
#include <tarv_3_3/typed.h>

namespace tarv = tarv_3_3::typed;

int main(int argc, char** argv) {
    tarv::Program tool("completers", "1.0", "Calls somebody.");
    auto who = tool.positional<tarv::Text>("name", "Whom to call.").required();
    who.completeWith([](const char*, tarv::Candidates& candidates) {
        candidates.add("ann", "at home");
        candidates.add("anton", "at work");
        candidates.add("bob");
    });
    return tool.run(argc, argv, [=] { std::printf("call %s\n", who->c_str()); });
}
