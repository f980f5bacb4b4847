#include "compare/report.h"

#include <algorithm>
#include <set>
#include <sstream>

#include <nlohmann/json.hpp>

namespace tarv_program {

namespace {

std::string counted(std::size_t count, const std::string& one) {
    return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

void appendFinding(std::string& text, const Finding& finding) {
    text += finding.command + "\n    until now: " + finding.was + "\n    now:       " + finding.now + "\n";
    if (finding.shorter != 0) {
        text += "    and " + counted(finding.shorter, "shorter form") + " of it\n";
    }
}

void appendList(std::string& text, const char* title, const std::vector<std::string>& lines) {
    if (lines.empty()) {
        return;
    }
    text += std::string(title) + ":\n";
    for (const std::string& line : lines) {
        text += "    " + line + "\n";
    }
}

nlohmann::ordered_json asJson(const std::vector<Finding>& findings) {
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const Finding& finding : findings) {
        list.push_back({{"kind", finding.kind},
                        {"command", finding.command},
                        {"was", finding.was},
                        {"now", finding.now},
                        {"shorter", finding.shorter}});
    }
    return list;
}

} // namespace

std::string baselineLine(const Finding& finding) {
    return finding.kind + ": " + finding.command + ": " + finding.now;
}

void acceptBreaks(Comparison& comparison, const std::string& baseline) {
    std::set<std::string> lines;
    std::istringstream stream(baseline);
    for (std::string line; std::getline(stream, line);) {
        if (!line.empty() && line.front() != '#') {
            lines.insert(line);
        }
    }
    const auto isAccepted = [&](const Finding& finding) { return lines.count(baselineLine(finding)) != 0; };
    const auto left = std::stable_partition(comparison.breaks.begin(), comparison.breaks.end(),
                                            [&](const Finding& finding) { return !isAccepted(finding); });
    comparison.accepted.assign(left, comparison.breaks.end());
    comparison.breaks.erase(left, comparison.breaks.end());
}

std::string reportAsText(const Comparison& comparison) {
    std::string text;
    for (const Finding& finding : comparison.breaks) {
        appendFinding(text, finding);
    }
    appendList(text, "New", comparison.additions);
    appendList(text, "Not to be judged from a description", comparison.unjudged);
    text += comparison.breaks.empty() ? "Compatible" : counted(comparison.breaks.size(), "break");
    if (!comparison.accepted.empty()) {
        text += ", " + counted(comparison.accepted.size(), "break") + " accepted";
    }
    return text + ".\n";
}

std::string reportAsJson(const Comparison& comparison) {
    const nlohmann::ordered_json json = {{"format", "tarv-comparison"},
                                         {"version", "1.0"},
                                         {"compatible", comparison.breaks.empty()},
                                         {"breaks", asJson(comparison.breaks)},
                                         {"accepted", asJson(comparison.accepted)},
                                         {"additions", comparison.additions},
                                         {"unjudged", comparison.unjudged}};
    return json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";
}

std::string reportAsBaseline(const Comparison& comparison) {
    std::string text;
    for (const std::vector<Finding>* const findings : {&comparison.accepted, &comparison.breaks}) {
        for (const Finding& finding : *findings) {
            text += baselineLine(finding) + "\n";
        }
    }
    return text;
}

} // namespace tarv_program
