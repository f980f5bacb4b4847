#include "Input.h"
#include "tool.h"

using namespace tarv_3_3;

/// A command line against a rich, fixed set of declarations. The first byte holds the flags; every
/// line behind it is one argument.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Input input(bytes, size);
    Parse parse(input.byte() & 0x3e);
    const std::vector<std::string> names = declareTool(*parse.parser);
    VetoingHandler handler;
    parse.parser->addHandler(&handler);
    requireSameTwice(parse, input.arguments(), names);
    return 0;
}
