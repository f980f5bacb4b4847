#include "Input.h"
#include "compare/compare.h"
#include "explain/explainLine.h"
#include "model/readDescription.h"
#include "oracles.h"
#include "pages/Page.h"

using namespace tarv_program;

namespace {

void use(const CommandLine& line) {
    const Comparison comparison = compare(line, line);
    require(comparison.breaks.empty(), "a command line is not compatible with itself",
            comparison.breaks.empty() ? "" : comparison.breaks.front().command);
    require(comparison.additions.empty() && comparison.unjudged.empty(), "a command line is new to itself");
    table(explainLine(line, {"--a", "-b=1", "c", "--", "d"}));
    require(!asManual(wholePage(line), "1", "").empty(), "an empty manual");
    for (const Page& page : pageForEachVerb(line)) {
        require(fileNameOf(page).find('/') == std::string::npos, "a page outside of its folder",
                fileNameOf(page));
        asMarkdown(page);
    }
}

} // namespace

/// Any bytes as a description: either read, and then good for everything, or refused.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    silenceTrace();
    const std::string json(reinterpret_cast<const char*>(bytes), size);
    try {
        CommandLine line = readDescription(json, "input");
        line.names = {line.names.empty() ? "tool" : line.names.front()};
        use(line);
    } catch (const Failure& failure) {
        require(failure.what()[0] != '\0', "refused without a reason");
    }
    return 0;
}
