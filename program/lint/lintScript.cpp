#include "lint/lintScript.h"

#include <algorithm>

#include "model/askProgram.h"
#include "model/loadDescription.h"
#include "text/shellQuoted.h"

namespace tarv_program {

namespace {

std::string treeOf(const std::string& path) {
    try {
        return outputOf({"shfmt", "--to-json", "-ln=bash"},
                        Limits{std::chrono::seconds(60), 1024UL * 1024 * 1024}, path);
    } catch (const NotFound&) {
        throw Failure("shfmt is not installed, which reads the scripts; on Debian: apt install shfmt");
    } catch (const Failure& failure) {
        throw Failure(path + ": is no shell script that can be read: " + failure.what());
    }
}

} // namespace

std::vector<Diagnostic> lintTree(const CommandLine& program, const std::vector<std::string>& names,
                                 const std::string& tree, const std::string& script) {
    std::vector<Diagnostic> all;
    for (const Call& call : readCalls(tree, script)) {
        for (const std::string& name : names) {
            const std::size_t place = programPlace(call, name);
            if (place < call.size()) {
                const std::vector<Diagnostic> found = checkCall(program, call, place);
                all.insert(all.end(), found.begin(), found.end());
                break;
            }
        }
    }
    std::stable_sort(all.begin(), all.end(), [](const Diagnostic& one, const Diagnostic& other) {
        return one.line != other.line ? one.line < other.line : one.column < other.column;
    });
    return all;
}

LintedScript lintScript(const CommandLine& program, const std::vector<std::string>& names,
                        const std::string& path) {
    LintedScript script = {path, contentsOf(path), {}};
    script.diagnostics = lintTree(program, names, treeOf(path), script.contents);
    return script;
}

std::string reportOf(const LintedScript& script) {
    std::string text;
    for (const Diagnostic& found : script.diagnostics) {
        text += visible(script.path) + ":" + std::to_string(found.line) + ":" + std::to_string(found.column) +
                ": " + (found.isError ? "error: " : "warning: ") + found.message + "\n";
    }
    return text;
}

std::string mended(const LintedScript& script) {
    std::vector<Replacement> fixes;
    for (const Diagnostic& found : script.diagnostics) {
        if (found.fix) {
            fixes.push_back(*found.fix);
        }
    }
    std::sort(fixes.begin(), fixes.end(),
              [](const Replacement& one, const Replacement& other) { return one.offset < other.offset; });
    std::string text;
    std::size_t done = 0;
    for (const Replacement& fix : fixes) {
        // The same word may be reached twice; it is mended once.
        if (fix.offset >= done) {
            text.append(script.contents, done, fix.offset - done).append(fix.text);
            done = fix.offset + fix.length;
        }
    }
    return text.append(script.contents, done);
}

} // namespace tarv_program
