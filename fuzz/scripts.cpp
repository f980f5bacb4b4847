#include "Input.h"
#include "lint/lintScript.h"
#include "oracles.h"

#include <tarv_3_3/tarv.h>

using namespace tarv_program;

namespace {

CommandLine tool() {
    CommandLine line;
    line.names = {"pack"};
    line.flags = tarv_3_3::flagRejectUnknown | tarv_3_3::flagDashIsNotPositional;
    line.options.resize(3);
    line.options[0].names = {"output", "o"};
    line.options[0].kind = tarv_3_3::vtString;
    line.options[1].names = {"format"};
    line.options[1].kind = tarv_3_3::vtString;
    line.options[1].allowed = {"tar", "zip"};
    line.options[2].names = {"verbose"};
    line.options[2].kind = tarv_3_3::vtBool;
    return line;
}

void check(const LintedScript& script) {
    std::size_t added = 0;
    for (const Diagnostic& found : script.diagnostics) {
        if (found.fix) {
            require(found.fix->offset <= script.contents.size() &&
                        found.fix->length <= script.contents.size() - found.fix->offset,
                    "a fix outside of the script", found.message);
            added += found.fix->text.size();
        }
    }
    require(mended(script).size() <= script.contents.size() + added, "a script grew by more than its fixes");
    require(differenceOf(script).empty() == (mended(script) == script.contents),
            "a difference of equal scripts");
    reportOf(script);
}

// A script in an argument has the tree of the whole one, which fits it as badly as any.
std::string treeOfInner(const std::string& script, const std::string& tree) {
    return script.size() % 2 == 0 ? tree : "";
}

} // namespace

/// A script up to the first zero byte, and any bytes as the syntax tree of it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    silenceTrace();
    Input input(bytes, size);
    LintedScript script = {"script.sh", input.until('\0'), {}};
    const std::string tree = input.rest();
    static const CommandLine program = tool();
    try {
        script.diagnostics = lintTree(program, program.names, tree, script.contents,
                                      [&](const std::string& inner) { return treeOfInner(inner, tree); });
        check(script);
    } catch (const Failure& failure) {
        require(failure.what()[0] != '\0', "refused without a reason");
    }
    return 0;
}
