#include "lint/lintScript.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include "model/askProgram.h"
#include "model/loadDescription.h"
#include "text/shellQuoted.h"

namespace tarv_program {

namespace {

/// Nobody writes a script in a script in a script in a script.
constexpr unsigned deepestScript = 3;

std::string treeOfFile(const std::string& path) {
    return outputOf({"shfmt", "--to-json", "-ln=bash"},
                    Limits{std::chrono::seconds(60), 1024UL * 1024 * 1024}, path, Complaints::areTold);
}

// `name` is what messages call the script in the file.
std::string treeOf(const std::string& name, const std::string& path) {
    try {
        return treeOfFile(path);
    } catch (const NotFound&) {
        throw Failure("shfmt is not installed, which reads the scripts; on Debian: apt install shfmt");
    } catch (const Failure& failure) {
        throw Failure(name + ": is no shell script that can be read: " + failure.what());
    }
}

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// A file without a name that holds a script.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& script) : m_file(std::tmpfile()) {
        if (m_file == nullptr ||
            std::fwrite(script.data(), 1, script.size(), m_file.get()) != script.size() ||
            std::fflush(m_file.get()) != 0) {
            throw Failure(std::string("cannot write a temporary file: ") + std::strerror(errno));
        }
    }

    std::string path() const { return "/proc/self/fd/" + std::to_string(fileno(m_file.get())); }

private:
    std::unique_ptr<std::FILE, CloseFile> m_file;
};

// The syntax tree of a script in memory; "" for what is none.
std::string treeOfText(const std::string& script) {
    const TemporaryFile file(script);
    try {
        return treeOfFile(file.path());
    } catch (const Failure&) {
        return "";
    }
}

/// Looks at calls, and at those that stand in them.
class Lint {
public:
    Lint(const CommandLine& program, const std::vector<std::string>& names, const std::string& script,
         TreeOf treeOfScript)
        : m_program(program), m_names(names), m_script(script), m_treeOf(std::move(treeOfScript)) {}

    void look(const std::vector<Call>& calls, unsigned depth) {
        for (const Call& call : calls) {
            check(call);
            if (depth < deepestScript) {
                look(innerCalls(call, m_script, m_treeOf), depth + 1);
            }
        }
    }

    std::vector<Diagnostic> take() {
        std::stable_sort(m_found.begin(), m_found.end(), [](const Diagnostic& one, const Diagnostic& other) {
            return one.line != other.line ? one.line < other.line : one.column < other.column;
        });
        return std::move(m_found);
    }

private:
    void check(const Call& call) {
        for (const std::string& name : m_names) {
            const std::size_t place = programPlace(call, name);
            if (place < call.size()) {
                const std::vector<Diagnostic> found = checkCall(m_program, call, place);
                m_found.insert(m_found.end(), found.begin(), found.end());
                break;
            }
        }
    }

    const CommandLine& m_program;
    const std::vector<std::string>& m_names;
    const std::string& m_script;
    const TreeOf m_treeOf;
    std::vector<Diagnostic> m_found;
};

/// `file` is where shfmt reads the script.
LintedScript linted(const CommandLine& program, const std::vector<std::string>& names, LintedScript script,
                    const std::string& file) {
    const auto treeOfScript = [&](const std::string& inner) {
        // Most do not even name the program, and need no reading.
        const bool isNamed = std::any_of(names.begin(), names.end(), [&](const std::string& name) {
            return inner.find(name) != std::string::npos;
        });
        return isNamed ? treeOfText(inner) : "";
    };
    script.diagnostics = lintTree(program, names, treeOf(script.path, file), script.contents, treeOfScript);
    return script;
}

} // namespace

std::vector<Diagnostic> lintTree(const CommandLine& program, const std::vector<std::string>& names,
                                 const std::string& tree, const std::string& script,
                                 const TreeOf& treeOfScript) {
    Lint lint(program, names, script, treeOfScript);
    lint.look(readCalls(tree, script), 0);
    return lint.take();
}

LintedScript lintScript(const CommandLine& program, const std::vector<std::string>& names,
                        const std::string& path) {
    return linted(program, names, {path, contentsOf(path), {}}, path);
}

LintedScript lintStandardInput(const CommandLine& program, const std::vector<std::string>& names) {
    const std::string contents = contentsOfStandardInput();
    const TemporaryFile file(contents);
    return linted(program, names, {standardInputName, contents, {}}, file.path());
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
