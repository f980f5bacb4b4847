#include "Input.h"
#include "MemoryFile.h"
#include "tool.h"

using namespace tarv_3_3;

namespace {

constexpr char optionFile[] = "option-file";

// The lines of a text as arguments, by a plain second reading of the rules.
std::vector<std::string> linesOf(const std::string& text) {
    if (text == "-1") {
        return {"?"};
    }
    std::vector<std::string> lines;
    Input input(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    while (!input.empty()) {
        std::string line = input.until('\n');
        line.erase(0, std::min(line.find_first_not_of(" \t\v\f\r"), line.size()));
        if (line.empty() || line[0] == ';' || line[0] == '#') {
            continue;
        }
        while (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        if (!line.empty()) {
            lines.push_back(line);
        }
    }
    return lines;
}

} // namespace

/// Bytes as a stream and as an option file: both must say what the same arguments say. The first
/// byte holds the flags.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Input input(bytes, size);
    const int flags = input.byte() & 0x3e;
    const std::string text = input.rest();

    Parse stream(flags);
    const std::vector<std::string> names = declareTool(*stream.parser);
    stream.parser->option(optionFile, "", vtString);
    const int status = stream.stream(text);
    // Which files an input may name is not left to a fuzzer.
    if (stream.result->present(optionFile)) {
        return 0;
    }
    const std::string dump = stream.dump(names);

    Parse arguments(flags);
    declareTool(*arguments.parser);
    arguments.parser->option(optionFile, "", vtString);
    require(arguments.arguments(linesOf(text)) == status && arguments.error() == stream.error() &&
                (linesOf(text).empty() || arguments.dump(names) == dump),
            "a stream is not its lines", stream.error() + "\n" + arguments.error() + "\n" + dump);

    Parse file(flags);
    declareTool(*file.parser);
    file.parser->addOptionFileOption("");
    const MemoryFile contents(text);
    const int fileStatus = file.arguments({"--option-file=" + contents.path()});
    // The option itself is stored besides, and asks for an action where a stream without options does not.
    const bool needsAction = status == parseOk && file.error() == "No action defined.";
    require(needsAction || (fileStatus == status && file.error() == stream.error()),
            "a file is not its stream", stream.error() + "\n" + file.error());
    require(file.dump(names) == dump, "a file stores other than its stream", dump + file.dump(names));
    return 0;
}
