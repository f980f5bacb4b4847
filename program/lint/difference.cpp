#include <algorithm>

#include "lint/lintScript.h"
#include "text/shellQuoted.h"

namespace tarv_program {

namespace {

constexpr std::size_t contextLines = 3;

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size() - 1);
        lines.push_back(text.substr(at, end + 1 - at));
        at = end + 1;
    }
    return lines;
}

std::string marked(char mark, const std::string& line) {
    const bool isEnded = !line.empty() && line.back() == '\n';
    return mark + line + (isEnded ? "" : "\n\\ No newline at end of file\n");
}

/// Lines of a script from `begin` to `end`, with what is changed in them.
std::string hunk(const std::vector<std::string>& before, const std::vector<std::string>& now,
                 std::size_t begin, std::size_t end) {
    const std::string range = std::to_string(begin + 1) + "," + std::to_string(end - begin);
    std::string text = "@@ -" + range + " +" + range + " @@\n";
    for (std::size_t i = begin; i < end;) {
        if (before[i] == now[i]) {
            text += marked(' ', before[i++]);
            continue;
        }
        std::size_t last = i;
        for (; last < end && before[last] != now[last]; ++last) {
            text += marked('-', before[last]);
        }
        for (; i < last; ++i) {
            text += marked('+', now[i]);
        }
    }
    return text;
}

} // namespace

// No line is added or taken away, so that lines stand side by side.
std::string differenceOf(const LintedScript& script) {
    const std::vector<std::string> before = linesOf(script.contents);
    const std::vector<std::string> now = linesOf(mended(script));
    std::string text;
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i] == now[i]) {
            continue;
        }
        const std::size_t begin = i < contextLines ? 0 : i - contextLines;
        std::size_t end = std::min(i + 1 + contextLines, before.size());
        // Changes that are near belong together.
        for (std::size_t next = i + 1; next < std::min(end + contextLines, before.size()); ++next) {
            if (before[next] != now[next]) {
                end = std::min(next + 1 + contextLines, before.size());
            }
        }
        text += hunk(before, now, begin, end);
        i = end - 1;
    }
    const std::string path = visible(script.path);
    return text.empty() ? "" : "--- " + path + "\n+++ " + path + "\n" + text;
}

} // namespace tarv_program
